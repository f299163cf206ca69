#include "commands/rowexchange.h"

#include <algorithm>

namespace {

qint64 memoryOfText(const QString &text)
{
    constexpr qint64 head = 26;
    return text.isEmpty() ? 0 : head + 2 * qint64(text.size());
}

qint64 memoryOfRow(const CommandRow &row)
{
    qint64 bytes = sizeof row;
    for (const QString *text : {&row.description, &row.cmd, &row.addr, &row.data, &row.crc,
                                &row.dataType, &row.originalData, &row.expectations}) {
        bytes += memoryOfText(*text);
    }
    return bytes;
}

} // namespace

RowExchange exchange(QVector<CommandRow> &list, const RowExchange &change)
{
    const RowExchange back{change.row, change.rows.size(), list.mid(change.row, change.removed)};
    const int kept = std::min(change.removed, change.rows.size());
    std::copy_n(change.rows.cbegin(), kept, list.begin() + change.row);
    if (change.removed > kept) {
        list.remove(change.row + kept, change.removed - kept);
    } else if (change.rows.size() > kept) {
        list.insert(change.row + kept, change.rows.size() - kept, {});
        std::copy(change.rows.cbegin() + kept, change.rows.cend(),
                  list.begin() + change.row + kept);
    }
    return back;
}

RowExchange withoutEqualEnds(const RowExchange &change, const QVector<CommandRow> &before)
{
    const QVector<CommandRow> &after = change.rows;
    const int most = std::min(before.size(), after.size());
    int front = 0;
    while (front < most && before.at(front) == after.at(front)) {
        ++front;
    }
    int back = 0;
    while (back < most - front &&
           before.at(before.size() - 1 - back) == after.at(after.size() - 1 - back)) {
        ++back;
    }
    return {change.row + front, before.size() - front - back,
            after.mid(front, after.size() - front - back)};
}

bool isNothing(const RowExchange &change)
{
    return change.removed == 0 && change.rows.isEmpty();
}

qint64 memoryOf(const QVector<CommandRow> &rows)
{
    qint64 bytes = 0;
    for (const CommandRow &row : rows) {
        bytes += memoryOfRow(row);
    }
    return bytes;
}
