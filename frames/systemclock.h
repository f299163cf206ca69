#pragma once

#include "frames/alarmclock.h"

#include <memory>

/// The system's monotonic clock, the one of ArrivalTime. Its alarm is an event like any other,
/// exact to a fraction of a millisecond, so that nobody has to sleep or spin for the rest of a
/// wait.
std::unique_ptr<AlarmClock> makeSystemClock();
