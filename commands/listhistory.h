#pragma once

#include "commands/rowexchange.h"

#include <QString>
#include <QVector>

/// Where a list stands: the file that it came from or went to, and whether it was changed since.
struct ListStanding
{
    QString path = {};
    bool isModified = false;
};

bool operator==(const ListStanding &left, const ListStanding &right);

/// The steps in which a list of rows was changed, to be taken back and done again. It keeps what is
/// not in the list now; the list itself is somebody else's.
///
/// It also knows how the list stood before and after each step, and learns which of these are no
/// longer what a file holds when the list is saved.
class ListHistory
{
public:
    /// The most steps that are kept, and the most memory that their rows may take, in bytes. Beyond
    /// either, the oldest step goes.
    static constexpr int mostSteps = 20;
    static constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;

    enum class Kind {
        Change,
        /// Empty rows were put behind the last one; what directly follows is the same step.
        Appending,
        /// The rows are those of another list.
        NewList
    };

    /// The list was changed: `back` takes it back, and the list stands so now. What was taken back
    /// before can't be done again any more.
    void add(const RowExchange &back, Kind kind, const ListStanding &standing);

    /// The list stands otherwise, though its rows are the same: it was saved, for example.
    void setStanding(const ListStanding &standing);

    /// How the list stands now.
    const ListStanding &standing() const { return m_states.at(m_current).standing; }

    bool canUndo() const { return m_current > 0; }
    bool canRedo() const { return m_current < m_steps.size(); }

    /// What takes back the last step, and does again the one taken back last. There must be one.
    const RowExchange &undoing() const { return m_steps.at(m_current - 1).exchange; }
    const RowExchange &redoing() const { return m_steps.at(m_current).exchange; }

    /// Of which kind these steps are. There must be one.
    Kind undoingKind() const { return m_steps.at(m_current - 1).kind; }
    Kind redoingKind() const { return m_steps.at(m_current).kind; }

    /// The last step was taken back; `forward` does it again.
    void stepBack(const RowExchange &forward);

    /// The step was done again; `back` takes it back.
    void stepForward(const RowExchange &back);

private:
    struct State
    {
        ListStanding standing;
        /// Which list it is, from one Kind::NewList to the next.
        int list = 0;
    };
    struct Step
    {
        RowExchange exchange;
        Kind kind = Kind::Change;
        qint64 bytes = 0;
    };

    void forgetUndone();
    bool goesOnAppending(const RowExchange &back, Kind kind) const;
    void setExchange(int step, const RowExchange &exchange);
    void forgetTooMuch();

    /// One more than steps: before, between and behind them.
    QVector<State> m_states{State()};
    QVector<Step> m_steps;
    int m_current = 0;
    int m_lists = 0;
    /// Nothing has happened since rows were appended.
    bool m_isAppending = false;
    qint64 m_bytes = 0;
};
