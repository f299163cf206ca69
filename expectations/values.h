#pragma once

#include "frames/startbytes.h"
#include "frames/timeunits.h"

#include <QString>

#include <optional>

// Values as they stand in options and in settings of a file. Nothing is returned for a text that is
// none.

/// The longest time that can be asked for, in ms: a day.
inline constexpr int longestTimeMs = secondsPerDay * msPerSecond;

/// A decimal number in a range, without sign or blanks.
std::optional<int> numberOf(const QString &text, int least, int most);

/// "on" or "off".
std::optional<bool> switchOf(const QString &text);

/// Two bytes such as 5AA5, 5A,A5 or 0x5A,0xA5.
std::optional<StartBytes> startBytesOf(const QString &text);
