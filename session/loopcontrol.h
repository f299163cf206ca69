#pragma once

#include "frames/sendloop.h"

#include <QObject>

#include <memory>

class AlarmClock;

/// Starts and stops a session's auto-send loop, and runs its passes.
class LoopControl : public QObject
{
    Q_OBJECT

public:
    /// The sender must outlive the control.
    explicit LoopControl(Sender &sender, QObject *parent = nullptr);
    ~LoopControl() override;

    bool isRunning() const { return m_loop.isRunning(); }

    /// Whether a frame of the loop is about to be due, so that nothing that takes long should begin
    /// now.
    bool isFrameNear() const;

    /// Starts a loop over the rows on the sender's link; the user is told why where it can't be.
    void start(const QVector<CheckedRow> &rows, LoopTiming timing);

    /// Ends the loop if one runs.
    void stop();

    /// Begins a pass now, unless one is under way or no loop runs.
    void runPass() { m_loop.runPass(); }

signals:
    /// A loop begins; emitted before its first frame.
    void started();

    /// A pass is about to begin, the first one or the next. Who stops the loop now prevents it.
    void passDue();

    /// That pass has begun, from 1; its first frames are out.
    void passBegan(qint64 pass);

    /// A frame went out that the loop had waited for, so many ns later than planned.
    void sentLate(qint64 ns);

    /// The loop was stopped, or its last pass is over.
    void stopped();

    /// The loop has stopped by itself, since it has no rows.
    void foundNothing();

    /// Something the user must be told; handlers may block.
    void notice(const QString &text);

private:
    bool isAcceptable(const LoopPlan &plan);

    Sender &m_sender;
    std::unique_ptr<AlarmClock> m_clock;
    SendLoop m_loop;
};
