#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QTimer>

/// Says when to read what a port announces, so that a frame that comes in pieces is read whole: 2
/// ms after the first announcement, and then as soon as there is another one, but at most 5 ms
/// later. It runs on timers. See docs/deliberate.md, Patience.
class ArrivalWait : public QObject
{
    Q_OBJECT

public:
    explicit ArrivalWait(QObject *parent = nullptr);

    /// Something has come in: begins a wait, or is the other announcement of the one that runs.
    void announce();

    bool isRunning() const { return m_stage != Stage::Idle; }

    /// Cancels a wait.
    void cancel();

signals:
    /// It is time to read. Emitted from the event loop, never by an announcement itself.
    void over();

private:
    enum class Stage { Idle, Settling, AwaitingMore };

    void wait(int milliseconds);
    void goOn();

    Stage m_stage = Stage::Idle;
    bool m_moreCame = false;
    QTimer m_timer;
    QDeadlineTimer m_due;
};
