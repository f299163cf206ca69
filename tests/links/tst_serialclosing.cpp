#include "serialbench.h"

#include <QSignalSpy>
#include <QtTest>

/// A serial link that is closed, or lost.
class TestSerialClosing : public QObject
{
    Q_OBJECT

private slots:
    void aHandlerMayCloseTheLink();
    void closingHandsUpWhatWasAnnounced();
    void closingDropsWhatWasNotAnnounced();
    void lossIsSignalledOnce();
    void lossIsSignalledBehindTheLastBytes();
    void lossIsNotSignalledOfAClosedLink();
    void aLostLinkOpensAgain();
};

void TestSerialClosing::aHandlerMayCloseTheLink()
{
    const TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    Collector collector(link);
    collector.whileBusy = [&] {
        port.send("unheard");
        QTRY_VERIFY(portOf(link)->bytesAvailable() > 0);
        link.close();
    };
    port.send("!");
    QTRY_COMPARE(collector.bytes, QByteArray("!"));
    QVERIFY(link.open(settingsAt(port)));
    port.send("?");
    QTRY_COMPARE(collector.bytes, QByteArray("!?"));
}

void TestSerialClosing::closingHandsUpWhatWasAnnounced()
{
    const TestPort port;
    SerialLink link(longestRead);
    const Collector collector(link);
    QVERIFY(link.open(settingsAt(port)));
    QSignalSpy announced(portOf(link), &QSerialPort::readyRead);
    port.send("announced");
    connect(portOf(link), &QSerialPort::readyRead, &link, &SerialLink::close, Qt::QueuedConnection);
    QVERIFY(announced.wait());
    QTRY_VERIFY(!link.isOpen());
    QCOMPARE(collector.bytes, QByteArray("announced"));
}

void TestSerialClosing::closingDropsWhatWasNotAnnounced()
{
    const TestPort port;
    SerialLink link(longestRead);
    const Collector collector(link);
    QVERIFY(link.open(settingsAt(port)));
    port.send("old");
    // Without running the event loop, so that the port can't announce it.
    while (waitingInTheSystem(*portOf(link)) < 3) {
        std::this_thread::yield();
    }
    link.close();
    QVERIFY(link.open(settingsAt(port)));
    port.send("new");
    QTRY_COMPARE(collector.bytes, QByteArray("new"));
}

void TestSerialClosing::lossIsSignalledOnce()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
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

void TestSerialClosing::lossIsSignalledBehindTheLastBytes()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    const Collector collector(link);
    QByteArray heardBefore;
    QSignalSpy lost(&link, &SerialLink::lost);
    connect(&link, &SerialLink::lost, this, [&] { heardBefore = collector.bytes; });
    connect(portOf(link), &QSerialPort::readyRead, this, [&port] { port.unplug(); });
    port.send("last words");
    QVERIFY(lost.wait());
    QCOMPARE(heardBefore, QByteArray("last words"));
}

void TestSerialClosing::lossIsNotSignalledOfAClosedLink()
{
    TestPort port;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(port)));
    QSignalSpy lost(&link, &SerialLink::lost);
    port.unplug();
    link.write("into the void");
    link.close();
    QCoreApplication::processEvents();
    QCOMPARE(lost.count(), 0);
}

void TestSerialClosing::aLostLinkOpensAgain()
{
    TestPort gone;
    const TestPort next;
    SerialLink link(longestRead);
    QVERIFY(link.open(settingsAt(gone)));
    QSignalSpy lost(&link, &SerialLink::lost);
    gone.unplug();
    QVERIFY(lost.wait());
    QVERIFY(link.open(settingsAt(next)));
    QSignalSpy arrived(&link, &SerialLink::arrived);
    next.send("hello");
    QVERIFY(arrived.wait());
    QCOMPARE(arrived.at(0).at(0).toByteArray(), QByteArray("hello"));
}

QTEST_GUILESS_MAIN(TestSerialClosing)
#include "tst_serialclosing.moc"
