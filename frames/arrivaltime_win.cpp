#include "frames/arrivaltime.h"
#include "frames/timeunits.h"

#include <windows.h>

namespace {

/// A file time counts 100 ns each since 1601 began.
constexpr qint64 fileTimesPerUs = 10;
constexpr qint64 usFrom1601To1970 = 11644473600000000;

qint64 systemTimeUs()
{
    FILETIME time{};
    GetSystemTimePreciseAsFileTime(&time);
    ULARGE_INTEGER count;
    count.LowPart = time.dwLowDateTime;
    count.HighPart = time.dwHighDateTime;
    return static_cast<qint64>(count.QuadPart) / fileTimesPerUs - usFrom1601To1970;
}

/// In two parts, since the count times 10^9 would not fit.
qint64 counterNs()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    const qint64 seconds = count.QuadPart / frequency.QuadPart;
    const qint64 rest = count.QuadPart % frequency.QuadPart;
    return seconds * nsPerSecond + rest * nsPerSecond / frequency.QuadPart;
}

} // namespace

ArrivalTime ArrivalTime::now()
{
    return {systemTimeUs(), counterNs()};
}
