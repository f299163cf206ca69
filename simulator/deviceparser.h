#pragma once

#include "frames/startbytes.h"

#include <QByteArray>
#include <QVector>

/// Finds the frames in the bytes that arrive at the device, wherever the stream was cut.
///
/// A frame is the start bytes, a length, and as many bytes as the length says. The length is one
/// byte, 1 to 255, or a zero byte and two more, most significant byte first, for a length of 256 or
/// more and a payload that begins with 0x10. What isn't a frame is skipped: the next header is
/// looked for directly behind the first byte of the one that failed, so a frame within rubbish that
/// looked like a header is found as well.
class DeviceParser
{
public:
    /// With a CRC the payload is followed by its CRC-16/MODBUS, low byte first, and a frame whose
    /// CRC is wrong is skipped like rubbish.
    DeviceParser(StartBytes startBytes, bool withCrc);

    /// Takes in bytes and returns the payloads, without CRC, of the frames that end with them.
    QVector<QByteArray> take(const QByteArray &bytes);

    /// Gives up the frame that is waited for and returns what is found in the bytes behind its
    /// header. To be called when the line has gone quiet, so that a wrong length can't swallow
    /// what comes next.
    QVector<QByteArray> giveUpFrame();

    /// Bytes that wait for the rest of their frame.
    int waitingBytes() const { return m_waiting.size(); }

private:
    struct Finding;

    int headerFrom(int position) const;
    quint8 byteAt(int position) const { return static_cast<quint8>(m_waiting.at(position)); }
    Finding examine(int position) const;
    Finding examineContent(int position, int lengthFieldSize, int length) const;
    QVector<QByteArray> takeFramesFrom(int position);

    QByteArray m_header;
    bool m_withCrc = false;
    QByteArray m_waiting;
};
