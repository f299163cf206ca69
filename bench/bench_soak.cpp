#include "childprocess.h"
#include "figures.h"
#include "framepatience.h"
#include "frames/sender.h"
#include "log/receiver.h"
#include "windowdriver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <poll.h>

// A day of the loop in small: frames go out through a pseudo-terminal, come back from another
// process, and all pass through the log. Fails where a frame does not come back.

namespace {

constexpr int soakRows = 200;
constexpr int settled = 10000;
constexpr int enough = 1000000;

QByteArray echo(TestPort &port)
{
    int echoed = 0;
    while (true) {
        pollfd data{port.descriptor(), POLLIN, 0};
        poll(&data, 1, -1);
        const QByteArray all = port.received();
        port.send(all.mid(echoed));
        echoed = all.size();
    }
}

void startLoop(WindowDriver &window)
{
    QVector<CommandRow> commands(soakRows);
    for (int row = 0; row < soakRows; ++row) {
        commands[row].selected = true;
        commands[row].cmd = QStringLiteral("03");
        commands[row].addr = QStringLiteral("10 00");
        commands[row].data = QString("00 %1").arg(row, 2, 16, QLatin1Char('0'));
    }
    window.window().findChild<CommandTable *>()->replaceRows(commands);
    window.edit("lineEdit_StepValue")->setText(QStringLiteral("0"));
    window.edit("lineEdit_CycleTime")->setText(QStringLiteral("1"));
    window.click("pushButton_Start_Loop");
}

struct EchoTally
{
    int sent = 0;
    int received = 0;
    int stray = 0;

    explicit EchoTally(const QObject &window)
    {
        const auto *sender = window.findChild<Sender *>();
        const auto *receiver = window.findChild<Receiver *>();
        QObject::connect(sender, &Sender::sent, [this] { ++sent; });
        QObject::connect(receiver, &Receiver::frameReceived, [this] { ++received; });
        QObject::connect(receiver, &Receiver::strayReceived, [this] { ++stray; });
    }

    int sum() const { return sent + received; }
    bool allIsBack() const { return received == sent; }
};

template<typename Condition>
bool runUntil(Condition condition, qint64 limitMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < limitMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    return condition();
}

} // namespace

int main(int argc, char *argv[])
{
    constexpr qint64 longestMs = 300000;
    TestPort port;
    ChildProcess device([&port] { return echo(port); });
    const QApplication application(argc, argv);
    const MessageBoxes boxes;
    WindowDriver window;
    window.open(port);
    const EchoTally tally(window.window());
    device.start();
    startLoop(window);
    QElapsedTimer timer;
    timer.start();
    runUntil([&] { return tally.sum() >= settled; }, longestMs);
    const double early = Usage::now().residentMiB;
    runUntil([&] { return tally.sum() >= enough || !boxes.texts().isEmpty(); }, longestMs);
    const double late = Usage::now().residentMiB;
    const double seconds = secondsSince(timer);
    window.click("pushButton_Start_Loop");
    runUntil([&] { return tally.allIsBack(); }, framePatienceMs);

    printHeading(
        QString("soak: %1 frames sent and %2 received").arg(tally.sent).arg(tally.received));
    printFigure("frames through the log", tally.sum() / seconds, "1/s");
    printFigure("resident memory after 10000 frames", early, "MiB");
    printFigure("growth until the end", late - early, "MiB", "< 2");
    if (tally.sum() < enough || !tally.allIsBack() || tally.stray > 0) {
        QTextStream(stdout) << "  LOST: " << tally.sent - tally.received << " frames, "
                            << tally.stray << " stray; " << boxes.texts().join(' ') << '\n';
        return 1;
    }
    return 0;
}
