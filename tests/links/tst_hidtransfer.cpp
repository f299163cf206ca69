#include "hidbench.h"

#include <QElapsedTimer>
#include <QtTest>

using Function = HidCall::Function;

class TestHidTransfer : public QObject
{
    Q_OBJECT

private slots:
    void packetsHaveTheirLayout();
    void thePacketSizeIsKeptUsable();

    void aClosedDeviceTakesNoPackets();
    void eachCycleWritesOnePacketOldestFirst();
    void theBufferIsIdDataAndZeros_data();
    void theBufferIsIdDataAndZeros();
    void readsWithTimeout();
    void receivedReportsBecomePackets_data();
    void receivedReportsBecomePackets();
    void reportsArriveInOrder();
    void eachCycleHasAPause();

    void aFailedReadIsIgnored();
    void aFailedWriteEndsTheLoop();
    void unpluggingIsNoticedByTheNextWrite();
};

void TestHidTransfer::packetsHaveTheirLayout()
{
    QCOMPARE(sizeof(HidPacket::data), size_t(516));
    QCOMPARE(sizeof(HidPacket), size_t(520));
    QCOMPARE(offsetof(HidPacket, length), size_t(516));
}

void TestHidTransfer::thePacketSizeIsKeptUsable()
{
    HidThread thread;
    thread.setPacketSize(0);
    QCOMPARE(thread.packetSize(), 1);
    thread.setPacketSize(516);
    QCOMPARE(thread.packetSize(), 515);
}

void TestHidTransfer::aClosedDeviceTakesNoPackets()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(!thread.queuePacket(packetOf(0, "refused")));
    QVERIFY(thread.openByPath(devicePath));
    QVERIFY(thread.queuePacket(packetOf(0, "taken")));
    thread.start();
    QTRY_COMPARE(bench.fake.written().size(), 1);
    QCOMPARE(bench.fake.written().at(0), padded(QByteArray("\0taken", 6), 65));
    thread.stop();
    thread.close();
    QVERIFY(!thread.queuePacket(packetOf(0, "refused")));
}

void TestHidTransfer::eachCycleWritesOnePacketOldestFirst()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    for (const char *text : {"first", "second", "third"}) {
        QVERIFY(thread.queuePacket(packetOf(0, text)));
    }
    bench.fake.readWithoutWaiting();
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) >= 4);
    thread.stop();

    QVector<Function> order;
    for (const HidCall &call : bench.fake.calls().mid(1, 7)) {
        order.append(call.function);
    }
    const QVector<Function> expected{Function::Write, Function::Read,  Function::Write,
                                     Function::Read,  Function::Write, Function::Read,
                                     Function::Read};
    QCOMPARE(order, expected);
    const QVector<QByteArray> written = bench.fake.written();
    QCOMPARE(written.size(), 3);
    QVERIFY(written.at(0).contains("first"));
    QVERIFY(written.at(1).contains("second"));
    QVERIFY(written.at(2).contains("third"));
}

void TestHidTransfer::theBufferIsIdDataAndZeros_data()
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

void TestHidTransfer::theBufferIsIdDataAndZeros()
{
    QFETCH(int, packetSize);
    QFETCH(quint8, reportId);
    QFETCH(int, length);
    QFETCH(int, copied);
    const HidBench bench;
    HidPacket packet = packetOf(reportId, QByteArray(longestReport, 'x'));
    packet.length = length;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    thread.setPacketSize(packetSize);
    QVERIFY(thread.queuePacket(packet));
    packet.data[0] = 0x55; // It is the copy that counts.
    thread.start();
    QTRY_COMPARE(bench.fake.written().size(), 1);
    const QByteArray expected = char(reportId) + QByteArray(copied, 'x');
    QCOMPARE(bench.fake.written().at(0), padded(expected, packetSize + 1));
}

void TestHidTransfer::readsWithTimeout()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    thread.setPacketSize(512);
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 0);
    const HidCall read = bench.fake.calls(Function::Read).at(0);
    QCOMPARE(read.size, 512);
    QCOMPARE(read.timeoutMs, 100);
}

void TestHidTransfer::receivedReportsBecomePackets_data()
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

void TestHidTransfer::receivedReportsBecomePackets()
{
    QFETCH(int, packetSize);
    QFETCH(QByteArray, report);
    QFETCH(QByteArray, data);
    const HidBench bench;
    HidThread thread;
    const HidSignals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    thread.setPacketSize(packetSize);
    bench.fake.sendReport(report);
    thread.start();
    QTRY_COMPARE(signalled.packets.size(), 1);
    const HidPacket packet = signalled.packets.at(0);
    QCOMPARE(packet.data[0], quint8(0));
    QCOMPARE(packet.length, data.size());
    QCOMPARE(dataOf(packet), data);
    QVERIFY(std::all_of(packet.data + 1 + packet.length, std::end(packet.data),
                        [](quint8 byte) { return byte == 0; }));
}

void TestHidTransfer::reportsArriveInOrder()
{
    const HidBench bench;
    HidThread thread;
    const HidSignals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    for (int i = 0; i < 20; ++i) {
        bench.fake.sendReport(QByteArray::number(i));
    }
    QTRY_COMPARE(signalled.packets.size(), 20);
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(dataOf(signalled.packets.at(i)), QByteArray::number(i));
    }
}

void TestHidTransfer::eachCycleHasAPause()
{
    const HidBench bench;
    HidThread thread;
    QVERIFY(thread.openByPath(devicePath));
    bench.fake.readWithoutWaiting();
    QElapsedTimer clock;
    clock.start();
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 20);
    QVERIFY(clock.elapsed() >= 200);
}

void TestHidTransfer::aFailedReadIsIgnored()
{
    const HidBench bench;
    HidThread thread;
    const HidSignals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    bench.fake.failReads();
    thread.start();
    QTRY_VERIFY(bench.fake.count(Function::Read) > 5);
    QVERIFY(thread.queuePacket(packetOf(0, "still written")));
    QTRY_COMPARE(bench.fake.written().size(), 1);
    QVERIFY(thread.isRunning());
    QCOMPARE(signalled.disconnections, 0);
    QCOMPARE(signalled.packets.size(), 0);
}

void TestHidTransfer::aFailedWriteEndsTheLoop()
{
    const HidBench bench;
    HidThread thread;
    const HidSignals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    bench.fake.failWrites(1);
    for (const char *text : {"good", "failing", "never tried"}) {
        QVERIFY(thread.queuePacket(packetOf(0, text)));
    }
    thread.start();
    QTRY_VERIFY(thread.isFinished());
    QCOMPARE(bench.fake.written().size(), 2);
    QCOMPARE(bench.fake.count(Function::Read), 1);
    QCOMPARE(bench.fake.calls().last().function, Function::Write);
    QVERIFY(thread.isOpen());
    thread.stop();
    thread.close();
    QCoreApplication::processEvents();
    QCOMPARE(signalled.disconnections, 1);
}

void TestHidTransfer::unpluggingIsNoticedByTheNextWrite()
{
    const HidBench bench;
    HidThread thread;
    const HidSignals signalled(thread);
    QVERIFY(thread.openByPath(devicePath));
    thread.start();
    bench.fake.failReads();
    bench.fake.failWrites();
    const int before = bench.fake.count(Function::Read);
    QTRY_VERIFY(bench.fake.count(Function::Read) > before + 5);
    QCOMPARE(signalled.disconnections, 0);
    QVERIFY(thread.queuePacket(packetOf(0, "next one")));
    QTRY_COMPARE(signalled.disconnections, 1);
    QTRY_VERIFY(thread.isFinished());
}

QTEST_GUILESS_MAIN(TestHidTransfer)
#include "tst_hidtransfer.moc"
