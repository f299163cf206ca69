#pragma once

#include <QString>
#include <QVector>

#include <optional>

/// Which rows of a file are sent.
class RowChoice
{
public:
    /// Those whose Select box is checked.
    static RowChoice selected() { return RowChoice(Kind::Selected); }

    static RowChoice all() { return RowChoice(Kind::All); }

    /// Those of a list like "1,3-5"; nothing for a text that is none.
    static std::optional<RowChoice> listed(const QString &text);

    /// Whether the row of that number, from 1, is sent.
    bool contains(int number, bool isSelected) const;

    /// The highest number in the list; 0 without a list.
    int highest() const;

private:
    enum class Kind { Selected, All, Listed };

    struct Range
    {
        int first = 0;
        int last = 0;
    };

    explicit RowChoice(Kind kind)
        : m_kind(kind)
    {}

    Kind m_kind;
    QVector<Range> m_ranges;
};
