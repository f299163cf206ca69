#include "frames/arrivaltime.h"
#include "frames/timeunits.h"

#include <ctime>

namespace {

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
