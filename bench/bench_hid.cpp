#include "fakehid.h"
#include "figures.h"
#include "frames/timeunits.h"
#include "hidwindow.h"
#include "log/receiver.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QTimer>

#include <malloc.h>
#include <random>

// What a HID device costs: how fast reports go out, how soon one that comes in is shown, what an
// open device uses while nothing happens, and what many connections leave behind. The HID library
// has a stand-in. Fails where a report is lost or out of order, or where a connection leaves
// something.

namespace {

const QByteArray smallPath = "bench#VID_EEEF&PID_1616";
const QByteArray largePath = "bench#VID_EEEF&PID_2929";

FakeHid &hid()
{
    return FakeHid::instance();
}

void attachDevices()
{
    hid().reset();
    hid().addDevice(smallPath, 0xEEEF, 0x1616);
    hid().addDevice(largePath, 0xEEEF, 0x2929);
}

bool fail(const QString &what)
{
    QTextStream(stdout) << "  FAILED: " << what << '\n';
    return false;
}

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Reports that tell their number.
QByteArray numberedReports(int count, int size)
{
    QByteArray block;
    for (int number = 0; number < count; ++number) {
        block += QByteArray::number(number).leftJustified(size, '.');
    }
    return block;
}

QByteArray blockOf(const QVector<QByteArray> &buffers)
{
    QByteArray block;
    for (const QByteArray &buffer : buffers) {
        block += buffer.mid(1);
    }
    return block;
}

/// From the hand-over of a block until its last report is written.
bool measureQueue(const QByteArray &path, int size, int reports, bool silent)
{
    attachDevices();
    if (!silent) {
        hid().readWithoutWaiting();
    }
    const QTemporaryDir folder;
    HidLink link(folder.filePath("hidDeviceID.ini"));
    link.readDeviceTypes();
    link.open(path, 0);
    const QByteArray block = numberedReports(reports, size);
    QElapsedTimer timer;
    timer.start();
    link.write(block);
    while (hid().count(HidCall::Function::Write) < reports) {
        QThread::msleep(5);
    }
    const double seconds = secondsSince(timer);
    printHeading(QString("hid: %1 reports of %2 bytes at once, to a device that %3")
                     .arg(reports)
                     .arg(size)
                     .arg(silent ? "is silent" : "answers at once"));
    printFigure("cycle", msPerSecond * seconds / reports, "ms",
                silent ? "up to 110 (its read waits 100)" : "10 (its pause), and little more");
    return blockOf(hid().written()) == block || fail("reports lost or out of order");
}

double processorShare(int milliseconds)
{
    const double before = Usage::now().processorSeconds;
    runFor(milliseconds);
    return 100 * msPerSecond * (Usage::now().processorSeconds - before) / milliseconds;
}

void measureIdling()
{
    constexpr int idleMs = 8000;
    attachDevices();
    HidWindow window;
    runFor(2000);
    printHeading("hid: processor use of a window that is left alone");
    printFigure("no device open", processorShare(idleMs), "%");
    window.openDevice(smallPath);
    printFigure("a silent device open", processorShare(idleMs), "%", "< 2");
}

/// The device sends at random moments; a report is shown when its row is in the log.
bool measureLatency()
{
    constexpr int reports = 200;
    constexpr int patienceMs = 1000;
    attachDevices();
    hid().stopRecording();
    HidWindow window;
    window.openDevice(largePath);
    QVector<double> milliseconds;
    QElapsedTimer sinceSent;
    QEventLoop shown;
    QObject::connect(window.window().findChild<Receiver *>(), &Receiver::frameReceived, &shown,
                     [&] {
                         milliseconds.append(millisecondsSince(sinceSent));
                         shown.quit();
                     });
    std::minstd_rand random(1);
    std::uniform_int_distribution<int> pauseMs(10, 90);
    const QByteArray frame = QByteArray::fromHex("5AA5050310000001");
    for (int i = 0; i < reports; ++i) {
        runFor(pauseMs(random));
        sinceSent.start();
        hid().sendReport(frame);
        QTimer::singleShot(patienceMs, &shown, &QEventLoop::quit);
        shown.exec();
    }
    printHeading(QString("hid: %1 reports at random, from the library to the log").arg(reports));
    printFigure("median", median(milliseconds), "ms");
    printFigure("99th percentile", percentile(milliseconds, 0.99), "ms");
    return milliseconds.size() == reports || fail("reports not shown");
}

/// Threads go by the name of their class.
int workers()
{
    int count = 0;
    for (const QString &task : QDir("/proc/self/task").entryList(QDir::Dirs)) {
        QFile name("/proc/self/task/" + task + "/comm");
        count += name.open(QIODevice::ReadOnly) && name.readAll() == "HidThread\n" ? 1 : 0;
    }
    return count;
}

double heapBytes()
{
    return static_cast<double>(mallinfo2().uordblks);
}

/// Some of the connections last until something has been received.
void connectTimes(HidWindow &window, int times)
{
    constexpr int everySoOften = 20;
    QEventLoop arrived;
    QObject::connect(window.window().findChild<HidLink *>(), &HidLink::arrived, &arrived,
                     &QEventLoop::quit);
    for (int i = 0; i < times; ++i) {
        window.call("on_pushButton_ConnectHID_clicked");
        if (i % everySoOften == 0) {
            hid().sendReport(QByteArray(8, '\0'));
            arrived.exec();
        }
        window.call("on_pushButton_ConnectHID_clicked");
        QCoreApplication::processEvents();
    }
}

bool measureConnections()
{
    constexpr int connections = 10000;
    attachDevices();
    hid().stopRecording();
    hid().readWithoutWaiting();
    HidWindow window;
    connectTimes(window, connections / 10);
    const double heapBefore = heapBytes();
    const double residentBefore = Usage::now().residentMiB;
    QElapsedTimer timer;
    timer.start();
    connectTimes(window, connections);
    const double seconds = secondsSince(timer);
    const double growth = heapBytes() - heapBefore;
    printHeading(QString("hid: %1 times connected and disconnected").arg(connections));
    printFigure("one connection", msPerSecond * seconds / connections, "ms");
    printFigure("heap that each leaves behind", growth / connections, "bytes", "0");
    printFigure("resident memory grows by", Usage::now().residentMiB - residentBefore, "MiB", "0");
    printFigure("threads left", workers(), "", "0");
    if (hid().openHandles() + hid().misuses() + workers() > 0) {
        return fail("a handle or thread is left, or a closed device was used");
    }
    return growth < connections || fail("the heap grows");
}

} // namespace

int main(int argc, char *argv[])
{
    constexpr int smallReport = 64;
    constexpr int largeReport = 512;
    constexpr int many = 1000;
    constexpr int some = 30;
    const QApplication application(argc, argv);
    bool good = measureQueue(smallPath, smallReport, many, false);
    good &= measureQueue(largePath, largeReport, many, false);
    good &= measureQueue(largePath, largeReport, some, true);
    measureIdling();
    good &= measureLatency();
    good &= measureConnections();
    return good ? 0 : 1;
}
