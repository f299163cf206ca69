#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

/// The text of a line, and whether every byte had a meaning in the encoding.
struct DecodedLine
{
    QString text;
    bool valid = true;
};

/// Decodes a line, given with or without its line end. Every CR and LF is left out of the text. A
/// character that is cut off at the end of the line or by a comma counts as invalid; the comma
/// stays.
DecodedLine decodeLine(const QTextCodec &codec, const QByteArray &line);

const QTextCodec &utf8Codec();

/// What some programs put in front of UTF-8.
inline const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");

/// What is tried where UTF-8 does not fit: GBK, or the system's own encoding on a platform
/// without GBK.
const QTextCodec &fallbackCodec();

/// Decodes the lines of a file of unknown encoding, one after the other.
///
/// It starts with one codec and changes over to the other whenever a line does not fit, in either
/// direction; a change stays in force for the lines that follow. Both codecs must contain ASCII: a
/// line of nothing else fits either of them.
class LineDecoder
{
public:
    /// Starts with UTF-8 and falls back to fallbackCodec().
    LineDecoder();
    LineDecoder(const QTextCodec &first, const QTextCodec &second);

    /// The text of the next line, without CR and LF.
    QString decode(const QByteArray &line);

private:
    const QTextCodec *m_current;
    const QTextCodec *m_other;
};
