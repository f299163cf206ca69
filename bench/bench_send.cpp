#include "childprocess.h"
#include "figures.h"
#include "windowdriver.h"
#include "wirelateness.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>

#include <memory>
#include <vector>

// How late the loop's frames are, measured by another process at the far end of the wire that
// answers each of them, with the log on the screen; and beside it, in the same minute, those of a
// bare program that only sleeps and writes.

namespace {

constexpr int sendRows = 3;

constexpr PacedFrames sendTrials[] = {{1, 3000}, {10, 600}, {100, 120}};

void printLateness(const QString &whose, const QVector<qint64> &arrivals, int intervalMs,
                   double aimed99 = 0)
{
    const QVector<double> late = lateness(arrivals, intervalMs);
    printFigure(whose + ": lateness, median", median(late), "ms");
    printFigure(whose + ": lateness, 99th percentile", percentile(late, 0.99), "ms",
                aimed99 > 0 ? QString("< %1").arg(aimed99, 0, 'f', 3) : QString());
    printFigure(whose + ": lateness, worst", percentile(late, 1), "ms");
    printFigure(whose + ": gap, mean", meanGap(arrivals), "ms");
}

void startLoop(WindowDriver &window, int intervalMs)
{
    for (int row = 0; row < sendRows; ++row) {
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
    explicit Bench(PacedFrames its)
        : trial(its)
    {}

    PacedFrames trial;
    TestPort port;
    TestPort barePort;
    ChildProcess reader{[this] { return noteArrivals(port, trial, FarEnd::Answers); }};
    ChildProcess bareReader{[this] { return noteArrivals(barePort, trial, FarEnd::Reads); }};
    ChildProcess bareWriter{[this] { return writeFrames(barePort.path(), trial); }};
};

/// Returns the 99th percentile.
double measureBare(Bench &bench)
{
    const int intervalMs = bench.trial.intervalMs;
    bench.bareReader.start();
    bench.bareWriter.start();
    const QVector<qint64> arrivals = timesIn(bench.bareReader.result());
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
    const double seconds = secondsSince(timer);
    const double used = Usage::now().processorSeconds - before;
    printLateness("window", timesIn(bench.reader.result()), intervalMs, bare99 + allowance);
    printFigure("window: processor use", 100 * used / seconds, "%");
}

void measure(Bench &bench)
{
    printHeading(QString("send: %1 rows in the loop, interval %2 ms")
                     .arg(sendRows)
                     .arg(bench.trial.intervalMs));
    measureWindow(bench, measureBare(bench));
}

} // namespace

int main(int argc, char *argv[])
{
    // Processes are made before there are threads.
    std::vector<std::unique_ptr<Bench>> benches;
    for (const PacedFrames trial : sendTrials) {
        benches.push_back(std::make_unique<Bench>(trial));
    }
    const QApplication application(argc, argv);
    for (const auto &bench : benches) {
        measure(*bench);
    }
    return 0;
}
