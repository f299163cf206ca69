#include "log/localtime.h"

#include <QDateTime>

#include <cstdlib>

namespace {

constexpr qint64 usPerSecond = 1000000;

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
    constexpr int secondsInMinute = 60;
    constexpr int minutesPerHour = 60;
    const int minutes = seconds / secondsInMinute;
    const QTime offset =
        QTime(0, 0).addSecs(std::abs(minutes) % (24 * minutesPerHour) * secondsInMinute);
    return (minutes < 0 ? QLatin1Char('-') : QLatin1Char('+')) +
           offset.toString(QStringLiteral("HH:mm"));
}
