#include "figures.h"

#include "frames/timeunits.h"

#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr double bytesPerMiB = 1024.0 * 1024.0;
constexpr double kilobytesPerMiB = 1024.0;

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / usPerSecond;
}

double residentBytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> pages = statm.readAll().split(' ');
    return pages.value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

} // namespace

Usage Usage::now()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime), residentBytes() / bytesPerMiB,
            static_cast<double>(usage.ru_maxrss) / kilobytesPerMiB};
}

double percentile(QVector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values.at(static_cast<int>(share * (values.size() - 1)));
}

double median(const QVector<double> &values)
{
    return percentile(values, 0.5);
}

double secondsSince(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / nsPerSecond;
}

double millisecondsSince(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / nsPerMs;
}

double medianSeconds(const std::function<void()> &work, int runs)
{
    QVector<double> times;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.append(secondsSince(timer));
    }
    return median(times);
}

void printHeading(const QString &text)
{
    QTextStream(stdout) << '\n' << text << '\n';
}

void printFigure(const QString &what, double value, const QString &unit, const QString &aim)
{
    const int decimals = value >= 1000 ? 0 : value >= 100 ? 1 : 3;
    const QString line = QStringLiteral("  %1 %2 %3 %4")
                             .arg(what, -44)
                             .arg(value, 12, 'f', decimals)
                             .arg(unit, -9)
                             .arg(aim.isEmpty() ? QString() : QStringLiteral("aim: ") + aim);
    QTextStream(stdout) << line.trimmed().prepend(QStringLiteral("  ")) << '\n';
}
