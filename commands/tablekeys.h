#pragma once

#include <QObject>

class CommandTable;
class QAction;
class QKeySequence;
class QTableWidget;
class RowActions;
class RowMenus;

/// The keys of the command table: those of the row menu's entries, Shift+F10 for the menu of a
/// cell, Space for the Select box, and, in the whole window, F5 to send the current row. They mean
/// the row whose box or button has the focus, otherwise the current one. The row menu's keys rest
/// while a cell is edited, where some of them mean something else. Those of undo and redo count in
/// the whole window, but in a text that is edited they mean the text.
class TableKeys : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; the table is the one behind the rows.
    TableKeys(QTableWidget &table, CommandTable &rows, RowActions &actions, const RowMenus &menus,
              QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    template<typename Reaction>
    void addKey(const QKeySequence &key, Qt::ShortcutContext context, Reaction reaction);
    void addRowMenuKeys(const RowMenus &menus);
    void addListKey(QAction &entry);
    void useEntry(QAction &entry);
    void goToFocusedRow();
    bool isEditing() const;
    bool toggleSelectCell();
    void sendRow();

    QTableWidget &m_table;
    CommandTable &m_rows;
    RowActions &m_actions;
};
