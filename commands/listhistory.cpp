#include "commands/listhistory.h"

bool operator==(const ListStanding &left, const ListStanding &right)
{
    return left.path == right.path && left.isModified == right.isModified;
}

void ListHistory::add(const RowExchange &back, Kind kind, const ListStanding &standing)
{
    forgetUndone();
    if (goesOnAppending(back, kind)) {
        m_steps.last().exchange.removed += back.removed;
        return;
    }
    m_lists += kind == Kind::NewList ? 1 : 0;
    m_states.append({standing, kind == Kind::NewList ? m_lists : m_states.last().list});
    m_steps.append({{}, kind, 0});
    ++m_current;
    m_isAppending = kind == Kind::Appending;
    setExchange(m_current - 1, back);
    forgetTooMuch();
}

void ListHistory::setStanding(const ListStanding &standing)
{
    if (standing == this->standing()) {
        return;
    }
    const int list = m_states.at(m_current).list;
    for (State &state : m_states) {
        const bool isOfFile = !standing.path.isEmpty() && state.standing.path == standing.path;
        if (!standing.isModified && (state.list == list || isOfFile)) {
            state.standing = {state.list == list ? standing.path : state.standing.path, true};
        }
    }
    m_states[m_current].standing = standing;
    m_isAppending = false;
}

void ListHistory::stepBack(const RowExchange &forward)
{
    --m_current;
    m_isAppending = false;
    setExchange(m_current, forward);
    forgetTooMuch();
}

void ListHistory::stepForward(const RowExchange &back)
{
    ++m_current;
    setExchange(m_current - 1, back);
    forgetTooMuch();
}

void ListHistory::forgetUndone()
{
    while (canRedo()) {
        m_bytes -= m_steps.takeLast().bytes;
        m_states.removeLast();
    }
}

bool ListHistory::goesOnAppending(const RowExchange &back, Kind kind) const
{
    return m_isAppending && kind == Kind::Appending &&
           undoing().row + undoing().removed == back.row;
}

void ListHistory::setExchange(int step, const RowExchange &exchange)
{
    Step &changed = m_steps[step];
    m_bytes -= changed.bytes;
    changed.exchange = exchange;
    changed.bytes = memoryOf(exchange.rows);
    m_bytes += changed.bytes;
}

/// Where nothing is left to be taken back, what could be done again goes, the last first.
void ListHistory::forgetTooMuch()
{
    while (m_steps.size() > mostSteps || m_bytes > mostBytes) {
        if (canUndo()) {
            m_bytes -= m_steps.takeFirst().bytes;
            m_states.removeFirst();
            --m_current;
        } else {
            m_bytes -= m_steps.takeLast().bytes;
            m_states.removeLast();
        }
    }
}
