#include "attachedhid.h"
#include "links/hid/hidlink.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <iterator>

using Function = HidCall::Function;

/// What comes from a device that is open, its loss and its end.
class TestHidArrivals : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void received();
    void packetsFromElsewhere_data();
    void packetsFromElsewhere();
    void aBusyHandlerLosesNothing();
    void closingHandsUpWhatHasArrived();
    void disconnectionIsSignalledOnce();
    void nothingOldAfterReopening();
    void closingFromTheSignal();
    void reopeningUnderLoad();

private:
    FakeHid &m_fake = FakeHid::instance();
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void TestHidArrivals::init()
{
    attachDevices(m_fake);
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("hidDeviceID.ini");
}

void TestHidArrivals::cleanup()
{
    QCOMPARE(m_fake.misuses(), 0);
    QCOMPARE(m_fake.openHandles(), 0);
}

void TestHidArrivals::received()
{
    HidLink link(m_file);
    QSignalSpy spy(&link, &HidLink::arrived);
    QVERIFY(link.open(smallPath, 9));
    m_fake.sendReport("answer");
    m_fake.sendReport("another");
    QTRY_COMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).toByteArray(), QByteArray("answer"));
    QCOMPARE(spy.at(1).at(0).toByteArray(), QByteArray("another"));
}

void TestHidArrivals::packetsFromElsewhere_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("bytes");

    QTest::newRow("usual") << 3 << 3;
    QTest::newRow("all there is") << longestReport << longestReport;
    QTest::newRow("more than there is") << longestReport + 1 << longestReport;
}

void TestHidArrivals::packetsFromElsewhere()
{
    QFETCH(int, length);
    QFETCH(int, bytes);
    HidLink link(m_file);
    QSignalSpy spy(&link, &HidLink::arrived);
    HidPacket nothing;
    nothing.length = -1;
    link.receive(nothing);
    HidPacket packet;
    packet.data[0] = 'i';
    std::fill(packet.data + 1, std::end(packet.data), 'd');
    packet.length = length;
    link.receive(packet);
    QCOMPARE(spy.size(), 0);
    QVERIFY(spy.wait());
    QCOMPARE(spy.at(0).at(0).toByteArray(), QByteArray(bytes, 'd'));
}

void TestHidArrivals::aBusyHandlerLosesNothing()
{
    constexpr int reports = 20;
    m_fake.readWithoutWaiting();
    HidLink link(m_file);
    QStringList heard;
    int heardWhileBusy = 0;
    connect(&link, &HidLink::arrived, this, [&](const QByteArray &report) {
        heard.append(report);
        if (heard.size() == 1) {
            QTRY_COMPARE(m_fake.waitingReports(), 0);
            QTest::qWait(20);
            heardWhileBusy = heard.size();
        }
    });
    QStringList sent;
    for (int i = 0; i < reports; ++i) {
        sent.append(QString::number(i));
        m_fake.sendReport(sent.constLast().toLatin1());
    }
    QVERIFY(link.open(smallPath, 0));
    QTRY_COMPARE(heard, sent);
    QCOMPARE(heardWhileBusy, 1);
}

void TestHidArrivals::closingHandsUpWhatHasArrived()
{
    HidLink link(m_file);
    QSignalSpy spy(&link, &HidLink::arrived);
    QVERIFY(link.open(smallPath, 0));
    HidPacket packet;
    packet.length = 1;
    link.receive(packet);
    link.close();
    QCOMPARE(spy.size(), 1);
    link.receive(packet);
    QVERIFY(link.open(largePath, 0));
    QCOMPARE(spy.size(), 2);
}

void TestHidArrivals::disconnectionIsSignalledOnce()
{
    HidLink link(m_file);
    QSignalSpy spy(&link, &HidLink::lost);
    QVERIFY(link.open(smallPath, 0));
    m_fake.failWrites();
    link.write(QByteArray(640, 'x'));
    QTRY_COMPARE(spy.size(), 1);
    QVERIFY(link.isOpen());
    link.close();
    QVERIFY(!link.isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(m_fake.written().size(), 1);
}

/// What the old device sent last must neither end the next connection nor be shown there.
void TestHidArrivals::nothingOldAfterReopening()
{
    HidLink link(m_file);
    QSignalSpy disconnections(&link, &HidLink::lost);
    QSignalSpy packets(&link, &HidLink::arrived);
    QVERIFY(link.open(smallPath, 0));
    m_fake.sendReport("old");
    m_fake.failWrites(1);
    link.write(QByteArray(128, 'x'));
    // Without running the event loop, so that the signals are still on their way.
    while (m_fake.written().size() < 2) {
        QThread::yieldCurrentThread();
    }
    QVERIFY(link.open(largePath, 0));
    const int read = m_fake.count(Function::Read);
    QTRY_VERIFY(m_fake.count(Function::Read) > read);
    QCOMPARE(disconnections.size(), 0);
    QCOMPARE(packets.size(), 0);
    QVERIFY(link.isOpen());
}

void TestHidArrivals::closingFromTheSignal()
{
    HidLink link(m_file);
    connect(&link, &HidLink::lost, &link, &HidLink::close);
    QVERIFY(link.open(smallPath, 0));
    m_fake.failWrites();
    link.write("x");
    QTRY_VERIFY(!link.isOpen());
    QCOMPARE(m_fake.count(Function::Close), 1);
}

void TestHidArrivals::reopeningUnderLoad()
{
    m_fake.readWithoutWaiting();
    HidLink link(m_file);
    int packets = 0;
    connect(&link, &HidLink::arrived, this, [&packets] { ++packets; });
    for (int round = 0; round < 50; ++round) {
        QVERIFY(link.open(round % 2 == 0 ? smallPath : largePath, quint8(round)));
        link.write(QByteArray(10'000, 'x'));
        m_fake.sendReport(QByteArray(64, 'y'));
        const int before = packets;
        QTRY_VERIFY(packets > before);
        if (round % 3 == 0) {
            link.close();
        }
    }
}

QTEST_GUILESS_MAIN(TestHidArrivals)
#include "tst_hidarrivals.moc"
