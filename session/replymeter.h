#pragma once

#include "frames/arrivaltime.h"
#include "frames/sendplan.h"
#include "log/replytexts.h"

#include <QObject>
#include <QTimer>

class LoopControl;
class Receiver;
class Sender;

/// Measures how soon rows are answered, and how a loop goes.
class ReplyMeter : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the meter.
    ReplyMeter(Sender &sender, Receiver &receiver, LoopControl &loop, QObject *parent = nullptr);

    /// How the row with that identity was answered; null where nothing of it was sent.
    const Replies *of(int rowId) const { return m_times.of(rowId); }

    /// How the loop that runs goes, or the last one went.
    LoopFigures loopFigures() const;

signals:
    /// The figures of the loop have changed; emitted as often as that.
    void loopChanged();

private:
    void begin();
    void end();
    void takeBlock(const QVector<BlockPart> &parts, ArrivalTime time);
    void takeFrame(ArrivalTime time);
    void noteReceived(qint64 timeNs);
    void passTime();

    ReplyTimes m_times;
    Durations m_lateness;
    qint64 m_passes = 0;
    qint64 m_received = 0;
    qint64 m_lastReceivedNs = 0;
    bool m_runs = false;
    /// The loop is over, and something of it waits for its answer.
    bool m_endsSoon = false;
    QTimer m_lastWait;
};
