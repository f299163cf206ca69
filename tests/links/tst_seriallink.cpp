#include "serialbench.h"

#include <QSignalSpy>
#include <QtTest>

#include <thread>

class TestSerialLink : public QObject
{
    Q_OBJECT

private slots:
    void closedLinkTakesNothing();
    void openLinkKnowsItsPort();
    void openFails_data();
    void openFails();
    void aPortIsOpenOnlyOnce();
    void openingClosesTheOtherPort();
    void lineIsSetAsAsked_data();
    void lineIsSetAsAsked();
    void blocksArriveInOrder();
    void aLongBlockArrivesWhole();
    void oneReadIsBoundedAndNothingIsLost();
    void nothingStandsStillWhileMoreIsAwaited();
    void piecesAreHandedUpTogether();
    void lookingForMoreIsAlwaysAllowed();
    void aBusyHandlerLosesNothing_data();
    void aBusyHandlerLosesNothing();
    void dataDuringAWriteAreSignalledAfterIt();
    void writingWhileDataComeInIsNoLoss();
    void whatComesInIsHandedUpAtOnceIfWanted_data();
    void whatComesInIsHandedUpAtOnceIfWanted();
    void whatTheFarEndDoesNotTakeIsNotDrained();
};

void TestSerialLink::closedLinkTakesNothing()
{
    SerialLink link(longestRead);
    const Link &closed = link;
    QVERIFY(!closed.isOpen());
    QCOMPARE(closed.closedMessage(), QString("Please open the Com Port!"));
    QCOMPARE(closed.longestInstruction(), 65535);
    QCOMPARE(link.openPortName(), QString());
    const QSignalSpy arrived(&link, &SerialLink::arrived);
    link.receive();
    QCOMPARE(closed.unsentBytes(), 0);
    QTest::qWait(20);
    QCOMPARE(arrived.count(), 0);
    link.close();
}

void TestSerialLink::openLinkKnowsItsPort()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    QVERIFY(link.isOpen());
    QCOMPARE(link.openPortName(), port.path());
    link.close();
    QVERIFY(!link.isOpen());
    QCOMPARE(link.openPortName(), QString());
}

void TestSerialLink::openFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("baudRate");

    QTest::newRow("no name") << QString() << 115200;
    QTest::newRow("no such port") << "/nowhere/port" << 115200;
    QTest::newRow("no terminal") << "/dev/null" << 115200;
    QTest::newRow("no baud rate") << "any" << 0;
}

void TestSerialLink::openFails()
{
    QFETCH(QString, name);
    QFETCH(int, baudRate);
    const TestPort port;
    SerialLink link(longestRead);
    SerialSettings settings;
    settings.portName = baudRate == 0 ? port.path() : name;
    settings.baudRate = baudRate;
    const QSignalSpy openChanged(&link, &Link::openChanged);
    QVERIFY(!link.open(settings));
    QCOMPARE(openChanged.count(), 0);
    QVERIFY(!link.isOpen());
    QCOMPARE(link.openPortName(), QString());
}

void TestSerialLink::aPortIsOpenOnlyOnce()
{
    const TestPort port;
    SerialLink first(longestRead);
    SerialLink second(longestRead);
    QVERIFY(first.open(settingsAt(port)));
    QVERIFY(!second.open(settingsAt(port)));
    first.close();
    QVERIFY(second.open(settingsAt(port)));
}

void TestSerialLink::openingClosesTheOtherPort()
{
    TestPort former;
    const TestPort next;
    SerialLink link(longestRead);
    SerialLink other(longestRead);
    QVERIFY(link.open(settingsAt(former)));
    QVERIFY(link.open(settingsAt(next)));
    QCOMPARE(link.openPortName(), next.path());
    QVERIFY(other.open(settingsAt(former)));
}

void TestSerialLink::lineIsSetAsAsked_data()
{
    QTest::addColumn<int>("baudRate");
    QTest::addColumn<int>("stopBits");
    QTest::addColumn<bool>("twoStopBits");

    QTest::newRow("usual") << 115200 << int(QSerialPort::OneStop) << false;
    QTest::newRow("slow, two stop bits") << 9600 << int(QSerialPort::TwoStop) << true;
    QTest::newRow("listed, but no standard rate") << 256000 << int(QSerialPort::OneStop) << false;
    QTest::newRow("highest") << 1382400 << int(QSerialPort::OneStop) << false;
    QTest::newRow("custom") << 12345 << int(QSerialPort::OneStop) << false;
}

void TestSerialLink::lineIsSetAsAsked()
{
    QFETCH(int, baudRate);
    QFETCH(int, stopBits);
    QFETCH(bool, twoStopBits);
    const TestPort port;
    SerialLink link(longestRead);
    SerialSettings settings = settingsAt(port);
    settings.baudRate = baudRate;
    settings.stopBits = static_cast<QSerialPort::StopBits>(stopBits);
    QVERIFY(link.open(settings));
    QCOMPARE(port.line().baudRate, quint32(baudRate));
    QCOMPARE(port.line().twoStopBits, twoStopBits);
}

void TestSerialLink::blocksArriveInOrder()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    QByteArray all;
    for (int i = 0; i < 100; ++i) {
        const QByteArray block = QByteArray::number(i).append(' ');
        link.write(block);
        if (i % 2 == 0) {
            QCoreApplication::processEvents();
        }
        all.append(block);
    }
    QTRY_COMPARE(port.received(), all);
}

void TestSerialLink::aLongBlockArrivesWhole()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    const QByteArray block = numberedBytes(200000);
    link.write(block);
    link.write("end");
    QTRY_COMPARE(port.received().size(), block.size() + 3);
    QCOMPARE(port.received(), block + "end");
}

void TestSerialLink::oneReadIsBoundedAndNothingIsLost()
{
    constexpr int bound = 100;
    const TestPort port;
    SerialLink link(bound);
    QVERIFY(link.open(settingsAt(port)));
    QByteArray all;
    int longest = 0;
    connect(&link, &SerialLink::arrived, this, [&](const QByteArray &part) {
        longest = std::max(longest, part.size());
        all.append(part);
    });
    const QByteArray sent = numberedBytes(3000);
    port.send(sent);
    QTRY_COMPARE(all.size(), sent.size());
    QCOMPARE(all, sent);
    QCOMPARE(longest, bound);
}

void TestSerialLink::nothingStandsStillWhileMoreIsAwaited()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    bool goesOn = false;
    bool wentOnBefore = false;
    connect(portOf(link), &QSerialPort::readyRead, this,
            [&] { QTimer::singleShot(0, this, [&goesOn] { goesOn = true; }); });
    QSignalSpy arrived(&link, &SerialLink::arrived);
    connect(&link, &SerialLink::arrived, this, [&] { wentOnBefore = goesOn; });
    port.send("x");
    QVERIFY(arrived.wait());
    QVERIFY(wentOnBefore);
}

void TestSerialLink::piecesAreHandedUpTogether()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    QSignalSpy arrived(&link, &SerialLink::arrived);
    qint64 firstReadBy = 0;
    connect(portOf(link), &QSerialPort::readyRead, this, [&] {
        if (firstReadBy == 0) {
            firstReadBy = ArrivalTime::now().monotonicNs;
            port.send("second");
        }
    });
    port.send("first ");
    QVERIFY(arrived.wait());
    QCOMPARE(arrived.at(0).at(0).toByteArray(), QByteArray("first second"));
    QVERIFY(arrived.at(0).at(1).value<ArrivalTime>().monotonicNs <= firstReadBy);
}

void TestSerialLink::lookingForMoreIsAlwaysAllowed()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    const Collector collector(link);
    const QByteArray sent = numberedBytes(20000);
    QTimer impatience;
    connect(&impatience, &QTimer::timeout, this, [&link] { link.receive(); });
    impatience.start(1);
    std::thread farEnd([&] { port.send(sent); });
    QTRY_COMPARE(collector.bytes.size(), sent.size());
    farEnd.join();
    QCOMPARE(collector.bytes, sent);
}

void TestSerialLink::aBusyHandlerLosesNothing_data()
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("7 bytes") << 7;
    QTest::newRow("64 KiB, more than fits in") << 64 * 1024;
}

/// The first handler runs an event loop of its own, as a message box does.
void TestSerialLink::aBusyHandlerLosesNothing()
{
    QFETCH(int, bytes);
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    const QByteArray sent = numberedBytes(bytes);
    Collector collector(link);
    std::thread farEnd;
    int handlersWhileBusy = 0;
    collector.whileBusy = [&] {
        farEnd = std::thread([&] { port.send(sent); });
        QTRY_COMPARE(portOf(link)->bytesAvailable(), qint64(std::min(bytes, longestRead)));
        QTest::qWait(20);
        handlersWhileBusy = collector.handlers;
    };
    port.send("!");
    QTRY_COMPARE(collector.bytes.size(), 1 + bytes);
    farEnd.join();
    QCOMPARE(collector.bytes, "!" + sent);
    QCOMPARE(handlersWhileBusy, 1);
}

void TestSerialLink::dataDuringAWriteAreSignalledAfterIt()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    QSignalSpy arrived(&link, &SerialLink::arrived);
    port.send("meanwhile");
    const QByteArray block = numberedBytes(100000);
    link.write(block);
    QCOMPARE(arrived.count(), 0);
    QVERIFY(link.unsentBytes() > 0);
    QVERIFY(arrived.wait());
    QCOMPARE(arrived.at(0).at(0).toByteArray(), QByteArray("meanwhile"));
    QTRY_COMPARE(port.received().size(), block.size());
    QCOMPARE(port.received(), block);
    QCOMPARE(link.unsentBytes(), 0);
}

void TestSerialLink::writingWhileDataComeInIsNoLoss()
{
    constexpr int rounds = 300;
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    const QSignalSpy lost(&link, &SerialLink::lost);
    const Collector collector(link);
    for (int round = 1; round <= rounds; ++round) {
        port.send("in");
        QMetaObject::invokeMethod(
            &link, [&link] { link.write("out"); }, Qt::QueuedConnection);
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(collector.bytes.size(), 2 * rounds);
    QTRY_COMPARE(port.received().size(), 3 * rounds);
    QCOMPARE(lost.count(), 0);
}

void TestSerialLink::whatComesInIsHandedUpAtOnceIfWanted_data()
{
    QTest::addColumn<bool>("atOnce");

    QTest::newRow("at once") << true;
    QTest::newRow("after a wait for more") << false;
}

void TestSerialLink::whatComesInIsHandedUpAtOnceIfWanted()
{
    QFETCH(bool, atOnce);
    const TestPort port;
    SerialLink link(longestRead);
    if (atOnce) {
        link.handUpAtOnce();
    }
    const Collector collector(link);
    QVERIFY(link.open(settingsAt(port)));
    // Called behind the link, when the port announces what has come in.
    int handedUpBefore = -1;
    connect(portOf(link), &QSerialPort::readyRead, this, [&] {
        if (handedUpBefore < 0) {
            handedUpBefore = collector.handlers;
        }
    });
    port.send("bytes");
    QTRY_COMPARE(collector.bytes, QByteArray("bytes"));
    QCOMPARE(handedUpBefore, atOnce ? 1 : 0);
}

void TestSerialLink::whatTheFarEndDoesNotTakeIsNotDrained()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.isDrained());
    QVERIFY(link.open(settingsAt(port)));
    QVERIFY(link.isDrained());
    const QByteArray block = numberedBytes(200000);
    link.write(block);
    QVERIFY(!link.isDrained());
    QTRY_COMPARE(port.received().size(), block.size());
    QTRY_VERIFY(link.isDrained());
    link.write(block);
    link.close();
    QVERIFY(link.isDrained());
}

QTEST_GUILESS_MAIN(TestSerialLink)
#include "tst_seriallink.moc"
