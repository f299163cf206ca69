#pragma once

#include "headernotice.h"
#include "sendplan.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class Sender;

/// The auto-send loop: one pass after the other over a plan taken when it was started.
///
/// With an interval each row is sent by itself and followed by the interval; without one the plan's
/// prepared blocks go out as fast as the link takes them. Pauses of delay rows run in both. Waiting
/// is done by a timer: nothing blocks, and a stop is just another event. Who owns the loop decides
/// when the next pass begins.
class SendLoop : public QObject
{
    Q_OBJECT

public:
    /// The sender must outlive the loop.
    explicit SendLoop(Sender &sender, QObject *parent = nullptr);

    bool isRunning() const { return m_running; }

    /// Rows sent in interval mode since the start; 0 when the loop is stopped.
    int sentCount() const { return m_sentCount; }

    /// Marks the loop as running; an interval in ms of 0 selects the prepared blocks.
    void start(const LoopPlan &plan, int intervalMs);

    /// Ends the loop; what is left of the pass under way is not sent.
    void stop();

    /// Begins a pass, unless the loop is stopped or a pass is under way.
    void runPass();

signals:
    /// A pass came to its end with the loop still running.
    void passEnded();

    /// A pass found no rows; the loop is stopped.
    void foundNothing();

private:
    void goOn();
    bool isPassDone() const;
    int sendBlockStep();
    int sendTextStep();
    void waitSinceHandOver(int milliseconds);
    void endWait();

    Sender &m_sender;
    LoopPlan m_plan;
    HeaderNotice m_headerNotice;
    int m_intervalMs = 0;
    bool m_running = false;
    bool m_inPass = false;
    int m_step = 0;
    int m_sentCount = 0;
    unsigned m_stops = 0;
    QElapsedTimer m_sinceHandOver;
    qint64 m_waitNs = 0;
    QTimer m_wait;
};
