#include "commands/tablekeys.h"

#include "commands/cellwidgets.h"
#include "commands/commandcolumns.h"
#include "commands/commandtable.h"
#include "commands/rowactions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QTableWidget>

#include <algorithm>

namespace Column = CommandColumn;

TableKeys::TableKeys(QTableWidget &table, CommandTable &rows, RowActions &actions,
                     const RowMenus &menus, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_rows(rows)
    , m_actions(actions)
{
    m_table.installEventFilter(this);
    addRowMenuKeys(menus);
    addListKey(menus.undoAction());
    addListKey(menus.redoAction());
    addKey(int(Qt::SHIFT) + int(Qt::Key_F10), Qt::WidgetWithChildrenShortcut, [this] {
        goToFocusedRow();
        m_actions.askForMenu();
    });
    addKey(Qt::Key_F5, Qt::WindowShortcut, [this] { sendRow(); });
}

bool TableKeys::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        const bool isSpace = key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier;
        if (isSpace && m_table.hasFocus() && toggleSelectCell()) {
            return true;
        }
    }
    return QObject::eventFilter(object, event);
}

template<typename Reaction>
void TableKeys::addKey(const QKeySequence &key, Qt::ShortcutContext context, Reaction reaction)
{
    auto *shortcut = new QShortcut(key, &m_table);
    shortcut->setContext(context);
    connect(shortcut, &QShortcut::activated, this, reaction);
}

void TableKeys::addRowMenuKeys(const RowMenus &menus)
{
    for (QAction *entry : menus.rowMenu().actions()) {
        if (entry->shortcut().isEmpty()) {
            continue;
        }
        addKey(entry->shortcut(), Qt::WidgetWithChildrenShortcut, [this, entry] {
            if (isEditing()) {
                return;
            }
            goToFocusedRow();
            useEntry(*entry);
        });
    }
}

/// Whoever has just pressed a button means the list, too.
void TableKeys::addListKey(QAction &entry)
{
    addKey(entry.shortcut(), Qt::WindowShortcut, [&entry] { entry.trigger(); });
}

/// Where the row goes, the next one takes its place as the current one.
void TableKeys::useEntry(QAction &entry)
{
    const int row = m_table.currentRow();
    const int column = m_table.currentColumn();
    const int rowCount = m_table.rowCount();
    m_actions.setContextRow(row);
    entry.trigger();
    if (m_table.rowCount() < rowCount) {
        const int next = std::min(row, m_table.rowCount() - 1);
        m_table.setCurrentCell(next, column, QItemSelectionModel::NoUpdate);
    }
}

/// The focus comes along: the box or button that had it may go with its row.
void TableKeys::goToFocusedRow()
{
    QWidget *focused = QApplication::focusWidget();
    if (focused == nullptr || !m_table.viewport()->isAncestorOf(focused) || isEditing()) {
        return;
    }
    const QPoint centre = focused->mapTo(m_table.viewport(), focused->rect().center());
    const QModelIndex cell = m_table.indexAt(centre);
    if (cell.isValid() && cell.row() != m_table.currentRow()) {
        m_table.setCurrentCell(cell.row(), cell.column());
    }
    m_table.setFocus();
}

bool TableKeys::isEditing() const
{
    const auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    return editor != nullptr && m_table.isAncestorOf(editor);
}

bool TableKeys::toggleSelectCell()
{
    QCheckBox *box = selectBox(m_table, m_table.currentRow(), Column::Select);
    if (m_table.currentColumn() != Column::Select || box == nullptr) {
        return false;
    }
    box->click();
    return true;
}

/// What is typed in an open editor belongs to the row that is sent.
void TableKeys::sendRow()
{
    m_rows.takeInEdit();
    auto *button =
        qobject_cast<QAbstractButton *>(m_table.cellWidget(m_table.currentRow(), Column::Send));
    if (button != nullptr) {
        button->click();
    }
}
