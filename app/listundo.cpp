#include "app/listundo.h"

#include "app/commandarea.h"
#include "app/commandpanel.h"
#include "app/liststate.h"
#include "commands/commandcolumns.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableWidget>

#include <algorithm>

namespace Column = CommandColumn;

namespace {

using Kind = ListHistory::Kind;

/// The first column in which two rows differ, of those that are shown.
int changedColumn(const CommandRow &before, const CommandRow &after)
{
    if (before.description != after.description) {
        return Column::Description;
    }
    if (before.selected != after.selected) {
        return Column::Select;
    }
    if (before.cmd != after.cmd) {
        return Column::Cmd;
    }
    return before.addr != after.addr ? Column::Addr : Column::Data;
}

QString nameOfRows(int first, int count)
{
    return count > 1 ? ListUndo::tr("rows %1 to %2").arg(first + 1).arg(first + count)
                     : ListUndo::tr("row %1").arg(first + 1);
}

/// What a step that put `after` rows in the place of `before` others did.
QString nameOfStep(Kind kind, int row, int before, int after)
{
    if (kind == Kind::NewList) {
        return ListUndo::tr("another list");
    }
    if (before == 0) {
        return ListUndo::tr("%1 inserted").arg(nameOfRows(row, after));
    }
    return after == 0 ? ListUndo::tr("%1 deleted").arg(nameOfRows(row, before))
                      : ListUndo::tr("%1 changed").arg(nameOfRows(row, after));
}

} // namespace

ListUndo::ListUndo(const CommandArea &area, CommandPanel &commands, ListState &list,
                   QObject *parent)
    : QObject(parent)
    , m_area(area)
    , m_commands(commands)
    , m_list(list)
    , m_table(area.table())
    , m_tracker(m_table, commands.rows())
{
    m_settled.setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, &ListUndo::takeStepWhenSettled);
    connect(&m_tracker, &RowTracker::touched, this, [this] {
        m_settled.start(0);
        refreshEntries();
    });
    connect(&m_list, &ListState::changed, this, &ListUndo::followList);
    followCommands();
    refreshEntries();
}

void ListUndo::undo()
{
    m_commands.rows().takeInEdit();
    takeStep();
    if (!m_history.canUndo() || !mayExchange(m_history.undoingKind())) {
        return;
    }
    const Kind kind = m_history.undoingKind();
    const RowExchange forward = carryOut(m_history.undoing());
    m_history.stepBack(forward);
    show(forward, kind);
    emit told(
        tr("Undone: %1.").arg(nameOfStep(kind, forward.row, forward.removed, forward.rows.size())));
}

void ListUndo::redo()
{
    m_commands.rows().takeInEdit();
    takeStep();
    if (!m_history.canRedo() || !mayExchange(m_history.redoingKind())) {
        return;
    }
    const Kind kind = m_history.redoingKind();
    const RowExchange back = carryOut(m_history.redoing());
    m_history.stepForward(back);
    show(back, kind);
    emit told(tr("Redone: %1.").arg(nameOfStep(kind, back.row, back.rows.size(), back.removed)));
}

void ListUndo::followCommands()
{
    const CommandTable &rows = m_commands.rows();
    connect(&rows, &CommandTable::replacing, this, &ListUndo::beginAct);
    connect(&rows, &CommandTable::replaced, this, [this] { endAct(Kind::NewList); });
    connect(&rows, &CommandTable::editorOpened, this, [this] { takeStep(); });
    connect(&rows, &CommandTable::editorClosed, this, [this] { takeStep(); });
    connect(&rows, &CommandTable::selectChanged, this, [this] { takeStep(); });
    connect(&m_commands, &CommandPanel::acting, this, &ListUndo::beginAct);
    connect(&m_commands, &CommandPanel::acted, this, [this] { endAct(Kind::Change); });
    connect(&m_commands, &CommandPanel::appended, this, [this] { endAct(Kind::Appending); });
    const RowMenus &menus = m_commands.menus();
    connect(&menus.undoAction(), &QAction::triggered, this, &ListUndo::undo);
    connect(&menus.redoAction(), &QAction::triggered, this, &ListUndo::redo);
}

/// What was done before is no part of it.
void ListUndo::beginAct()
{
    takeStep();
    ++m_acts;
}

void ListUndo::endAct(Kind kind)
{
    --m_acts;
    takeStep(kind);
}

void ListUndo::takeStep(Kind kind)
{
    if (m_acts > 0 || m_isExchanging) {
        return;
    }
    if (const std::optional<RowExchange> back = m_tracker.takeChange()) {
        m_history.add(*back, kind, m_list.standing());
    } else {
        m_history.setStanding(m_list.standing());
    }
    refreshEntries();
}

/// What is typed in an open editor becomes a step when that closes.
void ListUndo::takeStepWhenSettled()
{
    if (!isEditing()) {
        takeStep();
    }
}

/// The mark that a change brings belongs to the step, which is not taken yet.
void ListUndo::followList()
{
    if (m_isExchanging) {
        return;
    }
    if (m_list.isModified()) {
        m_settled.start(0);
        return;
    }
    if (const std::optional<RowExchange> back = m_tracker.takeChange()) {
        m_history.add(*back, Kind::Change, {m_history.standing().path, true});
    }
    m_history.setStanding(m_list.standing());
    refreshEntries();
}

bool ListUndo::isEditing() const
{
    const auto editors =
        m_table.viewport()->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(editors.cbegin(), editors.cend(),
                       [](const QLineEdit *editor) { return !editor->isHidden(); });
}

/// Lists are not loaded and cleared while a loop runs.
bool ListUndo::mayExchange(Kind kind)
{
    const bool mustWait = kind == Kind::NewList && m_area.isResting();
    if (mustWait) {
        emit told(tr("The list can't be exchanged while the loop runs."));
    }
    return !mustWait;
}

/// A box or a button that has the focus may go with its row.
RowExchange ListUndo::carryOut(const RowExchange &exchange)
{
    if (m_table.isAncestorOf(QApplication::focusWidget())) {
        m_table.setFocus();
    }
    m_isExchanging = true;
    m_commands.rows().exchangeRows(exchange);
    m_isExchanging = false;
    return m_tracker.takeChange().value_or(RowExchange{exchange.row});
}

void ListUndo::show(const RowExchange &back, Kind kind)
{
    m_isExchanging = true;
    m_list.restore(m_history.standing());
    m_isExchanging = false;
    refreshEntries();
    m_table.clearSelection();
    const bool isOneRow = back.removed == 1 && back.rows.size() == 1;
    const int row = kind == Kind::NewList ? 0 : std::min(back.row, m_table.rowCount() - 1);
    const int column = isOneRow ? changedColumn(back.rows.first(), m_commands.rows().row(row))
                                : std::max(0, m_table.currentColumn());
    m_table.setCurrentCell(row, column, QItemSelectionModel::NoUpdate);
    if (kind != Kind::NewList && back.removed > 0) {
        m_table.setRangeSelected({row, 0, row + back.removed - 1, Column::Count - 1}, true);
    }
    m_table.scrollTo(m_table.currentIndex());
}

void ListUndo::refreshEntries()
{
    const RowMenus &menus = m_commands.menus();
    menus.undoAction().setEnabled(m_history.canUndo() || m_tracker.isTouched());
    menus.redoAction().setEnabled(m_history.canRedo());
}
