#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The two bytes that every frame begins with, in the order of the wire.
struct StartBytes
{
    quint8 first = 0;
    quint8 second = 0;
};

/// What frames begin with while the header field can't be read: the default header the other way
/// round.
/// See docs/deliberate.md, Swapped header.
constexpr StartBytes fallbackStartBytes{0xA5, 0x5A};

/// Reads a header field such as "0x5A,0xA5".
///
/// Of at most 9 bytes (in the local 8-bit encoding) the hex digits and the letters x and X count;
/// of the first eight of them, the third and fourth are the first start byte and the seventh and
/// eighth the second. Nothing is returned for a longer text, or one with fewer than eight such
/// characters.
std::optional<StartBytes> parseStartBytes(const QString &headerField);

/// The start bytes as they go over the wire.
QByteArray bytesOf(StartBytes startBytes);
