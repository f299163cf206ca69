#pragma once

#include "frames/durations.h"
#include "frames/timeunits.h"

#include <QHash>

#include <deque>
#include <optional>

/// How a row, or all rows of a loop, were answered.
struct Replies
{
    /// Frames that went out.
    qint64 sent = 0;
    /// From the frame to its answer, in ns: the last one, and all of them.
    qint64 lastNs = 0;
    Durations times;
    /// Frames that nothing has answered within a second.
    qint64 lost = 0;
};

/// What was answered when, row by row, and in all.
///
/// A frame that comes in answers what went out last and still waits; of frames that went out
/// together, it answers the first. So the times are right where a row now and then, or always, goes
/// without an answer. Where rows go out faster than answers come in, single times may belong to a
/// neighbour; their number and their mean are right all the same.
class ReplyTimes
{
public:
    /// How long an answer is waited for, in ns.
    static constexpr qint64 longestWaitNs = nsPerSecond;
    /// Rows that are kept; of more, those go that were sent the longest ago.
    static constexpr int mostRows = 1024;

    /// A frame of the row with that identity, or of an unknown one (0), went out at that time.
    void noteSent(int rowId, qint64 timeNs);

    /// A frame that was read at that time came in. Returns whether it answers something.
    bool noteReceived(qint64 timeNs);

    /// It is that late by now: what has waited too long is lost.
    void passTime(qint64 nowNs);

    /// Whether something waits for its answer.
    bool isWaiting() const { return !m_waiting.empty(); }

    /// How a row was answered; null where nothing of it was sent.
    const Replies *of(int rowId) const;

    /// Counts what is sent from now on as a whole, too, from nothing, and as long as wanted.
    void beginTotal();
    void endTotal() { m_isTotalOpen = false; }
    const Replies &total() const { return m_total; }

private:
    struct Waiting
    {
        int rowId = 0;
        qint64 sentNs = 0;
        /// Of which total; 0 for none.
        int total = 0;
    };
    struct Row
    {
        Replies replies;
        qint64 lastSentNs = 0;
    };

    void forgetOldestRow();
    void answer(const Waiting &sent, qint64 timeNs);
    void lose(const Waiting &sent);

    std::deque<Waiting> m_waiting;
    QHash<int, Row> m_rows;
    Replies m_total;
    int m_totals = 0;
    bool m_isTotalOpen = false;
};
