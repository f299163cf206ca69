#include "app/commandpanel.h"

#include "app/commandarea.h"
#include "commands/commandcolumns.h"

#include <QTableWidget>

CommandPanel::CommandPanel(CommandArea &area, bool withEdit, QWidget &window)
    : QObject(&window)
    , m_table(area.table())
    , m_rows(m_table, &window, this)
    , m_menus(&window, withEdit)
    , m_actions(m_table, m_rows, m_menus, this)
    , m_keys(m_table, m_rows, m_actions, m_menus, this)
    , m_editor(m_table, m_rows, &window)
    , m_clipboard(m_table, m_rows, this)
{
    m_table.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&m_actions, &RowActions::refused, this, &CommandPanel::notice);
    connect(&m_actions, &RowActions::acting, this, &CommandPanel::acting);
    connect(&m_actions, &RowActions::acted, this, &CommandPanel::acted);
    connect(&m_clipboard, &TableClipboard::acting, this, &CommandPanel::acting);
    connect(&m_clipboard, &TableClipboard::acted, this, &CommandPanel::acted);
    connect(&m_actions, &RowActions::modified, this, &CommandPanel::modified);
    connect(&m_clipboard, &TableClipboard::refused, this, &CommandPanel::notice);
    connect(&m_clipboard, &TableClipboard::modified, this, &CommandPanel::modified);
    connect(&m_actions, &RowActions::editRequested, &m_editor, &RowEditor::open);
    // A box must not open within the key press that it is about.
    connect(&editor(), &DirectEditor::unencodableTyped, this, &CommandPanel::notice,
            Qt::QueuedConnection);
}

void CommandPanel::showMenu(const QPoint &position)
{
    if (QMenu *menu = m_actions.menuAt(position)) {
        menu->exec(m_actions.menuPosition());
    }
}

void CommandPanel::goToRow(int id)
{
    const int row = m_rows.rowWithId(id);
    if (row < 0) {
        return;
    }
    m_table.setFocus(Qt::ShortcutFocusReason);
    m_table.setCurrentCell(row, CommandColumn::Description,
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_table.scrollTo(m_table.currentIndex());
}

void CommandPanel::takeBackEdited()
{
    emit acting();
    m_editor.takeBack(m_actions.contextRow());
    emit acted();
}

void CommandPanel::turnWheel(const QPoint &position)
{
    // See docs/deliberate.md, Wheel's place.
    if (m_table.geometry().contains(position)) {
        emit acting();
        m_actions.appendRowAtEnd();
        emit appended();
    }
}
