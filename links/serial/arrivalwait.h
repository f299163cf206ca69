#pragma once

#include <QObject>
#include <QTimer>

/// When that which a port announces is to be read, so that a frame which comes in pieces is read
/// whole: 2 ms after the first announcement, and as soon as there is another one, but at most 5 ms
/// later. It runs on timers.
class ArrivalWait : public QObject
{
    Q_OBJECT

public:
    explicit ArrivalWait(QObject *parent = nullptr);

    /// Something has come in: begins a wait, or is the other announcement of the one that runs.
    void announce();

    bool isRunning() const { return m_stage != Stage::Idle; }

    /// Ends a wait without a word.
    void cancel();

signals:
    /// It is time to read. Emitted from the event loop, never by an announcement itself.
    void over();

private:
    enum class Stage { Idle, Settling, AwaitingMore };

    void goOn();

    Stage m_stage = Stage::Idle;
    bool m_moreCame = false;
    QTimer m_timer;
};
