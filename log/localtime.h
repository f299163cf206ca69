#pragma once

#include <QString>

/// A moment in µs since 1970 began (UTC) as the clock on the wall showed it: "14:03:27.123456".
QString localClockText(qint64 utcUs);

/// The same with the day and the distance from UTC: "2026-11-22 14:03:27.123456 +01:00".
QString localTimeText(qint64 utcUs);

/// So many seconds east of UTC: "+01:00", "-03:30".
QString utcOffsetText(int seconds);
