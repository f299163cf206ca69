#pragma once

#include <QByteArray>
#include <QQueue>
#include <QSocketNotifier>
#include <QTimer>
#include <QVector>

#include <functional>

class PseudoTerminal;

/// Puts blocks of bytes on the wire one after the other, each of them in one or more pieces with a
/// pause after each piece but the last.
class Transmitter : public QObject
{
    Q_OBJECT

public:
    /// Bytes that wait at most; a block that would be too many is dropped.
    static constexpr int capacity = 0x10000;

    /// The terminal must outlive the transmitter. The pauses' lengths, in ms, are asked for one by
    /// one.
    Transmitter(const PseudoTerminal &terminal, std::function<int()> pauseMs,
                QObject *parent = nullptr);

    /// Sends a block once all those before it are out; false if there is no room for it.
    bool send(const QVector<QByteArray> &pieces);

    /// Forgets what isn't out yet.
    void clear();

    /// Bytes that wait to be sent.
    int waitingBytes() const { return m_waitingBytes; }

private:
    struct Piece
    {
        QByteArray bytes;
        bool pauseFollows = false;
    };

    void goOn();
    bool writeFirstPiece();

    const PseudoTerminal &m_terminal;
    std::function<int()> m_pauseMs;
    QQueue<Piece> m_queue;
    int m_waitingBytes = 0;
    QTimer m_pause;
    QSocketNotifier m_room;
};
