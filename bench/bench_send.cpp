#include "childprocess.h"
#include "figures.h"
#include "windowdriver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>

#include <algorithm>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <unistd.h>
#include <vector>

// How late the loop's frames are, measured by another process at the far end of the wire that
// answers each of them, with the log on the screen; and beside it, in the same minute, those of a
// bare program that only sleeps and writes.

namespace {

constexpr int rows = 3;
constexpr qint64 nsPerMs = 1000000;
constexpr qint64 nsPerSecond = 1000000000;
const QByteArray frame = QByteArray::fromHex("5aa5050310000000");

struct Trial
{
    int intervalMs;
    int gaps;
};

constexpr Trial trials[] = {{1, 3000}, {10, 600}, {100, 120}};

/// Notes when each frame is in, in ns of the monotonic clock, and answers it.
QByteArray noteArrivals(TestPort &port, int frames, bool answers)
{
    QVector<qint64> arrivals;
    QElapsedTimer clock;
    clock.start();
    while (arrivals.size() < frames) {
        pollfd data{port.descriptor(), POLLIN, 0};
        poll(&data, 1, -1);
        const int complete = port.received().size() / frame.size();
        while (arrivals.size() < complete) {
            arrivals.append(clock.nsecsElapsed());
            if (answers) {
                port.send(frame);
            }
        }
    }
    return {reinterpret_cast<const char *>(arrivals.constData()),
            static_cast<int>(sizeof(qint64)) * frames};
}

/// The bare program: writes frames to a port at times planned ahead.
QByteArray writeFrames(const QString &port, Trial trial)
{
    const int descriptor = open(port.toLocal8Bit().constData(), O_WRONLY | O_NOCTTY);
    timespec due{};
    clock_gettime(CLOCK_MONOTONIC, &due);
    for (int i = 0; i <= trial.gaps; ++i) {
        const qint64 ns = due.tv_nsec + trial.intervalMs * nsPerMs;
        due.tv_sec += ns / nsPerSecond;
        due.tv_nsec = ns % nsPerSecond;
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &due, nullptr);
        if (write(descriptor, frame.constData(), static_cast<size_t>(frame.size())) < 0) {
            break;
        }
    }
    close(descriptor);
    return {};
}

QVector<qint64> arrivalsOf(const QByteArray &result)
{
    const auto *begin = reinterpret_cast<const qint64 *>(result.constData());
    return {begin, begin + result.size() / static_cast<int>(sizeof(qint64))};
}

/// How late each frame is by a plan that starts anew where one is late by more than a millisecond,
/// in ms.
QVector<double> lateness(const QVector<qint64> &arrivals, int intervalMs)
{
    QVector<double> values;
    qint64 due = arrivals.first();
    for (int i = 1; i < arrivals.size(); ++i) {
        due += intervalMs * nsPerMs;
        const qint64 late = arrivals.at(i) - due;
        values.append(static_cast<double>(std::max<qint64>(0, late)) / nsPerMs);
        if (late < 0 || late > nsPerMs) {
            due = arrivals.at(i);
        }
    }
    return values;
}

void printLateness(const QString &whose, const QVector<qint64> &arrivals, int intervalMs,
                   double aimed99 = 0)
{
    const QVector<double> late = lateness(arrivals, intervalMs);
    const double meanGap = static_cast<double>(arrivals.last() - arrivals.first()) /
                           (static_cast<double>(arrivals.size() - 1) * nsPerMs);
    printFigure(whose + ": lateness, median", median(late), "ms");
    printFigure(whose + ": lateness, 99th percentile", percentile(late, 0.99), "ms",
                aimed99 > 0 ? QString("< %1").arg(aimed99, 0, 'f', 3) : QString());
    printFigure(whose + ": lateness, worst", percentile(late, 1), "ms");
    printFigure(whose + ": gap, mean", meanGap, "ms");
}

void startLoop(WindowDriver &window, int intervalMs)
{
    for (int row = 0; row < rows; ++row) {
        window.setRow(row, QStringLiteral("03"), QStringLiteral("10 00"),
                      QString("00 0%1").arg(row));
        window.checkRow(row);
    }
    window.edit("lineEdit_StepValue")->setText(QString::number(intervalMs));
    window.edit("lineEdit_CycleTime")->setText(QStringLiteral("0"));
    window.click("pushButton_Start_Loop");
}

void waitFor(const ChildProcess &child)
{
    QEventLoop loop;
    const QSocketNotifier done(child.resultDescriptor(), QSocketNotifier::Read);
    QObject::connect(&done, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
    loop.exec();
}

/// One interval's far ends, with and without answers, and its bare program.
struct Bench
{
    explicit Bench(Trial its)
        : trial(its)
    {}

    Trial trial;
    TestPort port;
    TestPort barePort;
    ChildProcess reader{[this] { return noteArrivals(port, trial.gaps + 1, true); }};
    ChildProcess bareReader{[this] { return noteArrivals(barePort, trial.gaps + 1, false); }};
    ChildProcess bareWriter{[this] { return writeFrames(barePort.path(), trial); }};
};

/// Returns the 99th percentile.
double measureBare(Bench &bench)
{
    const int intervalMs = bench.trial.intervalMs;
    bench.bareReader.start();
    bench.bareWriter.start();
    const QVector<qint64> arrivals = arrivalsOf(bench.bareReader.result());
    printLateness("bare", arrivals, intervalMs);
    return percentile(lateness(arrivals, intervalMs), 0.99);
}

void measureWindow(Bench &bench, double bare99)
{
    constexpr double allowance = 0.5;
    const int intervalMs = bench.trial.intervalMs;
    WindowDriver window;
    window.open(bench.port);
    bench.reader.start();
    startLoop(window, intervalMs);
    const double before = Usage::now().processorSeconds;
    QElapsedTimer timer;
    timer.start();
    waitFor(bench.reader);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / nsPerSecond;
    const double used = Usage::now().processorSeconds - before;
    printLateness("window", arrivalsOf(bench.reader.result()), intervalMs, bare99 + allowance);
    printFigure("window: processor use", 100 * used / seconds, "%");
}

void measure(Bench &bench)
{
    printHeading(
        QString("send: %1 rows in the loop, interval %2 ms").arg(rows).arg(bench.trial.intervalMs));
    measureWindow(bench, measureBare(bench));
}

} // namespace

int main(int argc, char *argv[])
{
    // Processes are made before there are threads.
    std::vector<std::unique_ptr<Bench>> benches;
    for (const Trial trial : trials) {
        benches.push_back(std::make_unique<Bench>(trial));
    }
    const QApplication application(argc, argv);
    for (const auto &bench : benches) {
        measure(*bench);
    }
    return 0;
}
