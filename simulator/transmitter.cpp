#include "simulator/transmitter.h"

#include "simulator/pseudoterminal.h"

#include <utility>

Transmitter::Transmitter(const PseudoTerminal &terminal, std::function<int()> pauseMs,
                         QObject *parent)
    : QObject(parent)
    , m_terminal(terminal)
    , m_pauseMs(std::move(pauseMs))
    , m_room(terminal.descriptor(), QSocketNotifier::Write)
{
    m_room.setEnabled(false);
    m_pause.setSingleShot(true);
    m_pause.setTimerType(Qt::PreciseTimer);
    connect(&m_pause, &QTimer::timeout, this, &Transmitter::goOn);
    connect(&m_room, &QSocketNotifier::activated, this, &Transmitter::goOn);
}

bool Transmitter::send(const QVector<QByteArray> &pieces)
{
    int size = 0;
    for (const QByteArray &piece : pieces) {
        size += piece.size();
    }
    if (m_waitingBytes + size > capacity) {
        return false;
    }
    for (int i = 0; i < pieces.size(); ++i) {
        m_queue.enqueue({pieces.at(i), i + 1 < pieces.size()});
    }
    m_waitingBytes += size;
    goOn();
    return true;
}

void Transmitter::clear()
{
    m_queue.clear();
    m_waitingBytes = 0;
    m_pause.stop();
    m_room.setEnabled(false);
}

void Transmitter::goOn()
{
    while (!m_queue.isEmpty() && !m_pause.isActive()) {
        if (!writeFirstPiece()) {
            m_room.setEnabled(true);
            return;
        }
        if (m_queue.dequeue().pauseFollows) {
            m_pause.start(m_pauseMs());
        }
    }
    m_room.setEnabled(false);
}

/// Whether the whole piece is out; if not, what is left of it stays in the queue.
bool Transmitter::writeFirstPiece()
{
    QByteArray &bytes = m_queue.head().bytes;
    const int written = m_terminal.write(bytes);
    bytes.remove(0, written);
    m_waitingBytes -= written;
    return bytes.isEmpty();
}
