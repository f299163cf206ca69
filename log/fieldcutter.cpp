#include "fieldcutter.h"

#include "hextext.h"

#include <QStringList>

#include <initializer_list>

namespace {

constexpr QChar cutMark = QLatin1Char('/');
constexpr int shortestWithAddress = 22;
constexpr int charactersOfCrc = 6;

void cutAt(QString &text, int position)
{
    if (position >= 0 && position <= text.size()) {
        text.insert(position, cutMark);
    }
}

QStringList cutIntoPieces(QString text, std::initializer_list<int> positions)
{
    for (const int position : positions) {
        cutAt(text, position);
    }
    cutAt(text, text.size() - charactersOfCrc);
    return text.split(cutMark);
}

FrameFields fieldsWithoutAddress(const QStringList &pieces)
{
    return {pieces.value(0), pieces.value(1), pieces.value(2), {},
            pieces.value(3), pieces.value(4)};
}

FrameFields fieldsWithAddress(const QStringList &pieces)
{
    return {pieces.value(0), pieces.value(1), pieces.value(2), withoutBlanks(pieces.value(3)),
            pieces.value(4), pieces.value(5)};
}

FrameFields withCrcInItsPlace(FrameFields fields, bool withCrc)
{
    if (!withCrc) {
        fields.data += fields.crc;
        fields.crc.clear();
    }
    return fields;
}

FrameFields cutFrame(const QString &text)
{
    return text.size() < shortestWithAddress
               ? fieldsWithoutAddress(cutIntoPieces(text, {5, 9, 13}))
               : fieldsWithAddress(cutIntoPieces(text, {5, 9, 13, 20}));
}

} // namespace

FrameFields cutSentFrame(const QString &hexText, bool withCrc)
{
    FrameFields fields = cutFrame(hexText);
    if (fields.addr == QLatin1String("00")) {
        fields = fieldsWithAddress(cutIntoPieces(hexText, {8, 15, 19, 27}));
    }
    return withCrcInItsPlace(fields, withCrc);
}

FrameFields cutReceivedFrame(const QString &hexText, bool withCrc)
{
    const QString text = QString(hexText).remove(QLatin1Char('\n'));
    return withCrcInItsPlace(cutFrame(text), withCrc);
}

bool isAllZero(const QString &hexText)
{
    return hexText.count(QLatin1Char('0')) == withoutBlanks(hexText).size();
}
