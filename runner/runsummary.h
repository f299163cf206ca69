#pragma once

#include "frames/durations.h"

/// How a run went.
struct RunSummary
{
    qint64 rows = 0;
    qint64 sent = 0;
    qint64 replies = 0;
    qint64 failures = 0;
    /// Bytes that came in and form no frame.
    qint64 strayBytes = 0;
    Durations replyTimes;
    /// How late the rows went out that were due at a certain time.
    Durations lateness;
    bool isRealTime = false;
};

/// Why a run ended.
enum class RunEnd { Done, FailedFast, OutputLost, LinkLost, TimedOut, Interrupted, Terminated };
