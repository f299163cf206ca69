#include "log/localtime.h"

#include "frames/timeunits.h"

#include <QDateTime>

#include <cstdlib>

namespace {

/// Rounded down, also before 1970.
qint64 secondOf(qint64 utcUs)
{
    const qint64 rest = (utcUs % usPerSecond + usPerSecond) % usPerSecond;
    return (utcUs - rest) / usPerSecond;
}

QString fractionText(qint64 utcUs)
{
    constexpr int digits = 6;
    constexpr int decimal = 10;
    const qint64 rest = utcUs - secondOf(utcUs) * usPerSecond;
    return QStringLiteral(".%1").arg(rest, digits, decimal, QLatin1Char('0'));
}

QDateTime localMoment(qint64 utcUs)
{
    return QDateTime::fromSecsSinceEpoch(secondOf(utcUs));
}

} // namespace

QString localClockText(qint64 utcUs)
{
    return localMoment(utcUs).toString(QStringLiteral("HH:mm:ss")) + fractionText(utcUs);
}

QString localTimeText(qint64 utcUs)
{
    const QDateTime moment = localMoment(utcUs);
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) + fractionText(utcUs) +
           QLatin1Char(' ') + utcOffsetText(moment.offsetFromUtc());
}

QString utcOffsetText(int seconds)
{
    const qint64 minutes = seconds / secondsPerMinute;
    const qint64 ofDay = std::abs(minutes) * secondsPerMinute % secondsPerDay;
    const QTime offset = QTime(0, 0).addSecs(static_cast<int>(ofDay));
    return (minutes < 0 ? QLatin1Char('-') : QLatin1Char('+')) +
           offset.toString(QStringLiteral("HH:mm"));
}
