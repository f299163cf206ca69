#include "links/serial/seriallink.h"
#include "testport.h"

#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <sys/ioctl.h>
#include <thread>
#include <utility>

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
    void aHandlerMayCloseTheLink();
    void closingHandsUpWhatWasAnnounced();
    void closingDropsWhatWasNotAnnounced();
    void dataDuringAWriteAreSignalledAfterIt();
    void writingWhileDataComeInIsNoLoss();
    void lossIsSignalledOnce();
    void lossIsSignalledBehindTheLastBytes();
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

QSerialPort *portOf(const SerialLink &link)
{
    return link.findChild<QSerialPort *>();
}

/// Bytes that have come in and have not been read yet.
int waitingInTheSystem(const QSerialPort &port)
{
    int bytes = 0;
    ioctl(port.handle(), FIONREAD, &bytes);
    return bytes;
}

/// All that a link hands up.
class Collector : public QObject
{
public:
    explicit Collector(const SerialLink &link)
    {
        connect(&link, &SerialLink::arrived, this, [this](const QByteArray &part) {
            bytes += part;
            if (++handlers == 1) {
                whileBusy();
            }
        });
    }

    QByteArray bytes;
    int handlers = 0;
    /// Run by the first handler.
    std::function<void()> whileBusy = [] {};
};

} // namespace

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
    connect(&link, &SerialLink::arrived, this, [&](const QByteArray &part) {
        longest = std::max(longest, part.size());
        all.append(part);
    });
    const QByteArray sent = numbered(3000);
    port.send(sent);
    QTRY_COMPARE(all.size(), sent.size());
    QCOMPARE(all, sent);
    QCOMPARE(longest, bound);
}

void TestSerialLink::nothingStandsStillWhileMoreIsAwaited()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
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
    QVERIFY(link.open(at(port)));
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
    QVERIFY(link.open(at(port)));
    const Collector collector(link);
    const QByteArray sent = numbered(20000);
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
    QVERIFY(link.open(at(port)));
    const QByteArray sent = numbered(bytes);
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

void TestSerialLink::aHandlerMayCloseTheLink()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    Collector collector(link);
    collector.whileBusy = [&] {
        port.send("unheard");
        QTRY_VERIFY(portOf(link)->bytesAvailable() > 0);
        link.close();
    };
    port.send("!");
    QTRY_COMPARE(collector.bytes, QByteArray("!"));
    QVERIFY(link.open(at(port)));
    port.send("?");
    QTRY_COMPARE(collector.bytes, QByteArray("!?"));
}

void TestSerialLink::closingHandsUpWhatWasAnnounced()
{
    const TestPort port;
    SerialLink link(longestRead);
    const Collector collector(link);
    QVERIFY(link.open(at(port)));
    QSignalSpy announced(portOf(link), &QSerialPort::readyRead);
    port.send("announced");
    connect(portOf(link), &QSerialPort::readyRead, &link, &SerialLink::close, Qt::QueuedConnection);
    QVERIFY(announced.wait());
    QTRY_VERIFY(!link.isOpen());
    QCOMPARE(collector.bytes, QByteArray("announced"));
}

void TestSerialLink::closingDropsWhatWasNotAnnounced()
{
    const TestPort port;
    SerialLink link(longestRead);
    const Collector collector(link);
    QVERIFY(link.open(at(port)));
    port.send("old");
    // Without running the event loop, so that the port can't announce it.
    while (waitingInTheSystem(*portOf(link)) < 3) {
        std::this_thread::yield();
    }
    link.close();
    QVERIFY(link.open(at(port)));
    port.send("new");
    QTRY_COMPARE(collector.bytes, QByteArray("new"));
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
    QVERIFY(link.open(at(port)));
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

void TestSerialLink::lossIsSignalledBehindTheLastBytes()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(at(port)));
    const Collector collector(link);
    QByteArray heardBefore;
    QSignalSpy lost(&link, &SerialLink::lost);
    connect(&link, &SerialLink::lost, this, [&] { heardBefore = collector.bytes; });
    connect(portOf(link), &QSerialPort::readyRead, this, [&port] { port.unplug(); });
    port.send("last words");
    QVERIFY(lost.wait());
    QCOMPARE(heardBefore, QByteArray("last words"));
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
    QCOMPARE(arrived.at(0).at(0).toByteArray(), QByteArray("hello"));
}

QTEST_GUILESS_MAIN(TestSerialLink)
#include "tst_seriallink.moc"
