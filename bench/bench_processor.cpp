#include "childprocess.h"
#include "figures.h"
#include "framepatience.h"
#include "frames/timeunits.h"
#include "log/receiver.h"
#include "windowdriver.h"

#include <QApplication>
#include <QElapsedTimer>

#include <chrono>
#include <thread>

// What a steady stream of frames costs in processor time: another process pushes them one by one
// into a pseudo-terminal, the window shows each. Read it beside what a plain terminal program takes
// for the same stream on the same screen.

namespace {

constexpr int figureSeconds = 10;

struct SteadyStream
{
    int framesPerSecond;
    const char *aim;
};

constexpr SteadyStream steadyStreams[] = {{10, "< 3.5"}, {100, "< 7.2"}, {1000, "< 16.5"}};

QByteArray pushSteadily(const TestPort &port, int framesPerSecond)
{
    const QByteArray frame = QByteArray::fromHex("5AA5080310000000000077");
    const auto step = std::chrono::nanoseconds(std::chrono::seconds(1)) / framesPerSecond;
    auto next = std::chrono::steady_clock::now();
    for (int sent = 0; sent < figureSeconds * framesPerSecond; ++sent) {
        port.send(frame);
        next += step;
        std::this_thread::sleep_until(next);
    }
    return {};
}

void measure(ChildProcess &writer, WindowDriver &window, const TestPort &port,
             const SteadyStream &stream)
{
    const int frames = figureSeconds * stream.framesPerSecond;
    int received = 0;
    const auto connection = QObject::connect(window.window().findChild<Receiver *>(),
                                             &Receiver::frameReceived, [&received] { ++received; });
    window.open(port);
    QCoreApplication::processEvents();
    const Usage before = Usage::now();
    QElapsedTimer timer;
    timer.start();
    writer.start();
    while (received < frames && timer.elapsed() < figureSeconds * msPerSecond + framePatienceMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const double elapsed = secondsSince(timer);
    const double used = Usage::now().processorSeconds - before.processorSeconds;
    QObject::disconnect(connection);
    window.click("pushButton_OpenCom");
    printFigure(QString("%1 frames/s").arg(received / elapsed, 0, 'f', 1), 100 * used / elapsed,
                "% of a core", stream.aim);
}

} // namespace

int main(int argc, char *argv[])
{
    const TestPort port;
    std::vector<std::unique_ptr<ChildProcess>> writers;
    for (const SteadyStream &stream : steadyStreams) {
        writers.push_back(std::make_unique<ChildProcess>(
            [&port, &stream] { return pushSteadily(port, stream.framesPerSecond); }));
    }
    const QApplication application(argc, argv);
    WindowDriver window;
    printHeading(QString("processor: frames of 11 bytes, %1 s a figure").arg(figureSeconds));
    auto writer = writers.begin();
    for (const SteadyStream &stream : steadyStreams) {
        measure(**writer++, window, port, stream);
    }
    return 0;
}
