#pragma once

#include "codec/valuekind.h"

#include <QString>

class QTextCodec;

/// A text as hex text, and what of it the encoding does not have.
struct EncodedText
{
    /// Each byte as two upper-case digits and one blank, the last byte too. No terminator.
    QString hex;
    /// The characters that became "?" (3F) because the encoding has no bytes for them: each once,
    /// in order, the first ten at most. Empty when nothing was lost.
    QString unencodable;
};

/// Encodes a text. "Unicode" is UTF-16, high byte first, without a byte-order mark, and has every
/// character.
///
/// GB2312 and GBK are whatever text codecs the system has under these names.
/// See docs/deliberate.md, One codec of two.
EncodedText encodeString(const QString &text, StringEncoding encoding);

/// Encodes a text character by character with a codec of an encoding that begins with ASCII.
/// Without a codec ASCII is all there is.
EncodedText encodeWith(const QTextCodec *codec, const QString &text);

/// The text that hex text holds, its terminator included as U+0000. Digits are paired from the
/// right end, and bytes that are none of the encoding read as U+FFFD.
QString decodeString(const QString &hex, StringEncoding encoding);

/// Decodes bytes with a codec. Without one everything but ASCII reads as U+FFFD.
QString decodeWith(const QTextCodec *codec, const QByteArray &bytes);

/// The text codec for GB2312 or GBK; none for Unicode, which needs none, and where the system
/// lacks it.
const QTextCodec *textCodec(StringEncoding encoding);

/// The hex of an encoded text with the terminator that also makes its byte count even: "00" after
/// an odd number of bytes, "00 00" after an even one.
QString withTerminator(const QString &encodedHex);

/// A decoded text without the zeros behind it, terminator and padding alike.
QString withoutTerminator(const QString &decoded);

/// What the user is told about characters that an encoding could not hold.
QString unencodableReport(const QString &unencodable, StringEncoding encoding,
                          const QTextCodec *codec);
