#include "runner/rowchoice.h"

#include "expectations/values.h"

#include <QStringList>

#include <algorithm>
#include <limits>

std::optional<RowChoice> RowChoice::listed(const QString &text)
{
    RowChoice choice(Kind::Listed);
    for (const QString &part : text.split(QLatin1Char(','))) {
        const auto first =
            numberOf(part.section(QLatin1Char('-'), 0, 0), 1, std::numeric_limits<int>::max());
        const auto last =
            part.contains(QLatin1Char('-'))
                ? numberOf(part.section(QLatin1Char('-'), 1), 1, std::numeric_limits<int>::max())
                : first;
        if (!first || !last || *last < *first) {
            return std::nullopt;
        }
        choice.m_ranges.append({*first, *last});
    }
    return choice;
}

bool RowChoice::contains(int number, bool isSelected) const
{
    if (m_kind != Kind::Listed) {
        return m_kind == Kind::All || isSelected;
    }
    return std::any_of(m_ranges.begin(), m_ranges.end(), [number](const Range &range) {
        return number >= range.first && number <= range.last;
    });
}

int RowChoice::highest() const
{
    int highest = 0;
    for (const Range &range : m_ranges) {
        highest = std::max(highest, range.last);
    }
    return highest;
}
