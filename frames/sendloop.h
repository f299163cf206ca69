#pragma once

#include "frames/deadlineplan.h"
#include "frames/headernotice.h"
#include "frames/passcount.h"
#include "frames/sendplan.h"

#include <QObject>

#include <optional>

class AlarmClock;
class Sender;

/// What passes between frames, and between passes, in ms, and how many passes there are.
struct LoopTiming
{
    int intervalMs = 0;
    int cycleDelayMs = 0;
    int passes = PassCount::endless;
};

/// The auto-send loop: one pass after the other over a plan taken when it was started.
///
/// With an interval each row is sent by itself and followed by the interval; without one the plan's
/// prepared blocks go out as fast as the link takes them. Pauses of delay rows run in both. A pass
/// ends with its last interval or pause, and the loop with its last pass, if it has one. Only
/// the loop's own frames count for its deadlines. Waiting, also for a link that is behind, is done
/// by the clock's alarm: nothing blocks, and a stop is just another event.
class SendLoop : public QObject
{
    Q_OBJECT

public:
    /// Sender and clock must outlive the loop, which has the clock's alarm to itself.
    SendLoop(Sender &sender, AlarmClock &clock, QObject *parent = nullptr);

    bool isRunning() const { return m_running; }

    /// Rows sent in interval mode since the start; 0 when the loop is stopped.
    int sentCount() const { return m_sentCount; }

    /// Starts the loop; its first pass is due after the cycle delay. An interval of 0 selects the
    /// prepared blocks.
    void start(const LoopPlan &plan, LoopTiming timing);

    /// Ends the loop; what is left of the pass under way is not sent.
    void stop();

    /// Begins a pass, unless the loop is stopped or a pass is under way.
    void runPass();

    /// Whether the loop has something to send within that time from now, or should have by now.
    bool isDueWithin(int milliseconds) const;

signals:
    /// The next pass is due: who owns the loop runs it.
    void passDue();

    /// That pass has begun, from 1; told when what it begins with is out.
    void passBegan(qint64 pass);

    /// A frame, or a block of them, that the loop had waited for went out so many ns later than
    /// planned. What comes before its time, since somebody ran a pass, is not told.
    void sentLate(qint64 ns);

    /// The last pass is over; the loop is stopped.
    void finished();

    /// A pass found no rows; the loop is stopped.
    void foundNothing();

private:
    void onAlarm();
    void goOn();
    bool mayGoOn();
    bool maySend();
    void take(const LoopStep &step);
    void wait(int milliseconds);
    void send(const LoopStep &step);
    void endPass();

    Sender &m_sender;
    AlarmClock &m_clock;
    QVector<LoopStep> m_steps;
    int m_cycleDelayMs = 0;
    PassCount m_passes;
    HeaderNotice m_headerNotice;
    DeadlinePlan m_deadlines;
    /// When what is sent next was due, if it was waited for.
    std::optional<qint64> m_awaited;
    bool m_hasRows = false;
    bool m_running = false;
    bool m_inPass = false;
    int m_nextStep = 0;
    int m_sentCount = 0;
    unsigned m_stops = 0;
};
