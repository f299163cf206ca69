#pragma once

#include "log/logrecord.h"

#include <QMetaType>
#include <QVector>

#include <optional>

/// What the log's last column shows of a row's time.
enum class ShownTime { SinceRowBefore, OfDay, Nothing };

/// When the record of a row happened.
struct RowTime
{
    qint64 utcUs = 0;
    /// After the record before, in ns; nothing for the first one. Bytes may be read before a frame
    /// is sent and come into the log behind it: then it is less than 0.
    std::optional<qint64> sinceBeforeNs;
    /// When the first byte of a frame was read, in µs since 1970 began (UTC), and how long before
    /// its last one, in ns: 0 for a frame that came as a whole.
    qint64 begunUtcUs = 0;
    qint64 takenNs = 0;
};

Q_DECLARE_METATYPE(RowTime)

/// The time of a record among others.
RowTime rowTimeOf(const QVector<LogRecord> &records, int row);

/// The text for the cell: "12.3 ms", or "14:03:27" and in a second line the ms, ".123".
QString cellTimeText(const RowTime &time, ShownTime shown);

/// The text for the tip, in lines: the local time with its distance from UTC, the time since the
/// row before, the moment of the first byte where there was one.
QString tipTimeText(const RowTime &time);

/// The text for the clipboard: the local time and the time since the row before, with a tab in
/// front of each.
QString copiedTimeText(const RowTime &time);
