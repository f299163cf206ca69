#include "log/receiver.h"

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
    connect(&m_silence, &QTimer::timeout, this,
            [this] { giveOut(m_reassembler.giveUpLoneStartByte(), m_lastArrival); });
}

void Receiver::take(const QByteArray &chunk, ArrivalTime time)
{
    if (chunk.isEmpty()) {
        return;
    }
    m_silence.stop();
    giveOut(m_reassembler.take(chunk, m_readStartBytes()), time);
    if (m_reassembler.holdsLoneStartByte()) {
        m_lastArrival = time;
        m_silence.start();
    }
}

void Receiver::giveOut(const QVector<ReceivedPiece> &pieces, ArrivalTime time)
{
    for (const ReceivedPiece &piece : pieces) {
        if (piece.kind == ReceivedPiece::Kind::Frame) {
            emit frameReceived(piece.bytes, time);
        } else {
            emit noticeReceived(piece.bytes, time);
        }
    }
}
