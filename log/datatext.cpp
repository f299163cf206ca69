#include "log/datatext.h"

#include "frames/crc16.h"
#include "frames/hextext.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int hexDigits = 2;

/// As the log cuts frames: those of 8 bytes or more have an address.
int placeOfData(int frameBytes)
{
    constexpr int startBytesLengthCmd = 4;
    constexpr int addrBytes = 2;
    constexpr int shortestWithAddress = 8;
    return frameBytes < shortestWithAddress ? startBytesLengthCmd : startBytesLengthCmd + addrBytes;
}

QString eachByte(const QByteArray &bytes, const QString &before)
{
    QString text;
    for (const char byte : bytes) {
        text += before + paddedHex(static_cast<quint8>(byte), hexDigits);
    }
    return text;
}

/// How many bytes from there on are one character of UTF-8; 0 where they are none.
int bytesOfCharacter(const QByteArray &bytes, int position)
{
    constexpr int longest = 4;
    for (int size = 1; size <= longest; ++size) {
        const QByteArray piece = bytes.mid(position, size);
        const QString character = QString::fromUtf8(piece);
        if (piece.size() == size && character.toUtf8() == piece) {
            return size;
        }
    }
    return 0;
}

QString escaped(char byte)
{
    switch (byte) {
    case '\t':
        return QStringLiteral("\\t");
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\\':
        return QStringLiteral("\\\\");
    default:
        return eachByte(QByteArray(1, byte), QStringLiteral("\\x"));
    }
}

bool isPrinted(const QString &character)
{
    const QVector<uint> code = character.toUcs4();
    return !code.isEmpty() && QChar::isPrint(code.first()) && code.first() != '\\';
}

QString printedText(const QByteArray &bytes)
{
    QString text;
    for (int position = 0; position < bytes.size();) {
        const int size = bytesOfCharacter(bytes, position);
        const QString character = QString::fromUtf8(bytes.mid(position, size));
        text += isPrinted(character) ? character : escaped(bytes.at(position));
        position += isPrinted(character) ? size : 1;
    }
    return text;
}

} // namespace

QByteArray dataOf(const LogRecord &record)
{
    if (record.kind == LogRecord::Kind::Event || record.kind == LogRecord::Kind::Stray) {
        return record.bytes;
    }
    const int begin = placeOfData(record.bytes.size());
    const int end = record.bytes.size() - (record.withCrc ? crcSize : 0);
    return record.bytes.mid(begin, std::max(0, end - begin));
}

QString dataText(const QByteArray &bytes, DataForm form)
{
    switch (form) {
    case DataForm::Text:
        return printedText(bytes);
    case DataForm::CArray:
        return QLatin1Char('{') + eachByte(bytes, QStringLiteral(", 0x")).mid(2) + QLatin1Char('}');
    case DataForm::Python:
        return QStringLiteral("b\"") + eachByte(bytes, QStringLiteral("\\x")) + QLatin1Char('"');
    case DataForm::Hex:
        break;
    }
    return formatHexBytes(bytes).trimmed();
}

QString dataText(const QVector<QByteArray> &all, DataForm form)
{
    QStringList lines;
    for (const QByteArray &bytes : all) {
        if (!bytes.isEmpty()) {
            lines.append(dataText(bytes, form));
        }
    }
    const bool isList = form == DataForm::CArray || form == DataForm::Python;
    return lines.join(isList ? QStringLiteral(",\n") : QStringLiteral("\n"));
}
