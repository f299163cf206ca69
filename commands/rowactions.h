#pragma once

#include "rowmenus.h"

#include <QObject>
#include <QPersistentModelIndex>

class CommandTable;
class QTableWidget;

/// What the context menus do to the command table. The cell that a menu was opened on is remembered
/// by its index, so a menu or an editor may outlive the row.
class RowActions : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; the table is the one behind the rows.
    RowActions(QTableWidget &table, CommandTable &rows, const RowMenus &menus,
               QObject *parent = nullptr);

    /// Remembers the cell at a position in the table's viewport, and returns the menu that opens
    /// there; nothing where none does.
    QMenu *menuAt(const QPoint &position);

    /// The row of the cell that the last menu was opened on; -1 when it has left the table.
    int contextRow() const { return m_contextCell.row(); }

    /// Acts on the context row.
    void run(RowAction action);

    /// Does to the context row what an entry of the row menu stands for; other actions do nothing.
    void changeRow(QAction *entry);

    /// Checks or unchecks the rows that are selected in the table, as an entry of the select menu
    /// says; other actions do nothing.
    void checkSelectedRows(QAction *entry);

    /// Writes the command byte of an entry of the CMD menu into the context cell; other actions do
    /// nothing.
    void writeCmd(QAction *entry);

    /// Appends an empty row where the wheel is turned in a list that is at its end.
    void appendRowAtEnd();

signals:
    /// The user wants to edit a row's value.
    void editRequested(int row);

    /// An action has changed the commands.
    void modified();

    /// An action can't be carried out, for the reason given.
    void refused(const QString &reason);

private:
    void removeRow(int row);
    void moveUp(int row);
    void moveDown(int row);
    void selectAfterChange(int row);

    QTableWidget &m_table;
    CommandTable &m_rows;
    const RowMenus &m_menus;
    QPersistentModelIndex m_contextCell;
};
