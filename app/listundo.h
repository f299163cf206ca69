#pragma once

#include "commands/listhistory.h"
#include "commands/rowtracker.h"

#include <QObject>
#include <QTimer>

class CommandArea;
class CommandPanel;
class ListState;

/// Takes back what was done to the command list, step by step, and does it again: 20 steps, and
/// less where their rows take more than 64 MiB.
///
/// All that an act of the user changes is one step: what an entry, a key or the editor of values
/// does, the editing of a cell from its opening to its end with what follows from it, a list that
/// is loaded or cleared. What programs write into the cells is one step for each turn of the event
/// loop. With each step the list's file and its mark come back, too.
class ListUndo : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this. While the area rests, no other list comes back.
    ListUndo(const CommandArea &area, CommandPanel &commands, ListState &list,
             QObject *parent = nullptr);

    /// An editor that is open is closed first, and what was typed in it is the step.
    void undo();
    void redo();

signals:
    /// What the user is told without being stopped.
    void told(const QString &text);

private:
    void followCommands();
    void beginAct();
    void endAct(ListHistory::Kind kind);
    void takeStep(ListHistory::Kind kind = ListHistory::Kind::Change);
    void takeStepWhenSettled();
    void followList();
    bool isEditing() const;
    bool mayExchange(ListHistory::Kind kind);
    RowExchange carryOut(const RowExchange &exchange);
    void show(const RowExchange &back, ListHistory::Kind kind);
    void refreshEntries();

    const CommandArea &m_area;
    CommandPanel &m_commands;
    ListState &m_list;
    QTableWidget &m_table;
    RowTracker m_tracker;
    ListHistory m_history;
    QTimer m_settled;
    int m_acts = 0;
    bool m_isExchanging = false;
};
