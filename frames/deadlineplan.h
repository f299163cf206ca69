#pragma once

#include "frames/timeunits.h"

#include <QtGlobal>

/// When the next step is due. Each wait counts from the time that was planned for the step before
/// it, not from the time it was really taken, so that intervals don't drift. All times are in ns.
class DeadlinePlan
{
public:
    qint64 due() const { return m_due; }

    /// A step has been taken. One that comes early, or late by more than a millisecond, starts the
    /// plan anew from there, so that the steps behind it don't bunch.
    void meet(qint64 now)
    {
        if (now < m_due || now - m_due > latest) {
            m_due = now;
        }
    }

    /// Puts the next step off.
    void wait(int milliseconds) { m_due += milliseconds * nsPerMs; }

private:
    static constexpr qint64 latest = nsPerMs;

    qint64 m_due = 0;
};
