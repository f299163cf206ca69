#pragma once

#include <QtGlobal>

/// How many of a unit of time make one of a longer one.
inline constexpr qint64 nsPerUs = 1000;
inline constexpr qint64 nsPerMs = 1000000;
inline constexpr qint64 nsPerSecond = 1000000000;
inline constexpr qint64 usPerMs = 1000;
inline constexpr qint64 usPerSecond = 1000000;
inline constexpr qint64 msPerSecond = 1000;
inline constexpr qint64 secondsPerMinute = 60;
inline constexpr qint64 secondsPerHour = 3600;
inline constexpr qint64 secondsPerDay = 86400;
