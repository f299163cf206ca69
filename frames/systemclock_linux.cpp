#include "frames/systemclock.h"
#include "frames/timeunits.h"

#include <QSocketNotifier>

#include <algorithm>
#include <ctime>
#include <sys/timerfd.h>
#include <unistd.h>

namespace {

timespec toTimespec(qint64 ns)
{
    timespec time{};
    time.tv_sec = static_cast<time_t>(ns / nsPerSecond);
    time.tv_nsec = static_cast<decltype(time.tv_nsec)>(ns % nsPerSecond);
    return time;
}

class TimerClock : public AlarmClock
{
public:
    TimerClock()
        : m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC))
        , m_notifier(m_timer, QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, [this] { ring(); });
    }

    ~TimerClock() override
    {
        m_notifier.setEnabled(false);
        close(m_timer);
    }

    TimerClock(const TimerClock &) = delete;
    TimerClock &operator=(const TimerClock &) = delete;

    qint64 now() const override
    {
        timespec time{};
        clock_gettime(CLOCK_MONOTONIC, &time);
        return time.tv_sec * nsPerSecond + time.tv_nsec;
    }

    // A time of zero would switch the alarm off.
    void setAlarm(qint64 time) override { set(std::max<qint64>(1, time)); }

    void clearAlarm() override { set(0); }

private:
    void set(qint64 time) const
    {
        const itimerspec once{{}, toTimespec(time)};
        timerfd_settime(m_timer, TFD_TIMER_ABSTIME, &once, nullptr);
    }

    void ring()
    {
        quint64 count = 0;
        // There is nothing to read where the alarm has been set anew since it was noticed.
        if (read(m_timer, &count, sizeof count) == sizeof count) {
            emit rang();
        }
    }

    int m_timer;
    QSocketNotifier m_notifier;
};

} // namespace

std::unique_ptr<AlarmClock> makeSystemClock()
{
    return std::make_unique<TimerClock>();
}
