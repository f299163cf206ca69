#pragma once

#include "frames/arrivaltime.h"
#include "log/framereassembler.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

/// Takes in what the links receive and gives out the frames in it, and what belongs to none.
class Receiver : public QObject
{
    Q_OBJECT

public:
    /// Tells the start bytes; it is called for each chunk.
    using ReadStartBytes = std::function<StartBytes()>;

    explicit Receiver(ReadStartBytes readStartBytes, QObject *parent = nullptr);

    /// From now on a run of bytes that so many ms of silence follow is a frame, whatever it holds.
    /// Nothing stands for frames that are found by their start bytes and length.
    void setGap(std::optional<int> gapMs);

    /// Takes in a chunk that was read at that time. A first start byte at its end that nothing has
    /// followed for 50 ms is given out as stray, unless `aboutToGiveUp` brings more.
    void take(const QByteArray &chunk, ArrivalTime time = ArrivalTime::now());

    /// Gives out what has come since the last silence as a frame, without waiting for the next one.
    void endRun();

signals:
    /// A whole frame, the time of the chunk that completed it, and of the one that it began in.
    void frameReceived(const QByteArray &frame, ArrivalTime time, ArrivalTime begun);

    /// Bytes that belong to no frame, and the time of the chunk that showed it.
    void strayReceived(const QByteArray &bytes, ArrivalTime time);

    /// A first start byte is given up next. The program may have stood still meanwhile, so whoever
    /// holds bytes back that have come in must hand them to `take` now.
    void aboutToGiveUp();

private:
    /// Bytes that waited for the rest of their frame, and when the first of them was read.
    struct Waited
    {
        int bytes = 0;
        ArrivalTime since;
    };

    void takeIntoFrames(const QByteArray &chunk, ArrivalTime time);
    void giveOut(const QVector<ReceivedPiece> &pieces, ArrivalTime time, const Waited &waited);
    void takeIntoRun(const QByteArray &chunk, ArrivalTime time);
    void giveUpLoneStartByte();

    ReadStartBytes m_readStartBytes;
    FrameReassembler m_reassembler;
    QTimer m_silence;
    ArrivalTime m_lastArrival;
    /// When the first of the bytes that wait for the rest of their frame was read.
    ArrivalTime m_waitingSince;
    std::optional<int> m_gapMs;
    /// What has come since the last silence.
    QByteArray m_run;
    ArrivalTime m_runBegan;
};
