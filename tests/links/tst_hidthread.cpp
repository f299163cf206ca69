#include "fakehid.h"
#include "hidthread.h"

#include <QElapsedTimer>
#include <QtTest>

using Function = HidCall::Function;

Q_DECLARE_METATYPE(Function)

namespace {

const char devicePath[] = "/dev/hidraw-one";

HidPacket packetOf(quint8 reportId, const QByteArray &bytes)
{
    HidPacket packet;
    packet.data[0] = reportId;
    std::copy(bytes.begin(), bytes.end(), packet.data + 1);
    packet.length = bytes.size();
    return packet;
}

QByteArray dataOf(const HidPacket &packet)
{
    return {reinterpret_cast<const char *>(packet.data) + 1, packet.length};
}

/// What a worker signals, as it arrives in this thread.
class Signals : public QObject
{
public:
    explicit Signals(const HidThread &thread)
    {
        connect(&thread, &HidThread::packetReceived, this,
                [this](const HidPacket &packet) { packets.append(packet); });
        connect(&thread, &HidThread::deviceDisconnected, this, [this] { ++disconnections; });
    }

    QVector<HidPacket> packets;
    int disconnections = 0;
};

QByteArray padded(const QByteArray &bytes, int size)
{
    return bytes.leftJustified(size, '\0');
}

} // namespace

class TestHidThread : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void packetLayout();
    void beginsClosed();
    void opensByPath();
    void opensByIds();
    void opensOnlyOnce();
    void failedOpeningChangesNothing();
    void pathInLocalEncoding();
    void refusesWhatIsNoHidDevice_data();
    void refusesWhatIsNoHidDevice();
    void closedDeviceTakesNoPackets();
    void onePacketPerCycleOldestFirst();
    void buffer_data();
    void buffer();
    void packetSizeIsKeptUsable();
    void readsWithTimeout();
    void receivedPacket_data();
    void receivedPacket();
    void receivedInOrder();
    void failedReadIsIgnored();
    void failedWriteEndsTheLoop();
    void failedWriteAfterIdleUnplugging();
    void startNeedsStopAfterFailedWrite();
    void cycleHasAPause();
    void deviceIsUsedOnTheWorkerOnly();
    void nothingAfterStop();
    void startAndStopTwice();
    void closingDropsTheQueue();
    void destructionWhileRunning();
    void connectingUnderLoad();

private:
    FakeHid &m_fake = FakeHid::instance();
};

void TestHidThread::init()
{
    m_fake.reset();
    m_fake.addDevice(devicePath, 0xEEEF, 0x1616);
}

void TestHidThread::cleanup()
{
    QCOMPARE(m_fake.misuses(), 0);
    QCOMPARE(m_fake.openHandles(), 0);
}

void TestHidThread::packetLayout()
{
    QCOMPARE(sizeof(HidPacket::data), size_t(516));
    QCOMPARE(sizeof(HidPacket), size_t(520));
    QCOMPARE(offsetof(HidPacket, length), size_t(516));
}

void TestHidThread::beginsClosed()
{
    const HidThread thread;
    QVERIFY(!thread.isOpen());
    QVERIFY(!thread.isRunning());
    QVERIFY(thread.idList().isEmpty());
    QCOMPARE(thread.vendorId(), quint16(0));
    QCOMPARE(thread.productId(), quint16(0));
    QVERIFY(m_fake.calls().isEmpty());
}

void TestHidThread::opensByPath()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.isOpen());
    QVERIFY(!thread.isRunning());
    QCOMPARE(m_fake.calls(Function::OpenPath).value(0).bytes, QByteArray(devicePath));
}

void TestHidThread::opensByIds()
{
    HidThread thread;
    QVERIFY(!thread.openByIds(0xEEEF, 0x2929));
    QVERIFY(thread.openByIds(0xEEEF, 0x1616));
    QVERIFY(thread.isOpen());
    QCOMPARE(m_fake.calls(Function::Open).value(1).vendor, quint16(0xEEEF));
    QCOMPARE(m_fake.calls(Function::Open).value(1).product, quint16(0x1616));
}

void TestHidThread::opensOnlyOnce()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.openByPath("/dev/another"));
    QVERIFY(thread.openByIds(1, 2));
    QCOMPARE(m_fake.calls().size(), 1);
}

void TestHidThread::failedOpeningChangesNothing()
{
    HidThread thread;
    thread.setIds(1, 2);
    thread.setPacketSize(512);
    QVERIFY(!thread.openByPath("/dev/hidraw-gone"));
    m_fake.setOpenable(devicePath, false);
    QVERIFY(!thread.openByPath(devicePath));
    QVERIFY(!thread.openByPath(QString()));
    QVERIFY(!thread.isOpen());
    QCOMPARE(thread.vendorId(), quint16(1));
    QCOMPARE(thread.productId(), quint16(2));
    QCOMPARE(thread.packetSize(), 512);
    QCOMPARE(m_fake.count(Function::OpenPath), 3);
}

void TestHidThread::pathInLocalEncoding()
{
    const QString path = QString::fromUtf8("\\\\?\\hid#vid_eeef&pid_1616#ü&0#{4d1e55b2}");
    HidThread thread;
    QVERIFY(!thread.openByPath(path));
    QCOMPARE(m_fake.calls(Function::OpenPath).value(0).bytes, path.toLocal8Bit());
}

void TestHidThread::refusesWhatIsNoHidDevice_data()
{
    QTest::addColumn<QByteArray>("path");

    QTest::newRow("other device") << QByteArray("/dev/null");
    QTest::newRow("folder") << QByteArray("/dev");
    QTest::newRow("file") << QCoreApplication::applicationFilePath().toLocal8Bit();
}

/// The stand-in would open them, the library crashes on some.
void TestHidThread::refusesWhatIsNoHidDevice()
{
    QFETCH(QByteArray, path);
    m_fake.addDevice(path, 1, 2);
    HidThread thread;
    QVERIFY(!thread.openByPath(QString::fromLocal8Bit(path)));
    QCOMPARE(m_fake.count(Function::OpenPath), 0);
}

void TestHidThread::closedDeviceTakesNoPackets()
{
    HidThread thread;
    QVERIFY(!thread.queuePacket(packetOf(0, "refused")));
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.queuePacket(packetOf(0, "taken")));
    thread.start();
    QTRY_COMPARE(m_fake.written().size(), 1);
    QCOMPARE(m_fake.written().at(0), padded(QByteArray("\0taken", 6), 65));
    thread.stop();
    thread.close();
    QVERIFY(!thread.queuePacket(packetOf(0, "refused")));
}

void TestHidThread::onePacketPerCycleOldestFirst()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    for (const char *text : {"first", "second", "third"}) {
        QVERIFY(thread.queuePacket(packetOf(0, text)));
    }
    m_fake.readWithoutWaiting();
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) >= 4);
    thread.stop();

    QVector<Function> order;
    for (const HidCall &call : m_fake.calls().mid(1, 7)) {
        order.append(call.function);
    }
    const QVector<Function> expected{Function::Write, Function::Read,  Function::Write,
                                     Function::Read,  Function::Write, Function::Read,
                                     Function::Read};
    QCOMPARE(order, expected);
    const QVector<QByteArray> written = m_fake.written();
    QCOMPARE(written.size(), 3);
    QVERIFY(written.at(0).contains("first"));
    QVERIFY(written.at(1).contains("second"));
    QVERIFY(written.at(2).contains("third"));
}

void TestHidThread::buffer_data()
{
    QTest::addColumn<int>("packetSize");
    QTest::addColumn<quint8>("reportId");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("copied");

    QTest::newRow("whole packet") << 64 << quint8(0) << 64 << 64;
    QTest::newRow("whole long packet") << 512 << quint8(0x21) << 512 << 512;
    QTest::newRow("rest is zeros") << 64 << quint8(0xFF) << 10 << 10;
    QTest::newRow("no data") << 64 << quint8(7) << 0 << 0;
    QTest::newRow("one byte") << 1 << quint8(7) << 1 << 1;
    QTest::newRow("longest") << 515 << quint8(7) << 515 << 515;
    QTest::newRow("too long for the device") << 64 << quint8(7) << 512 << 64;
    QTest::newRow("longer than a packet") << 515 << quint8(7) << 1'000'000 << 515;
    QTest::newRow("negative length") << 64 << quint8(7) << -1 << 0;
}

void TestHidThread::buffer()
{
    QFETCH(int, packetSize);
    QFETCH(quint8, reportId);
    QFETCH(int, length);
    QFETCH(int, copied);

    HidPacket packet = packetOf(reportId, QByteArray(longestReport, 'x'));
    packet.length = length;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    thread.setPacketSize(packetSize);
    QVERIFY(thread.queuePacket(packet));
    packet.data[0] = 0x55; // It is the copy that counts.
    thread.start();
    QTRY_COMPARE(m_fake.written().size(), 1);
    const QByteArray expected = char(reportId) + QByteArray(copied, 'x');
    QCOMPARE(m_fake.written().at(0), padded(expected, packetSize + 1));
}

void TestHidThread::packetSizeIsKeptUsable()
{
    HidThread thread;
    thread.setPacketSize(0);
    QCOMPARE(thread.packetSize(), 1);
    thread.setPacketSize(516);
    QCOMPARE(thread.packetSize(), 515);
}

void TestHidThread::readsWithTimeout()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    thread.setPacketSize(512);
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    const HidCall read = m_fake.calls(Function::Read).at(0);
    QCOMPARE(read.size, 512);
    QCOMPARE(read.timeoutMs, 100);
}

void TestHidThread::receivedPacket_data()
{
    QTest::addColumn<int>("packetSize");
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<QByteArray>("data");

    const QByteArray counted = QByteArray::fromHex("0102030405");
    QTest::newRow("short report") << 64 << counted << counted;
    QTest::newRow("one byte") << 64 << QByteArray("\x7f") << QByteArray("\x7f");
    QTest::newRow("zero byte") << 64 << QByteArray(1, '\0') << QByteArray(1, '\0');
    QTest::newRow("report ID in front") << 64 << "\x05" + counted << "\x05" + counted;
    QTest::newRow("whole report") << 64 << QByteArray(64, 'a') << QByteArray(64, 'a');
    QTest::newRow("long report") << 512 << QByteArray(512, 'b') << QByteArray(512, 'b');
    QTest::newRow("longest") << 515 << QByteArray(515, 'c') << QByteArray(515, 'c');
    QTest::newRow("longer than asked for") << 64 << QByteArray(100, 'd') << QByteArray(64, 'd');
}

void TestHidThread::receivedPacket()
{
    QFETCH(int, packetSize);
    QFETCH(QByteArray, report);
    QFETCH(QByteArray, data);

    HidThread thread;
    const Signals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    thread.setPacketSize(packetSize);
    m_fake.sendReport(report);
    thread.start();
    QTRY_COMPARE(signalled.packets.size(), 1);
    const HidPacket packet = signalled.packets.at(0);
    QCOMPARE(packet.data[0], quint8(0));
    QCOMPARE(packet.length, data.size());
    QCOMPARE(dataOf(packet), data);
    QVERIFY(std::all_of(packet.data + 1 + packet.length, std::end(packet.data),
                        [](quint8 byte) { return byte == 0; }));
}

void TestHidThread::receivedInOrder()
{
    HidThread thread;
    const Signals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    for (int i = 0; i < 20; ++i) {
        m_fake.sendReport(QByteArray::number(i));
    }
    QTRY_COMPARE(signalled.packets.size(), 20);
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(dataOf(signalled.packets.at(i)), QByteArray::number(i));
    }
}

void TestHidThread::failedReadIsIgnored()
{
    HidThread thread;
    const Signals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    m_fake.failReads();
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 5);
    QVERIFY(thread.queuePacket(packetOf(0, "still written")));
    QTRY_COMPARE(m_fake.written().size(), 1);
    QVERIFY(thread.isRunning());
    QCOMPARE(signalled.disconnections, 0);
    QCOMPARE(signalled.packets.size(), 0);
}

void TestHidThread::failedWriteEndsTheLoop()
{
    HidThread thread;
    const Signals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    m_fake.failWrites(1);
    for (const char *text : {"good", "failing", "never tried"}) {
        QVERIFY(thread.queuePacket(packetOf(0, text)));
    }
    thread.start();
    QTRY_VERIFY(thread.isFinished());
    QCOMPARE(m_fake.written().size(), 2);
    QCOMPARE(m_fake.count(Function::Read), 1);
    QCOMPARE(m_fake.calls().last().function, Function::Write);
    QVERIFY(thread.isOpen());
    thread.stop();
    thread.close();
    QCoreApplication::processEvents();
    QCOMPARE(signalled.disconnections, 1);
}

void TestHidThread::failedWriteAfterIdleUnplugging()
{
    HidThread thread;
    const Signals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    m_fake.failReads();
    m_fake.failWrites();
    const int before = m_fake.count(Function::Read);
    QTRY_VERIFY(m_fake.count(Function::Read) > before + 5);
    QCOMPARE(signalled.disconnections, 0);
    QVERIFY(thread.queuePacket(packetOf(0, "next one")));
    QTRY_COMPARE(signalled.disconnections, 1);
    QTRY_VERIFY(thread.isFinished());
}

void TestHidThread::startNeedsStopAfterFailedWrite()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    m_fake.failWrites();
    QVERIFY(thread.queuePacket(packetOf(0, "failing")));
    thread.start();
    QTRY_VERIFY(thread.isFinished());
    thread.start();
    QVERIFY(thread.isFinished());
    thread.stop();
    thread.start();
    QVERIFY(!thread.isFinished());
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
}

void TestHidThread::cycleHasAPause()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    m_fake.readWithoutWaiting();
    QElapsedTimer clock;
    clock.start();
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 20);
    QVERIFY(clock.elapsed() >= 200);
}

void TestHidThread::deviceIsUsedOnTheWorkerOnly()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.queuePacket(packetOf(0, "x")));
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    thread.stop();
    thread.close();
    for (const HidCall &call : m_fake.calls()) {
        const bool transfer = call.function == Function::Write || call.function == Function::Read;
        QCOMPARE(call.thread != QThread::currentThreadId(), transfer);
    }
}

void TestHidThread::nothingAfterStop()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    thread.stop();
    QVERIFY(thread.isFinished());
    const int calls = m_fake.calls().size();
    QVERIFY(thread.queuePacket(packetOf(0, "waits")));
    QVERIFY(thread.isOpen());
    QCOMPARE(m_fake.calls().size(), calls);
    thread.start();
    QTRY_COMPARE(m_fake.written().size(), 1);
}

void TestHidThread::startAndStopTwice()
{
    HidThread thread;
    thread.stop();
    thread.close();
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    thread.stop();
    thread.stop();
    thread.close();
    thread.close();
    QCOMPARE(m_fake.count(Function::Close), 1);
    QVERIFY(!thread.isOpen());
}

void TestHidThread::closingDropsTheQueue()
{
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    for (int i = 0; i < 100; ++i) {
        QVERIFY(thread.queuePacket(packetOf(0, "dropped")));
    }
    thread.close();
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.queuePacket(packetOf(0, "written")));
    m_fake.readWithoutWaiting();
    thread.start();
    QTRY_VERIFY(m_fake.count(Function::Read) > 2);
    QCOMPARE(m_fake.written().size(), 1);
    QVERIFY(m_fake.written().at(0).contains("written"));
}

void TestHidThread::destructionWhileRunning()
{
    {
        HidThread thread;
        QVERIFY(thread.openByPath(devicePath));
        QVERIFY(thread.queuePacket(packetOf(0, "x")));
        thread.start();
        QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    }
    QCOMPARE(m_fake.count(Function::Close), 1);
    QCOMPARE(m_fake.calls().last().function, Function::Close);
}

void TestHidThread::connectingUnderLoad()
{
    HidThread thread;
    int packets = 0;
    connect(&thread, &HidThread::packetReceived, this, [&packets] { ++packets; });
    m_fake.readWithoutWaiting();
    for (int round = 0; round < 100; ++round) {
        QVERIFY(thread.openByPath(devicePath));
        thread.setIds(quint16(round), quint16(round));
        thread.setPacketSize(round % 2 == 0 ? 64 : 512);
        thread.start();
        for (int i = 0; i < 50; ++i) {
            QVERIFY(thread.queuePacket(packetOf(0, QByteArray(64, char(i)))));
            m_fake.sendReport(QByteArray(64, char(i)));
        }
        const int read = m_fake.count(Function::Read);
        QTRY_VERIFY_WITH_TIMEOUT(m_fake.count(Function::Read) > read, 5000);
        thread.stop();
        thread.close();
    }
    QCoreApplication::processEvents();
    QVERIFY(packets >= 100);
    QVERIFY(m_fake.written().size() >= 100);
}

QTEST_GUILESS_MAIN(TestHidThread)
#include "tst_hidthread.moc"
