#pragma once

#include <QtGlobal>

#include <vector>

/// How long things took: the least, the most, and how many took how long, in a table that grows
/// with the range they are in, not with their number: to 1 KiB for each power of two, 58 KiB at
/// most.
class Durations
{
public:
    /// One more, in ns; less than 0 counts as 0.
    void add(qint64 ns);

    qint64 count() const { return m_count; }

    /// In ns; 0 as long as there are none.
    qint64 least() const { return m_least; }
    qint64 most() const { return m_most; }

    /// What so many percent of them don't exceed, in ns, exact to one in 128.
    qint64 percentile(int percent) const;

    qint64 median() const { return percentile(50); }

private:
    /// Each power of two is cut into so many parts.
    static constexpr int partBits = 7;
    static constexpr int parts = 1 << partBits;

    void makeRoomFor(int place);
    static int placeOf(quint64 ns);
    static qint64 highestOf(int place);

    /// From the power of two of the least one to that of the most.
    std::vector<qint64> m_counts;
    int m_firstPlace = 0;
    qint64 m_count = 0;
    qint64 m_least = 0;
    qint64 m_most = 0;
};
