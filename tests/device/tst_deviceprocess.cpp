#include "deviceparser.h"
#include "framebuilder.h"
#include "runningdevice.h"

#include <QFileInfo>
#include <QtEndian>
#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>

namespace {

constexpr StartBytes defaultHeader{0x5A, 0xA5};

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

QByteArray frame(const QByteArray &payload, bool withCrc = false)
{
    FrameLayout layout;
    layout.startBytes = defaultHeader;
    layout.withCrc = withCrc;
    return frameOfPayload(payload, layout);
}

QByteArray ask(RunningDevice &device, const QByteArray &request, int replySize)
{
    device.write(request);
    return device.read(replySize);
}

/// Reads frames until there are so many; fewer if the device stays silent.
QVector<QByteArray> readPayloads(RunningDevice &device, int count)
{
    DeviceParser parser(defaultHeader, false);
    QVector<QByteArray> payloads;
    while (payloads.size() < count) {
        const QByteArray bytes = device.read(1);
        if (bytes.isEmpty()) {
            break;
        }
        payloads += parser.take(bytes);
    }
    return payloads;
}

quint32 counterOf(const QByteArray &status)
{
    return qFromBigEndian<quint32>(status.constData() + 3);
}

bool isStatus(const QByteArray &payload)
{
    return payload.size() == 7 && payload.startsWith(hex("530000"));
}

} // namespace

class TestDeviceProcess : public QObject
{
    Q_OBJECT

private slots:
    void publishesAndPrintsItsPort();
    void makesTheFolder();
    void removesThePortWhenTold_data();
    void removesThePortWhenTold();
    void leavesAPortThatIsNotItsOwn();
    void replacesALeftBehindLink();
    void takesOverFromADeviceThatDied();
    void refusesTheNameOfARunningDevice();
    void refusesToReplaceAFile();
    void wrongOptionsEndIt_data();
    void wrongOptionsEndIt();
    void printsHelp();

    void answersRequests_data();
    void answersRequests();
    void recoversWhenTheLineGoesQuiet();
    void understandsTheLongForm();
    void garbageComesBeforeEachNthFrame();
    void piecesArriveInOrder();
    void statusFramesHaveNoGaps();
    void sendsNoStatusWhileNobodyListens();
    void isMute();
    void delaysReplies();
    void keepsNothingForTheNextListener();
    void portIsFreeAfterAListenerThatDied();
    void dropsWholeFramesWhenNobodyReads();
    void restsWhileIdle_data();
    void restsWhileIdle();
};

void TestDeviceProcess::publishesAndPrintsItsPort()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    QCOMPARE(device.printedPath(), device.folder() + "/simulated");
    const QFileInfo link(device.printedPath());
    QVERIFY(link.isSymLink());
    QVERIFY(link.symLinkTarget().startsWith("/dev/pts/"));
    QVERIFY(device.openPort());
}

void TestDeviceProcess::makesTheFolder()
{
    RunningDevice device;
    const QString folder = device.folder() + "/new/ports";
    QVERIFY(device.start({"--ports", folder, "--name", "other"}));
    QCOMPARE(device.printedPath(), folder + "/other");
}

void TestDeviceProcess::removesThePortWhenTold_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestDeviceProcess::removesThePortWhenTold()
{
    QFETCH(int, signal);
    RunningDevice device;
    QVERIFY(device.start());
    ::kill(static_cast<pid_t>(device.process().processId()), signal);
    QVERIFY(device.process().waitForFinished());
    QCOMPARE(device.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(device.process().exitCode(), 0);
    const QDir folder(device.folder());
    QCOMPARE(
        folder.entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList());
}

void TestDeviceProcess::leavesAPortThatIsNotItsOwn()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    QVERIFY(QFile::remove(device.printedPath()));
    QVERIFY(QFile::link("/dev/null", device.printedPath()));
    device.process().terminate();
    QVERIFY(device.process().waitForFinished());
    QCOMPARE(QFile::symLinkTarget(device.printedPath()), QString("/dev/null"));
}

void TestDeviceProcess::replacesALeftBehindLink()
{
    RunningDevice device;
    QVERIFY(QFile::link("/dev/pts/nobody", device.folder() + "/simulated"));
    QVERIFY(device.start());
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
}

void TestDeviceProcess::takesOverFromADeviceThatDied()
{
    RunningDevice first;
    QVERIFY(first.startOnly());
    first.process().kill();
    QVERIFY(first.process().waitForFinished());
    QVERIFY(QFileInfo(first.printedPath()).isSymLink());

    RunningDevice second;
    QVERIFY(second.start({"--ports", first.folder()}));
    QCOMPARE(second.printedPath(), first.printedPath());
    QCOMPARE(ask(second, frame("B"), 4), frame("B"));
}

void TestDeviceProcess::refusesTheNameOfARunningDevice()
{
    RunningDevice first;
    QVERIFY(first.start());
    RunningDevice second;
    QVERIFY(!second.startOnly({"--ports", first.folder()}));
    QCOMPARE(second.process().exitCode(), 1);
    QVERIFY(second.process().readAllStandardError().contains("running device"));
    QCOMPARE(ask(first, frame("B"), 4), frame("B"));

    RunningDevice third;
    QVERIFY(third.start({"--ports", first.folder(), "--name", "another"}));
    QCOMPARE(ask(third, frame("B"), 4), frame("B"));
}

void TestDeviceProcess::refusesToReplaceAFile()
{
    RunningDevice device;
    const QString path = device.folder() + "/simulated";
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(!device.startOnly());
    QCOMPARE(device.process().exitCode(), 1);
    QVERIFY(device.process().readAllStandardError().contains(path.toLocal8Bit()));
    QVERIFY(QFileInfo(path).isFile());
}

void TestDeviceProcess::wrongOptionsEndIt_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("unknown") << QStringList{"--loud"};
    QTest::newRow("wrong value") << QStringList{"--header", "5A"};
    QTest::newRow("wrong value despite --help") << QStringList{"--help", "--delay", "x"};
    QTest::newRow("argument") << QStringList{"stray"};
}

void TestDeviceProcess::wrongOptionsEndIt()
{
    QFETCH(QStringList, options);
    RunningDevice device;
    QVERIFY(!device.startOnly(options));
    QCOMPARE(device.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(device.process().exitCode(), 2);
    QVERIFY(device.process().readAllStandardError().startsWith("tarnwick-device: "));
    QCOMPARE(device.process().readAllStandardOutput(), QByteArray());
}

void TestDeviceProcess::printsHelp()
{
    RunningDevice device;
    QVERIFY(device.startOnly({"--help"}));
    QVERIFY(device.process().waitForFinished());
    QCOMPARE(device.process().exitCode(), 0);
    QVERIFY(device.process().readAllStandardOutput().contains("--chatter"));
    QVERIFY(QDir(device.folder()).isEmpty());
}

void TestDeviceProcess::answersRequests_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char *name, const QStringList &options, const char *request,
                        const char *expected) {
        QTest::newRow(name) << options << hex(request) << hex(expected);
    };
    row("read", {}, "5AA5 05 0300100002", "5AA5 07 03000200100011");
    row("write, then read", {}, "5AA5 05 100010ABCD 5AA5 05 0300100001",
        "5AA5 05 1000100001 5AA5 05 030001ABCD");
    row("echo", {}, "5AA5 04 42010203", "5AA5 04 42010203");
    row("unknown", {}, "5AA5 01 07", "5AA5 02 8701");
    row("bytes of terminal control", {}, "5AA5 07 42030A0D111304", "5AA5 07 42030A0D111304");
    row("behind rubbish", {}, "0D0A A5 5A 5AA5 02 4201", "5AA5 02 4201");
    row("CRC", {"--crc"}, "5AA5 07 0300000001 A1C0", "5AA5 07 0300010000 31C0");
    row("wrong CRC, then a good one", {"--crc"}, "5AA5 03 42FFFF 5AA5 03 423F71", "5AA5 03 423F71");
    row("header", {"--header", "12,34"}, "5AA5 02 4201 1234 02 4202", "1234 02 4202");
}

void TestDeviceProcess::answersRequests()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, expected);
    RunningDevice device;
    QVERIFY(device.start(options));
    const QByteArray reply = ask(device, request, expected.size()) + device.readUntilQuiet();
    QCOMPARE(reply.toHex(' '), expected.toHex(' '));
}

void TestDeviceProcess::recoversWhenTheLineGoesQuiet()
{
    RunningDevice device;
    QVERIFY(device.start());
    const QByteArray request = hex("5AA5 02 4201");
    QCOMPARE(ask(device, hex("5AA5 FF") + request, request.size()), request);
    QCOMPARE(ask(device, request, request.size()), request);
}

void TestDeviceProcess::understandsTheLongForm()
{
    RunningDevice device;
    QVERIFY(device.start());
    const QByteArray request = frame(hex("10 0000") + QByteArray(30000, '\x21'));
    QCOMPARE(request.mid(2, 3), hex("007533"));
    QCOMPARE(ask(device, request, 8), frame(hex("10 0000 3A98")));
}

void TestDeviceProcess::garbageComesBeforeEachNthFrame()
{
    RunningDevice device;
    QVERIFY(device.start({"--garbage", "3", "--seed", "9"}));
    const QByteArray reply = frame("B");
    int withGarbage = 0;
    for (int i = 1; i <= 30; ++i) {
        device.write(frame("B"));
        QByteArray bytes = device.read(reply.size());
        while (!bytes.contains(reply)) {
            const QByteArray more = device.read(1);
            QVERIFY(!more.isEmpty());
            bytes += more;
        }
        QVERIFY(bytes.endsWith(reply));
        QCOMPARE(bytes.size() > reply.size(), i % 3 == 0);
        withGarbage += bytes.size() > reply.size() ? 1 : 0;
    }
    QCOMPARE(withGarbage, 10);
}

void TestDeviceProcess::piecesArriveInOrder()
{
    RunningDevice device;
    QVERIFY(device.start({"--split", "--chatter", "300"}));
    QByteArray requests;
    QVector<QByteArray> sent;
    for (char i = 0; i < 40; ++i) {
        sent.append(QByteArray("B") + QByteArray(20, i));
        requests += frame(sent.last());
    }
    device.write(requests);
    QVector<QByteArray> echoes;
    DeviceParser parser(defaultHeader, false);
    while (echoes.size() < sent.size()) {
        const QByteArray bytes = device.read(1);
        QVERIFY(!bytes.isEmpty());
        for (const QByteArray &payload : parser.take(bytes)) {
            if (!isStatus(payload)) {
                echoes.append(payload);
            }
        }
    }
    QCOMPARE(echoes, sent);
}

void TestDeviceProcess::statusFramesHaveNoGaps()
{
    RunningDevice device;
    QVERIFY(device.start({"--chatter", "500", "--garbage", "2"}));
    const QVector<QByteArray> statuses = readPayloads(device, 300);
    QVERIFY(statuses.size() >= 300);
    for (int i = 0; i < statuses.size(); ++i) {
        QVERIFY(isStatus(statuses.at(i)));
        QCOMPARE(counterOf(statuses.at(i)), static_cast<quint32>(i));
    }
}

void TestDeviceProcess::sendsNoStatusWhileNobodyListens()
{
    RunningDevice device;
    QVERIFY(device.start({"--chatter", "1000"}));
    quint32 next = counterOf(readPayloads(device, 100).last()) + 1;
    device.closePort();
    // Time for many frames.
    QThread::msleep(1500);
    QVERIFY(device.openPort());
    const QVector<QByteArray> statuses = readPayloads(device, 100);
    QVERIFY(statuses.size() >= 100);
    // What was sent but not read before the port was closed is lost; the silence is not counted.
    QVERIFY(counterOf(statuses.first()) >= next);
    QVERIFY(counterOf(statuses.first()) < next + 1000);
    next = counterOf(statuses.first());
    for (const QByteArray &status : statuses) {
        QCOMPARE(counterOf(status), next++);
    }
}

void TestDeviceProcess::isMute()
{
    RunningDevice device;
    QVERIFY(device.start({"--mute", "--chatter", "200"}));
    device.write(frame("B") + frame(hex("0300000001")));
    for (const QByteArray &payload : readPayloads(device, 40)) {
        QVERIFY(isStatus(payload));
    }
}

void TestDeviceProcess::delaysReplies()
{
    RunningDevice device;
    QVERIFY(device.start({"--delay", "200"}));
    QElapsedTimer clock;
    clock.start();
    device.write(frame("B1") + frame("B2"));
    QCOMPARE(device.read(10), frame("B1") + frame("B2"));
    QVERIFY(clock.elapsed() >= 199);
}

void TestDeviceProcess::keepsNothingForTheNextListener()
{
    RunningDevice device;
    QVERIFY(device.start());
    device.write(frame("B1"));
    QVERIFY(device.waitForBytes());
    const auto unreadOnceOpenedAgain = [&device] {
        device.closePort();
        return device.openPort() ? device.unreadBytes() : -1;
    };
    QTRY_COMPARE(unreadOnceOpenedAgain(), 0);
    QCOMPARE(ask(device, frame("B3"), 5), frame("B3"));
}

void TestDeviceProcess::portIsFreeAfterAListenerThatDied()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    {
        const FileDescriptor port(
            ::open(QFile::encodeName(device.printedPath()).constData(), O_RDWR | O_NOCTTY));
        QVERIFY(port.isValid());
        QCOMPARE(::ioctl(port.get(), TIOCEXCL), 0);
    }
    // Opening works for a privileged user in any case, so the mark itself is looked at.
    QVERIFY(device.openPort());
    QTRY_VERIFY(!device.isPortExclusive());
}

void TestDeviceProcess::dropsWholeFramesWhenNobodyReads()
{
    RunningDevice device;
    QVERIFY(device.start());
    const QByteArray requests = frame(QByteArray(250, 'B')).repeated(400);
    for (int i = 0; i < 100; ++i) {
        device.write(requests);
    }
    const QByteArray backlog = device.readUntilQuiet(300);
    QVERIFY(!backlog.isEmpty());
    QVERIFY(backlog.size() < 100 * requests.size());
    QCOMPARE(backlog, frame(QByteArray(250, 'B')).repeated(backlog.size() / 253));
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
}

void TestDeviceProcess::restsWhileIdle_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("port open") << true;
    QTest::newRow("port closed again") << false;
}

void TestDeviceProcess::restsWhileIdle()
{
    QFETCH(bool, isOpen);
    RunningDevice device;
    QVERIFY(device.start({"--delay", "1", "--split"}));
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
    if (!isOpen) {
        device.closePort();
    }
    const qint64 before = device.processorTicks();
    QVERIFY(before >= 0);
    // A busy loop would use up nearly all of this second.
    QThread::msleep(1000);
    QVERIFY(device.processorTicks() - before <= 5);
}

QTEST_GUILESS_MAIN(TestDeviceProcess)
#include "tst_deviceprocess.moc"
