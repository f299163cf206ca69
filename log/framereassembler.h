#pragma once

#include "frames/startbytes.h"

#include <QByteArray>
#include <QVector>

/// A whole frame that was received, or bytes that belong to none.
struct ReceivedPiece
{
    enum class Kind { Frame, Stray };
    Kind kind = Kind::Stray;
    QByteArray bytes;
};

/// Finds the frames in a stream of received bytes.
///
/// A frame is the two start bytes, a length byte L, and L bytes more. It is given out as soon as
/// its last byte is in, wherever the stream was cut into chunks. Bytes in front of, between or
/// behind frames are given out as stray ones, in the order of the stream. A first start byte at the
/// end of what is in may begin a frame and waits, too, until it is given up.
class FrameReassembler
{
public:
    /// Bytes held at most; what a chunk brings beyond them is dropped.
    static constexpr int capacity = 0x3FFF;
    /// Bytes of the longest frame: start bytes, a length byte of 255, and what it announces.
    static constexpr int longestFrame = 2 + 1 + 0xFF;

    /// Takes in a chunk and gives out what is complete with it. The start bytes may change from
    /// chunk to chunk. A chunk that the waiting bytes leave no room for makes them go out as they
    /// are.
    QVector<ReceivedPiece> take(const QByteArray &chunk, StartBytes startBytes);

    /// Whether the only byte that waits is a first start byte.
    bool holdsLoneStartByte() const { return m_buffer.size() == 1; }

    /// Takes it for no beginning of a frame after all, and gives it out. Gives out nothing where
    /// something else waits.
    QVector<ReceivedPiece> giveUpLoneStartByte();

    /// Gives out whatever waits as bytes that belong to no frame.
    QVector<ReceivedPiece> giveUpAll();

    /// Bytes that wait for the rest of their frame.
    int waitingBytes() const { return m_buffer.size(); }

private:
    void flush(QVector<ReceivedPiece> &pieces);

    QByteArray m_buffer;
};
