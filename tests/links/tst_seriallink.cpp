#include "seriallink.h"
#include "testport.h"

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
    void closingDropsWhatHasArrived();
    void dataDuringAWriteAreSignalledAfterIt();
    void writingWhileDataComeInIsNoLoss();
    void lossIsSignalledOnce();
    void lossIsNotSignalledOfAClosedLink();
    void aLostLinkOpensAgain();
};

namespace {

constexpr int longestRead = 4096;

SerialSettings at(const TestPort &port)
{
    SerialSettings settings;
    settings.portName = port.path();
    return settings;
}

QByteArray numbered(int bytes)
{
    QByteArray data;
    for (int i = 0; data.size() < bytes; ++i) {
        data.append(QByteArray::number(i)).append(' ');
    }
    return data.left(bytes);
}

} // namespace

void TestSerialLink::closedLinkTakesNothing()
{
    SerialLink link(longestRead);
    const Link &closed = link;
    QVERIFY(!closed.isOpen());
    QCOMPARE(closed.closedMessage(), QString("Please open the Com Port!"));
    QCOMPARE(closed.longestInstruction(), 65535);
    QCOMPARE(link.openPortName(), QString());
    QCOMPARE(link.readArrived(), QByteArray());
    link.waitForWritten();
    link.close();
}

void TestSerialLink::openLinkKnowsItsPort()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
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
    QVERIFY(!link.open(settings));
    QVERIFY(!link.isOpen());
    QCOMPARE(link.openPortName(), QString());
}

void TestSerialLink::aPortIsOpenOnlyOnce()
{
    const TestPort port;
    SerialLink first(longestRead);
    SerialLink second(longestRead);
    QVERIFY(first.open(at(port)));
    QVERIFY(!second.open(at(port)));
    first.close();
    QVERIFY(second.open(at(port)));
}

void TestSerialLink::openingClosesTheOtherPort()
{
    TestPort former;
    const TestPort next;
    SerialLink link(longestRead);
    SerialLink other(longestRead);
    QVERIFY(link.open(at(former)));
    QVERIFY(link.open(at(next)));
    QCOMPARE(link.openPortName(), next.path());
    QVERIFY(other.open(at(former)));
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
    SerialSettings settings = at(port);
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
    QVERIFY(link.open(at(port)));
    QByteArray all;
    for (int i = 0; i < 100; ++i) {
        const QByteArray block = QByteArray::number(i).append(' ');
        link.write(block);
        if (i % 2 == 0) {
            link.waitForWritten();
        }
        all.append(block);
    }
    QTRY_COMPARE(port.received(), all);
}

void TestSerialLink::aLongBlockArrivesWhole()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    const QByteArray block = numbered(200000);
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
    QVERIFY(link.open(at(port)));
    QByteArray all;
    int longest = 0;
    connect(&link, &SerialLink::arrived, this, [&] {
        const QByteArray part = link.readArrived();
        longest = std::max(longest, part.size());
        all.append(part);
    });
    const QByteArray sent = numbered(3000);
    port.send(sent);
    QTRY_COMPARE(all.size(), sent.size());
    QCOMPARE(all, sent);
    QCOMPARE(longest, bound);
}

void TestSerialLink::closingDropsWhatHasArrived()
{
    const TestPort port;
    SerialLink link(longestRead);
    QSignalSpy arrived(&link, &SerialLink::arrived);
    QVERIFY(link.open(at(port)));
    port.send("old");
    QVERIFY(arrived.wait());
    link.close();
    QVERIFY(link.open(at(port)));
    port.send("new");
    QVERIFY(arrived.wait());
    QCOMPARE(link.readArrived(), QByteArray("new"));
}

void TestSerialLink::dataDuringAWriteAreSignalledAfterIt()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    QSignalSpy arrived(&link, &SerialLink::arrived);
    port.send("meanwhile");
    const QByteArray block = numbered(100000);
    link.write(block);
    std::thread farEnd([&] {
        while (port.received().size() < block.size()) {
            std::this_thread::yield();
        }
    });
    link.waitForWritten();
    const int signalledInTheMiddle = arrived.count();
    farEnd.join();
    QCOMPARE(signalledInTheMiddle, 0);
    QVERIFY(arrived.wait());
    QCOMPARE(link.readArrived(), QByteArray("meanwhile"));
    QCOMPARE(port.received(), block);
}

void TestSerialLink::writingWhileDataComeInIsNoLoss()
{
    constexpr int rounds = 300;
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    const QSignalSpy lost(&link, &SerialLink::lost);
    int taken = 0;
    connect(&link, &SerialLink::arrived, this, [&] { taken += link.readArrived().size(); });
    for (int round = 1; round <= rounds; ++round) {
        port.send("in");
        QMetaObject::invokeMethod(
            &link,
            [&link] {
                link.write("out");
                link.waitForWritten();
            },
            Qt::QueuedConnection);
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(taken, 2 * rounds);
    QTRY_COMPARE(port.received().size(), 3 * rounds);
    QCOMPARE(lost.count(), 0);
}

void TestSerialLink::lossIsSignalledOnce()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    QSignalSpy lost(&link, &SerialLink::lost);
    port.unplug();
    QVERIFY(lost.wait());
    QCOMPARE(lost.at(0).at(0).toString(), QString("the device is gone"));
    for (int i = 0; i < 100; ++i) {
        link.write("more");
        QCoreApplication::processEvents();
    }
    QCOMPARE(lost.count(), 1);
    QCOMPARE(link.openPortName(), port.path());
}

void TestSerialLink::lossIsNotSignalledOfAClosedLink()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    QSignalSpy lost(&link, &SerialLink::lost);
    port.unplug();
    link.write("into the void");
    link.close();
    QCoreApplication::processEvents();
    QCOMPARE(lost.count(), 0);
}

void TestSerialLink::aLostLinkOpensAgain()
{
    TestPort gone;
    const TestPort next;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(gone)));
    QSignalSpy lost(&link, &SerialLink::lost);
    gone.unplug();
    QVERIFY(lost.wait());
    QVERIFY(link.open(at(next)));
    QSignalSpy arrived(&link, &SerialLink::arrived);
    next.send("hello");
    QVERIFY(arrived.wait());
    QCOMPARE(link.readArrived(), QByteArray("hello"));
}

QTEST_GUILESS_MAIN(TestSerialLink)
#include "tst_seriallink.moc"
