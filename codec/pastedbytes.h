#pragma once

#include <QByteArray>
#include <QString>

/// Why a text can't be read as bytes.
enum class PasteFault {
    None,
    /// There is nothing but white space.
    Nothing,
    /// A part of it stands for no byte.
    NoByte,
    /// A part of it has an odd number of digits.
    MissingDigit,
    /// A part of it is written in another way than the parts before.
    Mixed,
    /// A list of numbers that may be decimal as well as hexadecimal.
    Ambiguous,
    /// There are more bytes than an instruction can hold.
    TooLong
};

/// The bytes in a text, or what is wrong with it.
struct PastedBytes
{
    QByteArray bytes;
    PasteFault fault = PasteFault::None;
    /// The part of the text that the fault is about, shortened where it is long.
    QString part = {};
};

/// The most bytes that are read: no instruction holds more.
inline constexpr int mostPastedBytes = 65535;

/// Reads bytes as source texts, data sheets and tools write them:
///
/// - `0x10, 0x20`, also in braces or brackets; more digits are bytes in the order in which they are
///   written, a single one is a small byte;
/// - `10h 20h`, where a zero in front of a letter doesn't count: `0FFh`;
/// - `\x10\x20`, and string literals that hold escapes or begin with b: `b'\x10A\n'`;
/// - `10 20`, `1020`, `10-20` and `10:20`, also in quotes.
///
/// Numbers with commas between them or brackets around them need such a mark, unless one of them
/// shows by a letter or a leading zero that they are hexadecimal.
PastedBytes readPastedBytes(const QString &text);
