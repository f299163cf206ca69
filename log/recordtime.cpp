#include "recordtime.h"

#include <chrono>

RecordTime recordTimeNow()
{
    using namespace std::chrono;
    const auto utc = system_clock::now().time_since_epoch();
    const auto monotonic = steady_clock::now().time_since_epoch();
    return {duration_cast<microseconds>(utc).count(),
            duration_cast<nanoseconds>(monotonic).count()};
}
