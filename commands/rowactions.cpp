#include "commands/rowactions.h"

#include "commands/commandcolumns.h"
#include "commands/commandtable.h"
#include "frames/delaymarker.h"
#include "frames/messages.h"

#include <QContextMenuEvent>
#include <QScrollBar>
#include <QTableWidget>

#include <utility>

namespace Column = CommandColumn;

RowActions::RowActions(QTableWidget &table, CommandTable &rows, const RowMenus &menus,
                       QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_rows(rows)
    , m_menus(menus)
{
    m_table.installEventFilter(this);
    m_table.viewport()->installEventFilter(this);
}

QMenu *RowActions::menuAt(const QPoint &position)
{
    const QModelIndex cell = m_table.indexAt(position);
    const QTableWidgetItem *item = m_table.itemAt(position);
    m_contextCell = item != nullptr ? cell : QModelIndex();
    m_menuPosition = std::exchange(m_askedByKey, false) ? placeBelow(cell) : QCursor::pos();
    if (cell.column() == Column::Cmd) {
        const bool noMenu = item == nullptr || item->text() == delayMarker;
        return noMenu ? nullptr : &m_menus.cmdMenu();
    }
    if (cell.column() == Column::Select) {
        const bool hasBox = m_table.cellWidget(cell.row(), cell.column()) != nullptr;
        return hasBox ? &m_menus.selectMenu() : nullptr;
    }
    return item != nullptr ? &m_menus.rowMenu() : nullptr;
}

void RowActions::askForMenu()
{
    const QModelIndex cell = m_table.currentIndex();
    if (cell.isValid()) {
        m_table.scrollTo(cell);
        m_askedByKey = true;
        m_rows.restoreSignals();
        emit m_table.customContextMenuRequested(m_table.visualRect(cell).center());
    }
}

void RowActions::setContextRow(int row)
{
    m_contextCell = m_table.model()->index(row, Column::Description);
}

bool RowActions::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ContextMenu) {
        m_rows.restoreSignals();
        m_askedByKey =
            static_cast<const QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard;
        if (m_askedByKey && object == &m_table) {
            askForMenu();
            return true;
        }
    }
    return QObject::eventFilter(object, event);
}

QPoint RowActions::placeBelow(const QModelIndex &cell) const
{
    const QRect seen = m_table.visualRect(cell) & m_table.viewport()->rect();
    return m_table.viewport()->mapToGlobal(seen.bottomLeft());
}

void RowActions::run(RowAction action)
{
    emit acting();
    change(action);
    emit acted();
}

void RowActions::change(RowAction action)
{
    const int row = contextRow();
    switch (action) {
    case RowAction::Edit:
        emit editRequested(row);
        break;
    case RowAction::Insert:
        m_rows.insertEmptyRow(row);
        selectAfterChange(row);
        break;
    case RowAction::Clone:
        m_rows.cloneRow(row);
        selectAfterChange(row + 1);
        break;
    case RowAction::Delete:
        removeRow(row);
        break;
    case RowAction::Up:
        moveUp(row);
        break;
    case RowAction::Down:
        moveDown(row);
        break;
    case RowAction::Delay:
        m_rows.insertDelayRow(row);
        selectAfterChange(row);
        break;
    }
}

void RowActions::changeRow(QAction *entry)
{
    if (const std::optional<RowAction> action = m_menus.rowAction(entry)) {
        run(*action);
    }
}

void RowActions::checkSelectedRows(QAction *entry)
{
    const std::optional<bool> checked = m_menus.selection(entry);
    if (!checked) {
        return;
    }
    emit acting();
    for (const QModelIndex &index : m_table.selectionModel()->selectedRows(0)) {
        m_rows.setSelected(index.row(), *checked);
    }
    emit acted();
}

void RowActions::writeCmd(QAction *entry)
{
    const std::optional<QString> cmd = m_menus.cmd(entry);
    QTableWidgetItem *item = m_table.item(m_contextCell.row(), m_contextCell.column());
    if (cmd && item != nullptr) {
        emit acting();
        item->setText(*cmd);
        emit acted();
    }
}

void RowActions::appendRowAtEnd()
{
    const QScrollBar *bar = m_table.verticalScrollBar();
    if (bar->value() == bar->maximum()) {
        m_rows.insertEmptyRow(m_table.rowCount());
    }
}

void RowActions::removeRow(int row)
{
    if (m_table.rowCount() == 1) {
        emit refused(Messages::tr("Keep at least one line!"));
        return;
    }
    m_table.removeRow(row);
}

void RowActions::moveUp(int row)
{
    if (!m_rows.moveUp(row)) {
        emit refused(Messages::tr("Has reached the top!"));
    }
    selectAfterChange(row - 1);
}

void RowActions::moveDown(int row)
{
    if (!m_rows.moveDown(row)) {
        emit refused(Messages::tr("Has reached the bottom!"));
    }
    selectAfterChange(row + 1);
}

void RowActions::selectAfterChange(int row)
{
    // With Ctrl held down it would be added to the selection, or taken out of it.
    m_table.clearSelection();
    m_table.selectRow(row);
    emit modified();
}
