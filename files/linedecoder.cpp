#include "linedecoder.h"

#include <QTextCodec>

#include <utility>

namespace {

/// Some codecs do not count what they cannot decode, they only replace it.
bool holdsReplacedBytes(const QTextCodec &codec, const QString &text)
{
    return &codec != &utf8Codec() && text.contains(QChar(QChar::ReplacementCharacter));
}

DecodedLine decodeBytes(const QTextCodec &codec, const QByteArray &line)
{
    // Behind a character that is cut off, the line end shows every codec that it is.
    const QByteArray bytes = line.endsWith('\n') ? line : line + '\n';
    QTextCodec::ConverterState state;
    QString text = codec.toUnicode(bytes.constData(), bytes.size(), &state);
    const bool valid = state.invalidChars == 0 && !holdsReplacedBytes(codec, text);
    text.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
    return {text, valid};
}

/// Without ICU, Qt's GBK decoder takes the byte behind a wrong one for lost, too; in a command line
/// that must not be a comma.
QString decodeByFields(const QTextCodec &codec, const QByteArray &line)
{
    QStringList fields;
    for (const QByteArray &field : line.split(',')) {
        fields.append(decodeBytes(codec, field).text);
    }
    return fields.join(QLatin1Char(','));
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
    const DecodedLine attempt = decodeLine(*m_current, line);
    if (attempt.valid) {
        return attempt.text;
    }
    std::swap(m_current, m_other);
    return decodeLine(*m_current, line).text;
}
