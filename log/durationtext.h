#pragma once

#include <QString>

/// A time in ns in three digits, for where there is little room: "850 µs", "12.3 ms", "1.05 s",
/// "12m 05s", "3h 07m", "12 d".
QString shortDuration(qint64 ns);

/// A time in ns, to the µs: "12.345 ms", from a second on "1.234567 s".
QString exactDuration(qint64 ns);
