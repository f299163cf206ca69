#pragma once

#include "frames/timeunits.h"

#include <QtGlobal>

#include <algorithm>

/// When the next row is due. Each wait counts from what was planned, so that intervals don't drift;
/// where a row is late by more than an interval, the plan starts anew from there, so that the rows
/// behind it don't come in a burst. All times are in ns.
class Pace
{
public:
    void begin(qint64 now) { m_due = now; }

    qint64 due() const { return m_due; }

    /// A row goes out, and the next one is due after the interval. A row that nothing but the one
    /// before has held up was not late.
    void meet(qint64 now, int intervalMs, bool wasAwaited)
    {
        const qint64 interval = intervalMs * nsPerMs;
        const qint64 most = std::max(interval, wasAwaited ? nsPerMs : 0);
        if (now < m_due || now - m_due > most) {
            m_due = now;
        }
        m_due += interval;
    }

    /// Postpones the next row by that much, counted from `over` if the row before was done only
    /// then.
    void pause(qint64 over, int milliseconds)
    {
        m_due = std::max(m_due, over) + milliseconds * nsPerMs;
    }

private:
    qint64 m_due = 0;
};
