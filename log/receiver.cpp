#include "log/receiver.h"

#include "frames/timeunits.h"

#include <utility>

namespace {

constexpr int silenceMs = 50;

} // namespace

Receiver::Receiver(ReadStartBytes readStartBytes, QObject *parent)
    : QObject(parent)
    , m_readStartBytes(std::move(readStartBytes))
{
    m_silence.setSingleShot(true);
    m_silence.setTimerType(Qt::PreciseTimer);
    m_silence.setInterval(silenceMs);
    connect(&m_silence, &QTimer::timeout, this, [this] {
        if (m_gapMs) {
            endRun();
        } else {
            giveUpLoneStartByte();
        }
    });
}

void Receiver::setGap(std::optional<int> gapMs)
{
    endRun();
    m_gapMs = gapMs;
    m_silence.setInterval(gapMs.value_or(silenceMs));
}

void Receiver::take(const QByteArray &chunk, ArrivalTime time)
{
    if (chunk.isEmpty()) {
        return;
    }
    if (m_gapMs) {
        takeIntoRun(chunk, time);
        return;
    }
    takeIntoFrames(chunk, time);
}

void Receiver::takeIntoFrames(const QByteArray &chunk, ArrivalTime time)
{
    m_silence.stop();
    const Waited waited{m_reassembler.waitingBytes(), m_waitingSince};
    const QVector<ReceivedPiece> pieces = m_reassembler.take(chunk, m_readStartBytes());
    if (m_reassembler.waitingBytes() <= chunk.size()) {
        m_waitingSince = time;
    }
    giveOut(pieces, time, waited);
    if (m_reassembler.holdsLoneStartByte()) {
        m_lastArrival = time;
        m_silence.start();
    }
}

void Receiver::giveOut(const QVector<ReceivedPiece> &pieces, ArrivalTime time, const Waited &waited)
{
    int given = 0;
    for (const ReceivedPiece &piece : pieces) {
        if (piece.kind == ReceivedPiece::Kind::Frame) {
            emit frameReceived(piece.bytes, time, given < waited.bytes ? waited.since : time);
        } else {
            emit strayReceived(piece.bytes, time);
        }
        given += piece.bytes.size();
    }
}

void Receiver::giveUpLoneStartByte()
{
    emit aboutToGiveUp();
    // What that has brought may end with a start byte, which has a silence of its own.
    if (!m_silence.isActive()) {
        giveOut(m_reassembler.giveUpLoneStartByte(), m_lastArrival, {});
    }
}

void Receiver::takeIntoRun(const QByteArray &chunk, ArrivalTime time)
{
    const qint64 gapNs = *m_gapMs * nsPerMs;
    // The timer may be late.
    if (time.monotonicNs - m_lastArrival.monotonicNs >= gapNs ||
        m_run.size() + chunk.size() > FrameReassembler::capacity) {
        endRun();
    }
    if (m_run.isEmpty()) {
        m_runBegan = time;
    }
    m_run += chunk;
    m_lastArrival = time;
    m_silence.start();
}

void Receiver::endRun()
{
    m_silence.stop();
    if (!m_run.isEmpty()) {
        emit frameReceived(std::exchange(m_run, {}), m_runBegan, m_runBegan);
    }
}
