#include "codec/stringcodec.h"

#include "codec/hexgroups.h"
#include "frames/hextext.h"
#include "frames/messages.h"

#include <QStringList>
#include <QTextCodec>

#include <optional>

namespace {

constexpr char16_t firstBeyondAscii = 0x80;
constexpr int listedCharacters = 10;

/// The character that begins at a position: one code unit, or the two of a surrogate pair.
QString characterAt(const QString &text, int position)
{
    const bool isPair = text.at(position).isHighSurrogate() && position + 1 < text.size() &&
                        text.at(position + 1).isLowSurrogate();
    return text.mid(position, isPair ? 2 : 1);
}

/// The bytes of a character; none when the codec has none for it.
///
/// The state only saves setting up the codec anew for each character. What would stay in it from
/// one character to the next, the first half of a surrogate pair, is never handed over: neither
/// GB2312 nor GBK has such characters.
std::optional<QByteArray> encodedCharacter(const QTextCodec *codec, QChar character,
                                           QTextCodec::ConverterState &state)
{
    if (character.unicode() < firstBeyondAscii) {
        return QByteArray(1, character.toLatin1());
    }
    if (!codec || character.isSurrogate()) {
        return std::nullopt;
    }
    state.invalidChars = 0;
    const QByteArray bytes = codec->fromUnicode(&character, 1, &state);
    // Some characters without a glyph are dropped by the codec instead of being replaced.
    if (state.invalidChars > 0 || bytes.isEmpty()) {
        return std::nullopt;
    }
    return bytes;
}

void noteUnencodable(QString &noted, const QString &character)
{
    if (noted.toUcs4().size() < listedCharacters && !noted.contains(character)) {
        noted += character;
    }
}

QString utf16Hex(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size() * 2);
    for (const QChar unit : text) {
        bytes.append(static_cast<char>(unit.row()));
        bytes.append(static_cast<char>(unit.cell()));
    }
    return formatHexBytes(bytes);
}

QString utf16Text(const QString &hex)
{
    QString text;
    for (const quint64 unit : hexGroups(hex, 4)) {
        text += QChar(static_cast<char16_t>(unit));
    }
    return text;
}

QString encodingName(StringEncoding encoding)
{
    static const QStringList names = {"GB2312", "GBK", "Unicode"};
    return names.at(static_cast<int>(encoding));
}

} // namespace

EncodedText encodeString(const QString &text, StringEncoding encoding)
{
    if (encoding == StringEncoding::Unicode) {
        return {utf16Hex(text), {}};
    }
    return encodeWith(textCodec(encoding), text);
}

EncodedText encodeWith(const QTextCodec *codec, const QString &text)
{
    QTextCodec::ConverterState state;
    QByteArray bytes;
    EncodedText encoded;
    for (int i = 0; i < text.size();) {
        const QString character = characterAt(text, i);
        const std::optional<QByteArray> ownBytes = encodedCharacter(codec, character.at(0), state);
        if (!ownBytes) {
            noteUnencodable(encoded.unencodable, character);
        }
        bytes += ownBytes.value_or(QByteArrayLiteral("?"));
        i += character.size();
    }
    encoded.hex = formatHexBytes(bytes);
    return encoded;
}

QString decodeString(const QString &hex, StringEncoding encoding)
{
    if (encoding == StringEncoding::Unicode) {
        return utf16Text(hex);
    }
    QByteArray bytes;
    for (const quint64 byte : hexGroups(hex, 2)) {
        bytes.append(static_cast<char>(byte));
    }
    return decodeWith(textCodec(encoding), bytes);
}

QString decodeWith(const QTextCodec *codec, const QByteArray &bytes)
{
    if (codec) {
        return codec->toUnicode(bytes);
    }
    QString text;
    for (const char byte : bytes) {
        const auto unit = static_cast<quint8>(byte);
        text += unit < firstBeyondAscii ? QChar(unit) : QChar(QChar::ReplacementCharacter);
    }
    return text;
}

const QTextCodec *textCodec(StringEncoding encoding)
{
    if (encoding == StringEncoding::Unicode) {
        return nullptr;
    }
    return QTextCodec::codecForName(encodingName(encoding).toLatin1());
}

QString withTerminator(const QString &encodedHex)
{
    const bool oddBytes = encodedHex.size() % 2 != 0;
    return encodedHex + QLatin1String(oddBytes ? "00" : "00 00");
}

QString withoutTerminator(const QString &decoded)
{
    int end = decoded.size();
    while (end > 0 && decoded.at(end - 1).isNull()) {
        --end;
    }
    return decoded.left(end);
}

QString unencodableReport(const QString &unencodable, StringEncoding encoding,
                          const QTextCodec *codec)
{
    const QString name = encodingName(encoding);
    const QString reason =
        codec ? Messages::tr("%1 has no bytes for: ").arg(name)
              : Messages::tr("This system has no %1 codec. Not written: ").arg(name);
    return reason + unencodable + Messages::tr("<br>\"?\" is written in their place.");
}
