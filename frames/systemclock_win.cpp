#include "frames/arrivaltime.h"
#include "frames/systemclock.h"

#include <QWinEventNotifier>

#include <algorithm>
#include <windows.h>

namespace {

constexpr qint64 nsPerTick = 100;
/// CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which not all headers know.
constexpr DWORD highResolution = 2;

HANDLE createTimer()
{
    HANDLE timer = CreateWaitableTimerExW(nullptr, nullptr, highResolution, TIMER_ALL_ACCESS);
    // Older systems have only the usual kind.
    return timer != nullptr ? timer : CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
}

class WaitableTimerClock : public AlarmClock
{
public:
    WaitableTimerClock()
        : m_timer(createTimer())
        , m_notifier(m_timer)
    {
        connect(&m_notifier, &QWinEventNotifier::activated, this, [this] { ring(); });
    }

    ~WaitableTimerClock() override
    {
        m_notifier.setEnabled(false);
        CloseHandle(m_timer);
    }

    WaitableTimerClock(const WaitableTimerClock &) = delete;
    WaitableTimerClock &operator=(const WaitableTimerClock &) = delete;

    qint64 now() const override { return ArrivalTime::now().monotonicNs; }

    void setAlarm(qint64 time) override
    {
        m_isSet = true;
        m_time = time;
        const qint64 ticks = (time - now() + nsPerTick - 1) / nsPerTick;
        LARGE_INTEGER fromNow;
        fromNow.QuadPart = -std::max<qint64>(1, ticks);
        SetWaitableTimer(m_timer, &fromNow, 0, nullptr, nullptr, FALSE);
    }

    void clearAlarm() override
    {
        m_isSet = false;
        CancelWaitableTimer(m_timer);
    }

private:
    void ring()
    {
        if (!m_isSet) {
            return;
        }
        // It rang for an earlier alarm, or a little early.
        if (now() < m_time) {
            setAlarm(m_time);
            return;
        }
        m_isSet = false;
        emit rang();
    }

    HANDLE m_timer;
    QWinEventNotifier m_notifier;
    qint64 m_time = 0;
    bool m_isSet = false;
};

} // namespace

std::unique_ptr<AlarmClock> makeSystemClock()
{
    return std::make_unique<WaitableTimerClock>();
}
