#pragma once

#include "commands/rowexchange.h"

#include <QObject>
#include <QVector>

#include <optional>

class CommandTable;
class QTableWidget;

/// Knows which rows of the command table have changed since it was last asked, whoever has changed
/// them: the user, a file, or a program that writes into the cells, with the table's signals
/// blocked or not. It looks at no other rows than these.
class RowTracker : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this; the table is the one behind the rows.
    RowTracker(QTableWidget &table, const CommandTable &rows, QObject *parent = nullptr);

    /// Whether rows were written since the last call of takeChange; they may be as they were.
    bool isTouched() const { return m_isTouched; }

    /// What takes back all that has changed since the last call; nothing where nothing has.
    std::optional<RowExchange> takeChange();

signals:
    /// The first row since the last call of takeChange was written.
    void touched();

private:
    void followTable();
    void touch(int untouchedBefore, int untouchedBehind);
    int rowCount() const;

    QTableWidget &m_table;
    const CommandTable &m_rows;
    /// The rows as they were at the last call.
    QVector<CommandRow> m_known;
    /// Rows that were not written since then, at the beginning and at the end.
    int m_untouchedBefore = 0;
    int m_untouchedBehind = 0;
    bool m_isTouched = false;
};
