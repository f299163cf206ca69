#include "fakehid.h"
#include "session/session.h"
#include "stall.h"
#include "testport.h"
#include "waitingbytes.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSessionRecords : public QObject
{
    Q_OBJECT

private slots:
    void aClosedLinkIsTold();
    void whatIsSentIsRecorded();
    void aBlockIsRecordedFrameByFrame();
    void whatIsReceivedIsRecorded();
    void aStallBreaksNoFrameOfAPort();
    void aStallBreaksNoFrameOfAHidDevice();
    void theCrcFlagIsThatOfTheMoment();
    void zerosOfAHidDeviceAreNoStrayBytes();
    void oneLinkIsInUse();
    void aBadHeaderIsToldOnTheReceivePathOnce();
    void aBadHeaderIsToldAtEachSend();
    void aWrongReplyIsTold();
    void aWrongReplyIsToldThatIsHandedUpWithAnEarlierOne();
    void theEndStopsTheLoopAndClosesTheLink();
};

namespace {

const QByteArray hidPath = "/dev/hidraw-of-a-session";

/// A session with the default header, and a serial port and a HID device that it can open.
class RecordBench
{
public:
    RecordBench()
    {
        FakeHid::instance().reset();
        FakeHid::instance().addDevice(hidPath, 0xEEEF, 0x1616);
        session.links().hid().readDeviceTypes();
        session.setHeaderText("0x5A,0xA5");
    }

    bool openPort()
    {
        SerialSettings settings;
        settings.portName = port.path();
        return session.links().serial().open(settings);
    }

    bool openHid()
    {
        session.use(LinkMode::Hid);
        return session.links().hid().open(hidPath, 0);
    }

    /// All records, like "sent 1 5aa5020310".
    QStringList records()
    {
        const QStringList kinds{"sent", "received", "stray", "event"};
        QStringList all;
        for (const LogRecord &record : session.log().records()) {
            all.append(kinds.at(int(record.kind)) + ' ' + QString::number(record.number) + ' ' +
                       record.bytes.toHex() + record.text.english);
        }
        return all;
    }

    /// What is wrong with each received frame.
    QStringList faults()
    {
        QStringList all;
        for (const LogRecord &record : session.log().records()) {
            if (record.kind == LogRecord::Kind::Received) {
                all.append(record.fault);
            }
        }
        return all;
    }

    TestPort port;
    QTemporaryDir folder;
    Session session{folder.filePath("hidDeviceID.ini"), {}};
    QSignalSpy notices{&session, &Session::notice};
};

QVector<CheckedRow> twoRows()
{
    return {{1, "0310"}, {2, "0311"}};
}

CheckedRow rowExpecting(const QString &frameText, const QString &expectation)
{
    CheckedRow row{1, frameText};
    row.expectations = "//@ tarnwick-run 1\n" + expectation;
    return row;
}

} // namespace

void TestSessionRecords::aClosedLinkIsTold()
{
    RecordBench bench;
    bench.session.sender().sendOne("0310");
    QCOMPARE(bench.notices.count(), 1);
    QCOMPARE(bench.notices.at(0).at(0).toString(), bench.session.links().serial().closedMessage());
    bench.session.use(LinkMode::Hid);
    bench.session.sender().sendOne("0310");
    QCOMPARE(bench.notices.at(1).at(0).toString(), bench.session.links().hid().closedMessage());
    QVERIFY(bench.records().isEmpty());
}

void TestSessionRecords::whatIsSentIsRecorded()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.sender().sendOne("0310");
    QTRY_COMPARE(bench.port.received(), QByteArray::fromHex("5AA5020310"));
    QCOMPARE(bench.records(), QStringList{"sent 1 5aa5020310"});
}

void TestSessionRecords::aBlockIsRecordedFrameByFrame()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.sender().sendAll(twoRows());
    QTRY_COMPARE(bench.port.received(), QByteArray::fromHex("5AA50203105AA5020311"));
    QCOMPARE(bench.records(), (QStringList{"sent 1 5aa5020310", "sent 2 5aa5020311"}));
}

void TestSessionRecords::whatIsReceivedIsRecorded()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.port.send(QByteArray::fromHex("01025AA5020310"));
    QTRY_COMPARE(bench.records(), (QStringList{"stray 1 0102", "received 2 5aa5020310"}));
    QCOMPARE(bench.notices.count(), 0);
}

void TestSessionRecords::aStallBreaksNoFrameOfAPort()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    QSignalSpy stray(bench.session.findChild<Receiver *>(), &Receiver::strayReceived);
    bench.port.send(QByteArray::fromHex("075A"));
    QVERIFY(stray.wait());
    bench.port.send(QByteArray::fromHex("A5020310"));
    const auto *const port = bench.session.findChild<QSerialPort *>();
    stallUntil([port] { return waitingInTheSystem(*port) > 0; });
    QTRY_COMPARE(bench.records(), (QStringList{"stray 1 07", "received 2 5aa5020310"}));
}

void TestSessionRecords::aStallBreaksNoFrameOfAHidDevice()
{
    FakeHid &device = FakeHid::instance();
    RecordBench bench;
    device.readWithoutWaiting();
    QVERIFY(bench.openHid());
    QSignalSpy stray(bench.session.findChild<Receiver *>(), &Receiver::strayReceived);
    device.sendReport(QByteArray::fromHex("075A"));
    QVERIFY(stray.wait());
    device.sendReport(QByteArray::fromHex("A5020310"));
    // The worker has handed on a report once it reads again.
    const auto reads = [&device] { return device.count(HidCall::Function::Read); };
    const int readsBefore = reads();
    stallUntil([&] { return device.waitingReports() == 0 && reads() > readsBefore + 1; });
    QTRY_COMPARE(bench.records(), (QStringList{"stray 1 07", "received 2 5aa5020310"}));
}

void TestSessionRecords::theCrcFlagIsThatOfTheMoment()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.sender().sendOne("0310");
    bench.session.format().setCrc(true);
    bench.session.sender().sendOne("0310");
    const QVector<LogRecord> &records = bench.session.log().records();
    QVERIFY(!records.at(0).withCrc);
    QVERIFY(records.at(1).withCrc);
    QCOMPARE(records.at(1).bytes.size(), records.at(0).bytes.size() + 2);
}

void TestSessionRecords::zerosOfAHidDeviceAreNoStrayBytes()
{
    RecordBench bench;
    QVERIFY(bench.openHid());
    FakeHid::instance().sendReport(QByteArray::fromHex("5AA5020310").leftJustified(64, '\0'));
    FakeHid::instance().sendReport(QByteArray::fromHex("5AA5020311").leftJustified(64, '\7'));
    QTRY_COMPARE(bench.records().size(), 3);
    QCOMPARE(bench.records().at(1), QString("received 2 5aa5020311"));
    QVERIFY(bench.records().at(2).startsWith("stray 3 0707"));

    bench.session.use(LinkMode::Uart);
    QVERIFY(bench.openPort());
    bench.port.send(QByteArray(3, '\0'));
    QTRY_COMPARE(bench.records().size(), 4);
    QCOMPARE(bench.records().at(3), QString("stray 4 000000"));
}

void TestSessionRecords::oneLinkIsInUse()
{
    RecordBench bench;
    QCOMPARE(bench.session.links().mode(), LinkMode::Uart);
    QVERIFY(bench.openPort());
    bench.session.use(LinkMode::Uart);
    QVERIFY(bench.session.links().serial().isOpen());
    QVERIFY(bench.openHid());
    QVERIFY(!bench.session.links().serial().isOpen());
    bench.session.sender().sendOne("0310");
    QTRY_COMPARE(FakeHid::instance().written().size(), 1);
    bench.session.use(LinkMode::Uart);
    QVERIFY(!bench.session.links().hid().isOpen());
    QCOMPARE(FakeHid::instance().openHandles(), 0);
}

void TestSessionRecords::aBadHeaderIsToldOnTheReceivePathOnce()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.setHeaderText("0x5A");
    bench.port.send(QByteArray::fromHex("A55A020310"));
    QTRY_COMPARE(bench.records(), QStringList{"received 1 a55a020310"});
    QTRY_COMPARE(bench.notices.count(), 1);
    QCOMPARE(bench.notices.at(0).at(0).toString(), QString("Startbytes Length error"));
    bench.port.send(QByteArray::fromHex("A55A020311"));
    QTRY_COMPARE(bench.records().size(), 2);
    QVERIFY(!bench.notices.wait(50));
}

void TestSessionRecords::aBadHeaderIsToldAtEachSend()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.setHeaderText("0x5A");
    bench.session.sender().sendOne("0310");
    bench.session.sender().sendAll(twoRows());
    QCOMPARE(bench.notices.count(), 2);
    QCOMPARE(bench.records(),
             (QStringList{"sent 1 a55a020310", "sent 2 a55a020310", "sent 3 a55a020311"}));
}

void TestSessionRecords::aWrongReplyIsTold()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.sender().sendOne(rowExpecting("0310", "//? 0310"));
    bench.port.send(QByteArray::fromHex("5AA5028310"));
    QTRY_COMPARE(bench.faults().size(), 1);
    QVERIFY(bench.faults().first().startsWith("expected 0310, got 83 10 after "));
}

void TestSessionRecords::aWrongReplyIsToldThatIsHandedUpWithAnEarlierOne()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.sender().sendOne(rowExpecting("0310", "//? 0310"));
    const ArrivalTime readAt = ArrivalTime::now();
    bench.session.sender().sendOne(rowExpecting("0311", "//? 0311"));
    emit bench.session.links().serial().arrived(QByteArray::fromHex("5AA50203105AA5028311"),
                                                readAt);
    QCOMPARE(bench.faults().size(), 2);
    QCOMPARE(bench.faults().at(0), QString());
    QVERIFY(bench.faults().at(1).startsWith("expected 0311, got 83 11 after "));
}

void TestSessionRecords::theEndStopsTheLoopAndClosesTheLink()
{
    RecordBench bench;
    QVERIFY(bench.openPort());
    bench.session.loop().start(twoRows(), {1, 0});
    QTRY_VERIFY(bench.records().size() >= 4);
    bench.session.end();
    QVERIFY(!bench.session.loop().isRunning());
    QVERIFY(!bench.session.links().serial().isOpen());
}

QTEST_GUILESS_MAIN(TestSessionRecords)

#include "tst_sessionrecords.moc"
