#include "files/linedecoder.h"

#include <QTextCodec>

#include <algorithm>
#include <utility>

namespace {

/// Some codecs do not count what they cannot decode, they only replace it.
bool holdsReplacedBytes(const QTextCodec &codec, const QString &text)
{
    return &codec != &utf8Codec() && text.contains(QChar(QChar::ReplacementCharacter));
}

bool isAscii(const QByteArray &bytes)
{
    constexpr uchar lastAscii = 127;
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<uchar>(byte) <= lastAscii; });
}

QString withoutLineEnds(QString text)
{
    return text.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
}

/// Nothing is made for a blank line.
QString asciiText(const QByteArray &line)
{
    int size = line.size();
    while (size > 0 && (line.at(size - 1) == '\n' || line.at(size - 1) == '\r')) {
        --size;
    }
    return size == 0 ? QString() : withoutLineEnds(QString::fromLatin1(line.constData(), size));
}

DecodedLine decodeBytes(const QTextCodec &codec, const QByteArray &line)
{
    // The line end shows every codec that the character before it is cut off.
    const QByteArray bytes = line.endsWith('\n') ? line : line + '\n';
    QTextCodec::ConverterState state;
    const QString text = codec.toUnicode(bytes.constData(), bytes.size(), &state);
    const bool valid = state.invalidChars == 0 && !holdsReplacedBytes(codec, text);
    return {withoutLineEnds(text), valid};
}

QString textOfField(const QTextCodec &codec, const QByteArray &field)
{
    return isAscii(field) ? asciiText(field) : decodeBytes(codec, field).text;
}

/// Without ICU, Qt's GBK decoder also drops the byte behind a wrong one. In a line of a command
/// file that must not be a comma.
QString decodeByFields(const QTextCodec &codec, const QByteArray &line)
{
    QString text;
    int begin = 0;
    for (int comma = line.indexOf(','); comma >= 0; comma = line.indexOf(',', begin)) {
        text += textOfField(codec, line.mid(begin, comma - begin)) + QLatin1Char(',');
        begin = comma + 1;
    }
    return text + textOfField(codec, line.mid(begin));
}

} // namespace

DecodedLine decodeLine(const QTextCodec &codec, const QByteArray &line)
{
    DecodedLine decoded = decodeBytes(codec, line);
    if (!decoded.valid && &codec != &utf8Codec()) {
        decoded.text = decodeByFields(codec, line);
    }
    return decoded;
}

const QTextCodec &utf8Codec()
{
    static const QTextCodec *const codec = QTextCodec::codecForName("UTF-8");
    return *codec;
}

const QTextCodec &fallbackCodec()
{
    static const QTextCodec *const gbk = QTextCodec::codecForName("GBK");
    return gbk != nullptr ? *gbk : *QTextCodec::codecForLocale();
}

LineDecoder::LineDecoder()
    : LineDecoder(utf8Codec(), fallbackCodec())
{}

LineDecoder::LineDecoder(const QTextCodec &first, const QTextCodec &second)
    : m_current(&first)
    , m_other(&second)
{}

QString LineDecoder::decode(const QByteArray &line)
{
    // Asking a codec would take longer than all the rest for a blank line.
    if (isAscii(line)) {
        return asciiText(line);
    }
    const DecodedLine attempt = decodeLine(*m_current, line);
    if (attempt.valid) {
        return attempt.text;
    }
    std::swap(m_current, m_other);
    return decodeLine(*m_current, line).text;
}
