#include "codec/numbercodec.h"

#include "codec/hexgroups.h"
#include "frames/hextext.h"

namespace {

/// The number as a pattern of 64 bits, 0 where the kind has no such number.
quint64 parsedNumber(const QStringRef &element, const NumberKind &kind)
{
    bool isNumber = false;
    const qint64 number = element.toLongLong(&isNumber);
    if (isNumber && number < 0) {
        return number >= kind.lowest ? static_cast<quint64>(number) : 0;
    }
    const quint64 magnitude = isNumber ? static_cast<quint64>(number) : element.toULongLong();
    return magnitude <= kind.highest ? magnitude : 0;
}

quint64 lowBits(quint64 value, int bits)
{
    return value & (~quint64(0) >> static_cast<unsigned>(64 - bits));
}

QString decimalText(quint64 group, const NumberKind &kind)
{
    const quint64 pattern = lowBits(group, kind.bits);
    const quint64 signBit = quint64(1) << static_cast<unsigned>(kind.bits - 1);
    if (!kind.isSigned || (pattern & signBit) == 0) {
        return QString::number(pattern);
    }
    const quint64 magnitude = lowBits(~pattern + 1, kind.bits);
    return QLatin1Char('-') + QString::number(magnitude);
}

} // namespace

QString encodeNumbers(const QString &decimals, const NumberKind &kind)
{
    QString digits;
    for (const QStringRef &element : decimals.splitRef(QLatin1Char(','))) {
        const quint64 pattern = parsedNumber(element, kind);
        digits += paddedHex(lowBits(pattern, kind.bits), kind.digits);
    }
    return groupPairsFromRight(digits);
}

QString decodeNumbers(const QString &hex, const NumberKind &kind)
{
    QString decimals;
    for (const quint64 group : hexGroups(hex, kind.digits)) {
        if (!decimals.isEmpty()) {
            decimals += QLatin1Char(',');
        }
        decimals += decimalText(group, kind);
    }
    return decimals;
}
