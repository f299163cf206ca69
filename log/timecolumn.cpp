#include "log/timecolumn.h"

#include "frames/messages.h"
#include "log/durationtext.h"
#include "log/localtime.h"

#include <QStringList>

namespace {

/// With the ms in a line of their own, since the column is narrow.
QString clockInTwoLines(qint64 utcUs)
{
    constexpr int toSeconds = 8;
    constexpr int pointAndMs = 4;
    const QString clock = localClockText(utcUs);
    return clock.left(toSeconds) + QLatin1Char('\n') + clock.mid(toSeconds, pointAndMs);
}

} // namespace

RowTime rowTimeOf(const QVector<LogRecord> &records, int row)
{
    const LogRecord &record = records.at(row);
    RowTime time;
    time.utcUs = record.utcUs;
    if (row > 0) {
        time.sinceBeforeNs = record.monotonicNs - records.at(row - 1).monotonicNs;
    }
    time.begunUtcUs = record.begun.utcUs;
    time.takenNs = record.monotonicNs - record.begun.monotonicNs;
    return time;
}

QString cellTimeText(const RowTime &time, ShownTime shown)
{
    switch (shown) {
    case ShownTime::SinceRowBefore:
        return time.sinceBeforeNs ? shortDuration(*time.sinceBeforeNs) : QString();
    case ShownTime::OfDay:
        return clockInTwoLines(time.utcUs);
    case ShownTime::Nothing:
        break;
    }
    return {};
}

QString tipTimeText(const RowTime &time)
{
    QStringList lines{localTimeText(time.utcUs)};
    if (time.sinceBeforeNs) {
        lines.append(
            Messages::tr("%1 after the row before").arg(exactDuration(*time.sinceBeforeNs)));
    }
    if (time.takenNs > 0) {
        lines.append(Messages::tr("First byte at %1, %2 before")
                         .arg(localClockText(time.begunUtcUs), exactDuration(time.takenNs)));
    }
    return lines.join(QLatin1Char('\n'));
}

QString copiedTimeText(const RowTime &time)
{
    const QString since = time.sinceBeforeNs ? exactDuration(*time.sinceBeforeNs) : QString();
    return QLatin1Char('\t') + localTimeText(time.utcUs) + QLatin1Char('\t') + since;
}
