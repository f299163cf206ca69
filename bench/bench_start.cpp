#include "figures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <optional>
#include <unistd.h>

// How long the program takes from its start to a window on the screen, and what it holds while
// idle. It looks at the screen itself: nothing else may be on it.

namespace {

constexpr int startRuns = 11;
constexpr int startPatienceMs = 10000;
constexpr unsigned long idleMs = 2000;

bool somethingIsPainted(QScreen &screen)
{
    const QPoint centre = screen.geometry().center();
    const QImage spot = screen.grabWindow(0, centre.x(), centre.y(), 1, 1).toImage();
    return !spot.isNull() && spot.pixelColor(0, 0) != Qt::black;
}

double residentMiB(qint64 process)
{
    QFile statm(QString("/proc/%1/statm").arg(process));
    if (!statm.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const double pages = statm.readAll().split(' ').value(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

template<typename Condition>
bool waitUntil(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < startPatienceMs) {
        QThread::usleep(500);
    }
    return condition();
}

void end(QProcess &program, QScreen &screen)
{
    program.terminate();
    program.waitForFinished();
    waitUntil([&screen] { return !somethingIsPainted(screen); });
}

/// Milliseconds; nothing where no window came up.
std::optional<double> startToPaint(QProcess &program, QScreen &screen)
{
    QElapsedTimer timer;
    timer.start();
    program.start(QStringLiteral(TARNWICK_PROGRAM), QStringList());
    if (!waitUntil([&screen] { return somethingIsPainted(screen); })) {
        return std::nullopt;
    }
    return millisecondsSince(timer);
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QScreen &screen = *QGuiApplication::primaryScreen();
    QVector<double> times;
    double idle = 0;
    for (int run = 0; run < startRuns; ++run) {
        QProcess program;
        const std::optional<double> ms = startToPaint(program, screen);
        if (!ms) {
            qFatal("No window came up.");
        }
        times.append(*ms);
        if (run == 0) {
            QThread::msleep(idleMs);
            idle = residentMiB(program.processId());
        }
        end(program, screen);
    }
    printHeading(QString("start: %1 times, on a virtual display").arg(startRuns));
    printFigure("start to painted window, median", median(times), "ms", "< 300");
    printFigure("start to painted window, slowest", percentile(times, 1), "ms");
    printFigure("resident memory, idle", idle, "MiB", "< 60");
    return 0;
}
