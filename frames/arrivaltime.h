#pragma once

#include <QMetaType>

/// When bytes were read from the system.
struct ArrivalTime
{
    /// In µs since 1970 began, UTC. It is the system's clock, which somebody may set back.
    qint64 utcUs = 0;
    /// In ns since a moment that stays the same while the system runs. It never goes back.
    qint64 monotonicNs = 0;

    /// Both clocks as they are now; to be asked from any thread.
    static ArrivalTime now();
};

Q_DECLARE_METATYPE(ArrivalTime)
