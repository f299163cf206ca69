#pragma once

#include "frames/framebuilder.h"

#include <QByteArray>

/// A frame that was received, taken apart.
struct ReceivedFrame
{
    enum class Crc { None, Good, Bad };

    /// As it came over the wire.
    QByteArray bytes;
    /// What is compared with expectations: without start bytes, length and CRC.
    QByteArray payload;
    Crc crc = Crc::None;
    /// When it was read, in ns of the clock that never goes back.
    qint64 timeNs = 0;
};

/// Takes a frame apart. Where it has too few bytes for a CRC, it counts as one with a bad CRC;
/// where start bytes or length are not what they ought to be, all of it is payload.
ReceivedFrame takenApart(const QByteArray &bytes, const FrameLayout &layout, qint64 timeNs);
