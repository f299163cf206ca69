#include "commands/rowtracker.h"

#include "commands/commandtable.h"

#include <QTableWidget>

#include <algorithm>

RowTracker::RowTracker(QTableWidget &table, const CommandTable &rows, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_rows(rows)
    , m_known(rows.rows())
{
    followTable();
}

std::optional<RowExchange> RowTracker::takeChange()
{
    if (!m_isTouched) {
        return std::nullopt;
    }
    m_isTouched = false;
    const int first = m_untouchedBefore;
    const QVector<CommandRow> before =
        m_known.mid(first, m_known.size() - first - m_untouchedBehind);
    RowExchange change{first, before.size()};
    for (int row = first; row < rowCount() - m_untouchedBehind; ++row) {
        change.rows.append(m_rows.row(row));
    }
    change = withoutEqualEnds(change, before);
    return isNothing(change) ? std::nullopt : std::optional(exchange(m_known, change));
}

/// The model tells of every change, also while the table's own signals are blocked.
void RowTracker::followTable()
{
    const QAbstractItemModel *model = m_table.model();
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) {
                touch(first.row(), rowCount() - 1 - last.row());
            });
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex & /*parent*/, int first, int last) {
                touch(first, rowCount() - 1 - last);
            });
    connect(
        model, &QAbstractItemModel::rowsRemoved, this,
        [this](const QModelIndex & /*parent*/, int first) { touch(first, rowCount() - first); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] { touch(0, 0); });
    connect(model, &QAbstractItemModel::layoutChanged, this, [this] { touch(0, 0); });
    connect(&m_rows, &CommandTable::selectChanged, this, [this](int row) {
        if (row >= 0) {
            touch(row, rowCount() - 1 - row);
        }
    });
}

void RowTracker::touch(int untouchedBefore, int untouchedBehind)
{
    if (m_isTouched) {
        m_untouchedBefore = std::min(m_untouchedBefore, untouchedBefore);
        m_untouchedBehind = std::min(m_untouchedBehind, untouchedBehind);
        return;
    }
    m_isTouched = true;
    m_untouchedBefore = untouchedBefore;
    m_untouchedBehind = untouchedBehind;
    emit touched();
}

int RowTracker::rowCount() const
{
    return m_table.model()->rowCount();
}
