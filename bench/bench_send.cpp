#include "childprocess.h"
#include "figures.h"
#include "windowdriver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>

#include <array>
#include <cmath>
#include <memory>
#include <poll.h>

// How well the loop keeps its interval, measured by another process at the far end of the wire.

namespace {

constexpr int rows = 3;
constexpr int frameLength = 8;

struct Trial
{
    int intervalMs;
    int gaps;
};

constexpr Trial trials[] = {{1, 3000}, {10, 600}, {100, 120}};

/// Notes when each frame is in, in ns of the monotonic clock.
QByteArray noteArrivals(TestPort &port, int frames)
{
    QVector<qint64> arrivals;
    QElapsedTimer clock;
    clock.start();
    while (arrivals.size() < frames) {
        pollfd data{port.descriptor(), POLLIN, 0};
        poll(&data, 1, -1);
        const int complete = port.received().size() / frameLength;
        while (arrivals.size() < complete) {
            arrivals.append(clock.nsecsElapsed());
        }
    }
    return {reinterpret_cast<const char *>(arrivals.constData()),
            static_cast<int>(sizeof(qint64)) * frames};
}

QVector<double> gapErrors(const QByteArray &result, int intervalMs)
{
    QVector<double> errors;
    const auto *arrivals = reinterpret_cast<const qint64 *>(result.constData());
    const int count = result.size() / static_cast<int>(sizeof(qint64));
    for (int i = 1; i < count; ++i) {
        const double gapMs = static_cast<double>(arrivals[i] - arrivals[i - 1]) / 1e6;
        errors.append(std::abs(gapMs - intervalMs));
    }
    return errors;
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

void measure(ChildProcess &reader, const TestPort &port, int intervalMs)
{
    WindowDriver window;
    window.open(port);
    reader.start();
    startLoop(window, intervalMs);
    const double before = Usage::now().processorSeconds;
    QElapsedTimer timer;
    timer.start();
    waitFor(reader);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    const double used = Usage::now().processorSeconds - before;
    const QVector<double> errors = gapErrors(reader.result(), intervalMs);
    const QString aim = intervalMs >= 10 ? QStringLiteral("< 1") : QString();
    printHeading(QString("send: %1 rows in the loop, interval %2 ms").arg(rows).arg(intervalMs));
    printFigure("error of a gap, median", median(errors), "ms");
    printFigure("error of a gap, 99th percentile", percentile(errors, 0.99), "ms", aim);
    printFigure("processor use", 100 * used / seconds, "%",
                intervalMs >= 100 ? QStringLiteral("< 2") : QString());
}

} // namespace

int main(int argc, char *argv[])
{
    std::array<TestPort, std::size(trials)> ports;
    QVector<std::shared_ptr<ChildProcess>> readers;
    for (size_t i = 0; i < ports.size(); ++i) {
        readers.append(std::make_shared<ChildProcess>(
            [&, i] { return noteArrivals(ports.at(i), trials[i].gaps + 1); }));
    }
    const QApplication application(argc, argv);
    for (size_t i = 0; i < ports.size(); ++i) {
        measure(*readers[static_cast<int>(i)], ports.at(i), trials[i].intervalMs);
    }
    return 0;
}
