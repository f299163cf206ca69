#pragma once

#include "frames/alarmclock.h"
#include "frames/timeunits.h"

#include <algorithm>
#include <optional>

/// A clock that a test moves on.
class HandClock : public AlarmClock
{
public:
    qint64 now() const override { return m_now; }
    void setAlarm(qint64 time) override { m_alarm = time; }
    void clearAlarm() override { m_alarm.reset(); }

    /// Moves on by that many ns; the alarm rings on the way, as often as it is set.
    void advanceNs(qint64 ns)
    {
        const qint64 end = m_now + ns;
        while (m_alarm && *m_alarm <= end) {
            m_now = std::max(m_now, *m_alarm);
            ring();
        }
        m_now = std::max(m_now, end);
    }
    void advance(int milliseconds) { advanceNs(milliseconds * nsPerMs); }

    /// Moves on while the event loop is held up: the alarm is silent.
    void holdUpNs(qint64 ns) { m_now += ns; }
    void holdUp(int milliseconds) { holdUpNs(milliseconds * nsPerMs); }

private:
    void ring()
    {
        m_alarm.reset();
        emit rang();
    }

    qint64 m_now = nsPerSecond;
    std::optional<qint64> m_alarm;
};
