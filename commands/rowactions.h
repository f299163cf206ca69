#pragma once

#include "commands/rowmenus.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>

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

    /// Where that menu opens on the screen: at the cursor, or, asked for by key, below its cell.
    QPoint menuPosition() const { return m_menuPosition; }

    /// Asks for the menu of the current cell, as a key does.
    void askForMenu();

    /// The row of the cell that the last menu was opened on; -1 when it has left the table.
    int contextRow() const { return m_contextCell.row(); }

    /// Makes a row the one that the entries act on, as if the row menu had been opened on it.
    void setContextRow(int row);

    /// Acts on the context row.
    void run(RowAction action);

    /// Does to the context row what an entry of the row menu stands for; other actions do nothing.
    /// See docs/deliberate.md, Unmarked changes.
    void changeRow(QAction *entry);

    /// Checks or unchecks the rows that are selected in the table, as an entry of the select menu
    /// says; other actions do nothing. See docs/deliberate.md, Select all.
    void checkSelectedRows(QAction *entry);

    /// Writes the command byte of an entry of the CMD menu into the context cell; other actions do
    /// nothing.
    void writeCmd(QAction *entry);

    /// Appends an empty row where the wheel is turned in a list that is at its end.
    void appendRowAtEnd();

signals:
    /// Rows are about to be changed, and have been changed. Appending a row is not announced.
    void acting();
    void acted();

    /// The user wants to edit a row's value.
    void editRequested(int row);

    /// An action has changed the commands.
    void modified();

    /// An action can't be carried out, for the reason given.
    void refused(const QString &reason);

protected:
    /// Notices a menu that is asked for by key.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QPoint placeBelow(const QModelIndex &cell) const;
    void change(RowAction action);
    void removeRow(int row);
    void moveUp(int row);
    void moveDown(int row);
    void selectAfterChange(int row);

    QTableWidget &m_table;
    CommandTable &m_rows;
    const RowMenus &m_menus;
    QPersistentModelIndex m_contextCell;
    bool m_askedByKey = false;
    QPoint m_menuPosition;
};
