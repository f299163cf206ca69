#include "frames/arrivaltime.h"

#include <ctime>

namespace {

constexpr qint64 nsPerSecond = 1000000000;
constexpr qint64 nsPerUs = 1000;

qint64 nsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec * nsPerSecond + time.tv_nsec;
}

} // namespace

ArrivalTime ArrivalTime::now()
{
    return {nsOf(CLOCK_REALTIME) / nsPerUs, nsOf(CLOCK_MONOTONIC)};
}
