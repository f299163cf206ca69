#include "codec/valuecodec.h"

#include "codec/numbercodec.h"
#include "codec/stringcodec.h"
#include "frames/hextext.h"
#include "frames/messages.h"

#include <QStringList>

namespace {

constexpr int epochYear = 2000;
constexpr int digitsPerWord = 4;
/// As many words as fit into the largest instruction, 65535 bytes.
constexpr int mostWords = 32767;

QString fieldSeparator()
{
    return QStringLiteral("%%");
}

struct Segment
{
    QString kindText;
    QString value;
};

/// Appends the hex of one more piece.
void join(ConvertedValue &whole, const ConvertedValue &piece)
{
    const bool needsBlank = !whole.hex.isEmpty() && !piece.hex.isEmpty();
    whole.hex += needsBlank ? QLatin1Char(' ') + piece.hex : piece.hex;
    if (whole.unencodable.isEmpty()) {
        whole.unencodable = piece.unencodable;
    }
    if (whole.report.isEmpty()) {
        whole.report = piece.report;
    }
}

/// See docs/deliberate.md, Years.
ConvertedValue convertTime(const QString &fields)
{
    QStringList list = fields.split(QLatin1Char(','));
    bool isNumber = false;
    const qint64 year = list.first().toInt(&isNumber);
    if (isNumber) {
        list.first() = QString::number(year - epochYear);
    }
    return {encodeNumbers(list.join(QLatin1Char(',')), shortKind), {}, {}};
}

ConvertedValue convertField(const QString &text, int words, StringEncoding encoding)
{
    const EncodedText encoded = encodeString(text, encoding);
    const QString digits = withoutBlanks(encoded.hex);
    const int room = words * digitsPerWord;
    ConvertedValue field;
    field.hex = groupPairsFromRight(digits.leftJustified(room, QLatin1Char('0')));
    field.unencodable = encoded.unencodable;
    if (digits.size() > room) {
        field.report = Messages::tr("<br>String is over wordNumber!");
    }
    return field;
}

ConvertedValue convertFields(const QStringList &parts, StringEncoding encoding)
{
    ConvertedValue fields;
    int wordsLeft = mostWords;
    for (int i = 1; i + 1 < parts.size(); i += 2) {
        const int asked = parts.at(i).toInt();
        const int words = asked >= 0 && asked <= wordsLeft ? asked : 0;
        wordsLeft -= words;
        join(fields, convertField(parts.at(i + 1), words, encoding));
    }
    return fields;
}

ConvertedValue convertString(const QString &text, StringEncoding encoding)
{
    const QStringList parts = text.split(fieldSeparator());
    const bool hasFields = parts.size() > 1 && parts.size() % 2 != 0;
    if (hasFields) {
        return convertFields(parts, encoding);
    }
    const EncodedText encoded = encodeString(text, encoding);
    return {withTerminator(encoded.hex), {}, encoded.unencodable};
}

/// A segment without the "MIX:" it may begin with, even repeatedly: a mix of one is that one.
QStringRef withoutMix(QStringRef segment)
{
    int colon = segment.indexOf(QLatin1Char(':'));
    while (colon >= 0 &&
           valueKindNamed(segment.left(colon).trimmed().toString()) == ValueKind::Mix) {
        segment = segment.mid(colon + 1);
        colon = segment.indexOf(QLatin1Char(':'));
    }
    return segment;
}

/// Cuts a segment at its colon, a string's behind its encoding.
Segment cutSegment(const QStringRef &text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    if (colon < 0) {
        return {QString(), text.toString()};
    }
    const QString kindText = text.left(colon).trimmed().toString();
    const QStringRef rest = text.mid(colon + 1);
    const int next = rest.indexOf(QLatin1Char(':'));
    const bool isString = valueKindNamed(kindText) == ValueKind::String;
    if (!isString || next < 0 || !encodingNamed(rest.left(next).toString())) {
        return {kindText, rest.toString()};
    }
    return {text.left(colon + 1 + next).trimmed().toString(), rest.mid(next + 1).toString()};
}

ConvertedValue convertMix(const QString &value)
{
    ConvertedValue mix;
    for (const QStringRef &text : value.splitRef(fieldSeparator())) {
        const Segment segment = cutSegment(withoutMix(text));
        join(mix, convertValue(segment.kindText, segment.value));
    }
    return mix;
}

} // namespace

ConvertedValue convertValue(const QString &kindText, const QString &value)
{
    switch (valueKindNamed(kindText)) {
    case ValueKind::Time:
        return convertTime(value);
    case ValueKind::Mix:
        return convertMix(value);
    case ValueKind::String:
        return convertString(value, encodingOfKind(kindText));
    default:
        return {encodeNumbers(value, numberKindNamed(kindText)), {}, {}};
    }
}
