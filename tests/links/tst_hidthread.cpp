#include "hidbench.h"

#include <QtTest>

using Function = HidCall::Function;

class TestHidThread : public QObject
{
    Q_OBJECT

private slots:
    void beginsClosed();
    void opensByPath();
    void opensByIds();
    void opensOnlyOnce();
    void aFailedOpeningChangesNothing();
    void thePathIsInTheLocalEncoding();
    void refusesWhatIsNoHidDevice_data();
    void refusesWhatIsNoHidDevice();

    void startNeedsStopAfterAFailedWrite();
    void theDeviceIsUsedOnTheWorkerOnly();
    void nothingHappensAfterStop();
    void startAndStopMayComeTwice();
    void closingDropsTheQueue();
    void destructionEndsARunningThread();
    void connectsAgainAndAgainUnderLoad();
};

void TestHidThread::beginsClosed()
{
    const HidBench bench;
    const HidThread thread;
    QVERIFY(!thread.isOpen());
    QVERIFY(!thread.isRunning());
    QVERIFY(thread.idList().isEmpty());
    QCOMPARE(thread.vendorId(), quint16(0));
    QCOMPARE(thread.productId(), quint16(0));
    QVERIFY(bench.fake.calls().isEmpty());
}

void TestHidThread::opensByPath()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.isOpen());
    QVERIFY(!thread.isRunning());
    QCOMPARE(bench.fake.calls(Function::OpenPath).value(0).bytes, QByteArray(devicePath));
}

void TestHidThread::opensByIds()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(!thread.openByIds(0xEEEF, 0x2929));
    QVERIFY(thread.openByIds(0xEEEF, 0x1616));
    QVERIFY(thread.isOpen());
    QCOMPARE(bench.fake.calls(Function::Open).value(1).vendor, quint16(0xEEEF));
    QCOMPARE(bench.fake.calls(Function::Open).value(1).product, quint16(0x1616));
}

void TestHidThread::opensOnlyOnce()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.openByPath("/dev/another"));
    QVERIFY(thread.openByIds(1, 2));
    QCOMPARE(bench.fake.calls().size(), 1);
}

void TestHidThread::aFailedOpeningChangesNothing()
{
    const HidBench bench;
    HidThread thread;
    thread.setIds(1, 2);
    thread.setPacketSize(512);
    QVERIFY(!thread.openByPath("/dev/hidraw-gone"));
    bench.fake.setOpenable(devicePath, false);
    QVERIFY(!thread.openByPath(devicePath));
    QVERIFY(!thread.openByPath(QString()));
    QVERIFY(!thread.isOpen());
    QCOMPARE(thread.vendorId(), quint16(1));
    QCOMPARE(thread.productId(), quint16(2));
    QCOMPARE(thread.packetSize(), 512);
    QCOMPARE(bench.fake.count(Function::OpenPath), 3);
}

void TestHidThread::thePathIsInTheLocalEncoding()
{
    const HidBench bench;
    const QString path = QString::fromUtf8("\\\\?\\hid#vid_eeef&pid_1616#ü&0#{4d1e55b2}");
    HidThread thread;
    QVERIFY(!thread.openByPath(path));
    QCOMPARE(bench.fake.calls(Function::OpenPath).value(0).bytes, path.toLocal8Bit());
}

void TestHidThread::refusesWhatIsNoHidDevice_data()
{
    QTest::addColumn<QByteArray>("path");

    if (QFileInfo::exists("/dev/null")) {
        QTest::newRow("other device") << QByteArray("/dev/null");
    }
    QTest::newRow("folder") << QCoreApplication::applicationDirPath().toLocal8Bit();
    QTest::newRow("file") << QCoreApplication::applicationFilePath().toLocal8Bit();
}

/// The stand-in would open them, the library crashes on some.
void TestHidThread::refusesWhatIsNoHidDevice()
{
    QFETCH(QByteArray, path);
    const HidBench bench;
    bench.fake.addDevice(path, 1, 2);
    HidThread thread;
    QVERIFY(!thread.openByPath(QString::fromLocal8Bit(path)));
    QCOMPARE(bench.fake.count(Function::OpenPath), 0);
}

void TestHidThread::startNeedsStopAfterAFailedWrite()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    bench.fake.failWrites();
    QVERIFY(thread.queuePacket(packetOf(0, "failing")));
    thread.start();
    QTRY_VERIFY(thread.isFinished());
    thread.start();
    QVERIFY(thread.isFinished());
    thread.stop();
    thread.start();
    QVERIFY(!thread.isFinished());
    QTRY_VERIFY(bench.fake.count(Function::Read) > 0);
}

void TestHidThread::theDeviceIsUsedOnTheWorkerOnly()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.queuePacket(packetOf(0, "x")));
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 0);
    thread.stop();
    thread.close();
    for (const HidCall &call : bench.fake.calls()) {
        const bool transfer = call.function == Function::Write || call.function == Function::Read;
        QCOMPARE(call.thread != QThread::currentThreadId(), transfer);
    }
}

void TestHidThread::nothingHappensAfterStop()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 0);
    thread.stop();
    QVERIFY(thread.isFinished());
    const int calls = bench.fake.calls().size();
    QVERIFY(thread.queuePacket(packetOf(0, "waits")));
    QVERIFY(thread.isOpen());
    QCOMPARE(bench.fake.calls().size(), calls);
    thread.start();
    QTRY_COMPARE(bench.fake.written().size(), 1);
}

void TestHidThread::startAndStopMayComeTwice()
{
    const HidBench bench;
    HidThread thread;
    thread.stop();
    thread.close();
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 0);
    thread.stop();
    thread.stop();
    thread.close();
    thread.close();
    QCOMPARE(bench.fake.count(Function::Close), 1);
    QVERIFY(!thread.isOpen());
}

void TestHidThread::closingDropsTheQueue()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    for (int i = 0; i < 100; ++i) {
        QVERIFY(thread.queuePacket(packetOf(0, "dropped")));
    }
    thread.close();
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.queuePacket(packetOf(0, "written")));
    bench.fake.readWithoutWaiting();
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 2);
    QCOMPARE(bench.fake.written().size(), 1);
    QVERIFY(bench.fake.written().at(0).contains("written"));
}

void TestHidThread::destructionEndsARunningThread()
{
    const HidBench bench;
    {
        HidThread thread;
        QVERIFY(thread.openByPath(devicePath));
        QVERIFY(thread.queuePacket(packetOf(0, "x")));
        thread.start();
        QTRY_VERIFY(bench.fake.count(Function::Read) > 0);
    }
    QCOMPARE(bench.fake.count(Function::Close), 1);
    QCOMPARE(bench.fake.calls().last().function, Function::Close);
}

void TestHidThread::connectsAgainAndAgainUnderLoad()
{
    const HidBench bench;
    HidThread thread;
    int packets = 0;
    connect(&thread, &HidThread::packetReceived, this, [&packets] { ++packets; });
    bench.fake.readWithoutWaiting();
    for (int round = 0; round < 100; ++round) {
        QVERIFY(thread.openByPath(devicePath));
        thread.setIds(quint16(round), quint16(round));
        thread.setPacketSize(round % 2 == 0 ? 64 : 512);
        thread.start();
        for (int i = 0; i < 50; ++i) {
            QVERIFY(thread.queuePacket(packetOf(0, QByteArray(64, char(i)))));
            bench.fake.sendReport(QByteArray(64, char(i)));
        }
        const int read = bench.fake.count(Function::Read);
        QTRY_VERIFY_WITH_TIMEOUT(bench.fake.count(Function::Read) > read, 5000);
        thread.stop();
        thread.close();
    }
    QCoreApplication::processEvents();
    QVERIFY(packets >= 100);
    QVERIFY(bench.fake.written().size() >= 100);
}

QTEST_GUILESS_MAIN(TestHidThread)
#include "tst_hidthread.moc"
