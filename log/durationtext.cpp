#include "log/durationtext.h"

#include "frames/timeunits.h"

#include <array>

namespace {

constexpr qint64 hoursInTwoDigits = 100;

QString withSign(qint64 ns, const QString &text)
{
    return ns < 0 ? QChar(0x2212) + text : text;
}

/// The divisor is the unit, in ns. Nothing where the number would have more than three digits.
QString inThreeDigits(qint64 ns, qint64 unit, const QString &name)
{
    constexpr std::array<int, 3> powers{100, 10, 1};
    for (size_t i = 0; i < powers.size(); ++i) {
        const qint64 number = (ns * powers.at(i) + unit / 2) / unit;
        if (number < 1000) {
            const auto decimals = static_cast<int>(powers.size() - 1 - i);
            return QString::number(double(number) / powers.at(i), 'f', decimals) + name;
        }
    }
    return {};
}

QString inParts(qint64 number, qint64 partsOfOne, const QString &name, const QString &partName)
{
    constexpr int digits = 2;
    constexpr int decimal = 10;
    return QStringLiteral("%1%2 %3%4")
        .arg(QString::number(number / partsOfOne), name)
        .arg(number % partsOfOne, digits, decimal, QLatin1Char('0'))
        .arg(partName);
}

QString ofMinutesAndMore(qint64 ns)
{
    const qint64 seconds = (ns + nsPerSecond / 2) / nsPerSecond;
    if (seconds < secondsPerHour) {
        return inParts(seconds, secondsPerMinute, QStringLiteral("m"), QStringLiteral("s"));
    }
    if (seconds < hoursInTwoDigits * secondsPerHour) {
        return inParts(seconds / secondsPerMinute, secondsPerMinute, QStringLiteral("h"),
                       QStringLiteral("m"));
    }
    return QStringLiteral("%1 d").arg(seconds / secondsPerDay);
}

QString unsignedShort(qint64 ns)
{
    const qint64 us = (ns + nsPerUs / 2) / nsPerUs;
    if (us < nsPerMs / nsPerUs) {
        return QStringLiteral("%1 µs").arg(us);
    }
    // Rounded to a tenth of a second, it would read 60.
    if (ns >= secondsPerMinute * nsPerSecond - nsPerSecond / 20) {
        return ofMinutesAndMore(ns);
    }
    const QString inMs = inThreeDigits(ns, nsPerMs, QStringLiteral(" ms"));
    return inMs.isEmpty() ? inThreeDigits(ns, nsPerSecond, QStringLiteral(" s")) : inMs;
}

} // namespace

QString shortDuration(qint64 ns)
{
    return withSign(ns, unsignedShort(qAbs(ns)));
}

QString exactDuration(qint64 ns)
{
    const qint64 us = (qAbs(ns) + nsPerUs / 2) / nsPerUs;
    const bool inMs = us < nsPerSecond / nsPerUs;
    const int decimals = inMs ? 3 : 6;
    const auto unit = double(inMs ? nsPerMs : nsPerSecond) / double(nsPerUs);
    return withSign(ns, QString::number(double(us) / unit, 'f', decimals) +
                            (inMs ? QStringLiteral(" ms") : QStringLiteral(" s")));
}
