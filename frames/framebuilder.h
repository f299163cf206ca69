#pragma once

#include "frames/startbytes.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The command whose payload may be longer than one byte of length can tell.
inline constexpr char longFormCommand = 0x10;

/// How a payload is wrapped into a frame.
struct FrameLayout
{
    StartBytes startBytes;
    /// Whether the start bytes are written at all.
    bool withStartBytes = true;
    /// Whether the length field is written at all.
    bool withLength = true;
    /// Whether a CRC-16/MODBUS of the payload follows the payload, low byte first.
    bool withCrc = false;
    /// The long length field is used only with devices that take instructions of 65535 bytes.
    /// See docs/deliberate.md, Wrong length.
    int maximumInstructionLength = 65535;
};

/// The bytes that a command text stands for.
///
/// Blanks separate tokens of hex pairs, a slash begins a comment, and what stands in double quotes
/// is taken as it is (local 8-bit encoding), to the end of the text where the closing quote is
/// missing. Nothing is returned when a token has an odd number of digits, or when there are no
/// bytes at all.
std::optional<QByteArray> parsePayload(const QString &commandText);

/// The frame of a command text, ready for the wire: start bytes, length, payload, CRC.
///
/// The length counts payload and CRC. It is one byte (its low 8 bits), or, for a length above 255
/// of a payload that begins with 0x10, a zero byte and two bytes, most significant byte first. An
/// empty result means that there is nothing to send (see parsePayload).
QByteArray buildFrame(const QString &commandText, const FrameLayout &layout);

/// The frame of these payload bytes (see buildFrame); empty when there are none.
QByteArray frameOfPayload(const QByteArray &payload, const FrameLayout &layout);
