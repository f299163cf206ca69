#include "numbercodec.h"

#include "hexgroups.h"
#include "hextext.h"

namespace {

qint64 parsedNumber(const QStringRef &element, const NumberFormat &format)
{
    bool isNumber = false;
    const qint64 number = element.toLongLong(&isNumber);
    const bool fits = isNumber && number >= format.lowest && number <= format.highest;
    return fits ? number : 0;
}

quint64 lowBits(quint64 value, int bits)
{
    return value & (~quint64(0) >> static_cast<unsigned>(64 - bits));
}

QString decimalText(quint64 group, const NumberFormat &format)
{
    const quint64 pattern = lowBits(group, format.bits);
    const quint64 signBit = quint64(1) << static_cast<unsigned>(format.bits - 1);
    if (!format.isSigned || (pattern & signBit) == 0) {
        return QString::number(pattern);
    }
    const quint64 magnitude = lowBits(~pattern + 1, format.bits);
    return QLatin1Char('-') + QString::number(magnitude);
}

} // namespace

QString encodeNumbers(const QString &decimals, NumberKind kind)
{
    const NumberFormat format = numberFormat(kind);
    QString digits;
    for (const QStringRef &element : decimals.splitRef(QLatin1Char(','))) {
        const auto pattern = static_cast<quint64>(parsedNumber(element, format));
        digits += paddedHex(lowBits(pattern, format.bits), format.digits);
    }
    return groupPairsFromRight(digits);
}

QString decodeNumbers(const QString &hex, NumberKind kind)
{
    const NumberFormat format = numberFormat(kind);
    QString decimals;
    for (const quint64 group : hexGroups(hex, format.digits)) {
        if (!decimals.isEmpty()) {
            decimals += QLatin1Char(',');
        }
        decimals += decimalText(group, format);
    }
    return decimals;
}
