#include "frames/hextext.h"

std::optional<quint8> hexDigitValue(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return static_cast<quint8>(digit - '0');
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<quint8>(digit - 'A' + 10);
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<quint8>(digit - 'a' + 10);
    }
    return std::nullopt;
}

quint8 hexPairToByte(char high, char low)
{
    const std::optional<quint8> lowNibble = hexDigitValue(low);
    if (!lowNibble) {
        return 0;
    }
    return static_cast<quint8>(hexDigitValue(high).value_or(0) * 16 + *lowNibble);
}

QString formatHexBytes(const QByteArray &bytes)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    QString text(bytes.size() * 3, Qt::Uninitialized);
    QChar *out = text.data();
    for (const char byte : bytes) {
        const auto value = static_cast<quint8>(byte);
        *out++ = QLatin1Char(digits[value >> 4U]);
        *out++ = QLatin1Char(digits[value & 0x0FU]);
        *out++ = QLatin1Char(' ');
    }
    return text;
}

QString paddedHex(quint64 value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, QLatin1Char('0'));
}

QString withoutBlanks(const QString &text)
{
    return QString(text).remove(QLatin1Char(' '));
}

bool isBlank(const QString &text)
{
    return withoutBlanks(text).isEmpty();
}

QString groupPairsFromRight(const QString &digits)
{
    QString grouped;
    grouped.reserve(digits.size() + digits.size() / 2);
    for (int i = 0; i < digits.size(); ++i) {
        const bool pairBegins = (digits.size() - i) % 2 == 0;
        if (i > 0 && pairBegins) {
            grouped.append(QLatin1Char(' '));
        }
        grouped.append(digits.at(i));
    }
    return grouped;
}
