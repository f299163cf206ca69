#pragma once

#include <QtGlobal>

/// How many rows are done, in one line of a terminal that is written over and over.
class Progress
{
public:
    /// Shows nothing unless it is wanted.
    explicit Progress(bool isWanted)
        : m_isWanted(isWanted)
    {}
    ~Progress() { clear(); }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// So many are done at that time, in ns; a few times a second it is shown.
    void show(qint64 rows, qint64 nowNs);
    void clear();

private:
    bool m_isWanted;
    bool m_isShown = false;
    qint64 m_shownNs = 0;
};
