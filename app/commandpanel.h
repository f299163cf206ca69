#pragma once

#include "app/roweditor.h"
#include "app/tableclipboard.h"
#include "commands/commandtable.h"
#include "commands/rowactions.h"
#include "commands/rowmenus.h"
#include "commands/tablekeys.h"

#include <QObject>

class CommandArea;

/// The command table at work: its rows, its menus, keys and clipboard, and the editor for a row's
/// value.
class CommandPanel : public QObject
{
    Q_OBJECT

public:
    /// The row menu offers the editor if asked to. Menus and editor belong to the window, which,
    /// like the area, must outlive this.
    CommandPanel(CommandArea &area, bool withEdit, QWidget &window);

    CommandTable &rows() { return m_rows; }
    const RowMenus &menus() const { return m_menus; }
    RowActions &actions() { return m_actions; }
    const DirectEditor &editor() const { return m_editor.editor(); }

    /// Shows the menu of the cell at a position in the table's viewport, until it is closed.
    void showMenu(const QPoint &position);

    /// Selects the row with that identity and brings it into view; one that is gone is not looked
    /// for.
    void goToRow(int id);

    /// Writes what the editor hands back into the row that the last menu was opened on.
    void takeBackEdited();

    /// Appends an empty row where the wheel is turned at the end of the list, with the mouse at
    /// this position in the window.
    void turnWheel(const QPoint &position);

signals:
    /// The user is about to change the commands, and has done so, in one of two ways; the second
    /// one is an empty row at the end.
    void acting();
    void acted();
    void appended();

    /// An action has changed the commands.
    void modified();

    /// Something the user must be told; handlers may block.
    void notice(const QString &text);

private:
    QTableWidget &m_table;
    CommandTable m_rows;
    RowMenus m_menus;
    RowActions m_actions;
    TableKeys m_keys;
    RowEditor m_editor;
    TableClipboard m_clipboard;
};
