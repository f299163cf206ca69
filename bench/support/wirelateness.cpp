#include "wirelateness.h"

#include "frames/timeunits.h"

#include <algorithm>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

const QByteArray pacedFrame = QByteArray::fromHex("5aa5050310000000");

QByteArray asBytes(const QVector<qint64> &times)
{
    return {reinterpret_cast<const char *>(times.constData()),
            static_cast<int>(sizeof(qint64)) * times.size()};
}

qint64 nanoseconds(const timespec &time)
{
    return time.tv_sec * nsPerSecond + time.tv_nsec;
}

timespec later(const timespec &time, qint64 byNs)
{
    const qint64 ns = nanoseconds(time) + byNs;
    return {ns / nsPerSecond, ns % nsPerSecond};
}

qint64 monotonicNow()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return nanoseconds(now);
}

} // namespace

QByteArray noteArrivals(TestPort &port, PacedFrames frames, FarEnd farEnd)
{
    QVector<qint64> arrivals;
    while (arrivals.size() <= frames.gaps) {
        pollfd data{port.descriptor(), POLLIN, 0};
        poll(&data, 1, -1);
        const int complete = port.received().size() / pacedFrame.size();
        while (arrivals.size() < complete) {
            arrivals.append(monotonicNow());
            if (farEnd == FarEnd::Answers) {
                port.send(pacedFrame);
            }
        }
    }
    return asBytes(arrivals);
}

QByteArray writeFrames(const QString &port, PacedFrames frames)
{
    const int descriptor = open(port.toLocal8Bit().constData(), O_WRONLY | O_NOCTTY);
    QVector<qint64> times;
    timespec due{};
    clock_gettime(CLOCK_MONOTONIC, &due);
    while (times.size() <= frames.gaps) {
        due = later(due, frames.intervalMs * nsPerMs);
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &due, nullptr);
        times.append(monotonicNow());
        if (write(descriptor, pacedFrame.constData(), static_cast<size_t>(pacedFrame.size())) < 0) {
            break;
        }
    }
    close(descriptor);
    return asBytes(times);
}

QVector<qint64> timesIn(const QByteArray &noted)
{
    const auto *begin = reinterpret_cast<const qint64 *>(noted.constData());
    return {begin, begin + noted.size() / static_cast<int>(sizeof(qint64))};
}

QVector<double> lateness(const QVector<qint64> &times, int intervalMs)
{
    QVector<double> values;
    qint64 due = times.first();
    for (int i = 1; i < times.size(); ++i) {
        due += intervalMs * nsPerMs;
        const qint64 late = times.at(i) - due;
        values.append(static_cast<double>(std::max<qint64>(0, late)) / nsPerMs);
        if (late < 0 || late > nsPerMs) {
            due = times.at(i);
        }
    }
    return values;
}

double meanGap(const QVector<qint64> &times)
{
    return static_cast<double>(times.last() - times.first()) /
           (static_cast<double>(times.size() - 1) * nsPerMs);
}
