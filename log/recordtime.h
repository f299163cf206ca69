#pragma once

#include <QtGlobal>

/// A moment on two clocks: in us since the beginning of 1970 (UTC), and in ns on the clock that
/// never goes back.
struct RecordTime
{
    qint64 utcUs = 0;
    qint64 monotonicNs = 0;
};

/// The time now.
RecordTime recordTimeNow();
