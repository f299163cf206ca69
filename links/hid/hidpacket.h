#pragma once

#include <QMetaType>

/// One HID report on its way to or from a device. It crosses threads by value.
struct HidPacket
{
    /// Byte 0 is the report ID, the bytes from 1 on are the report's data.
    quint8 data[516] = {};
    /// Number of data bytes that follow byte 0.
    qint32 length = 0;
};

/// The most data bytes that a packet holds: one 512-byte report and a little to spare.
constexpr int longestReport = sizeof(HidPacket::data) - 1;

Q_DECLARE_METATYPE(HidPacket)
