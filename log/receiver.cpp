#include "receiver.h"

#include "hextext.h"

#include <utility>

Receiver::Receiver(ReadStartBytes readStartBytes, QObject *parent)
    : QObject(parent)
    , m_readStartBytes(std::move(readStartBytes))
{}

void Receiver::take(const QByteArray &chunk)
{
    if (chunk.isEmpty()) {
        return;
    }
    m_waiting.append(chunk);
    if (m_busy) {
        return;
    }
    m_busy = true;
    while (!m_waiting.isEmpty()) {
        const StartBytes startBytes = m_readStartBytes();
        for (const QByteArray &waiting : std::exchange(m_waiting, {})) {
            giveOut(waiting, startBytes);
        }
    }
    m_busy = false;
}

void Receiver::giveOut(const QByteArray &chunk, StartBytes startBytes)
{
    for (const ReceivedPiece &piece : m_reassembler.take(chunk, startBytes)) {
        const QString hexText = formatHexBytes(piece.bytes);
        if (piece.kind == ReceivedPiece::Kind::Frame) {
            emit frameReceived(hexText);
        } else {
            emit noticeReceived(hexText);
        }
    }
}
