#include "fakehid.h"
#include "session/session.h"
#include "testport.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QtTest>

class TestWireTap : public QObject
{
    Q_OBJECT

private slots:
    void whatARowSendsCarriesTheRow();
    void aBlockIsToldFrameByFrameAsItWasMade();
    void aLoopTellsItsRows_data();
    void aLoopTellsItsRows();
    void framesAndStrayBytesAreTold();
    void theCrcIsChecked();
    void silenceEndsFramesWhereNothingElseDoes();
    void everyByteComesWhateverTheLogDoes();
    void whatComesWhileAMessageIsShownIsTold();
    void openingAndClosingAreTold();
    void aLossIsToldWithItsReason();
    void whatNeverLeftIsTold();
    void anUnfinishedFrameIsToldAtTheEnd();
    void zerosOfAHidDeviceAreToldToo();
    void nothingIsToldBeforeAndAfter();
    void theHeadTellsTheOpenLink();
};

namespace {

const QByteArray tappedHidPath = "/dev/hidraw-of-a-session";

/// A session that is being recorded, with all that its tap tells.
class TapBench
{
public:
    TapBench()
    {
        FakeHid::instance().reset();
        FakeHid::instance().addDevice(tappedHidPath, 0xEEEF, 0x1616);
        session.links().hid().readDeviceTypes();
        session.setHeaderText("0x5A,0xA5");
        QObject::connect(&session.tap(), &WireTap::happened, &session,
                         [this](const RecordEvent &event) { events.append(event); });
        session.tap().start();
    }

    bool openPort()
    {
        SerialSettings settings;
        settings.portName = port.path();
        return session.links().serial().open(settings);
    }

    /// Opens the port before anything is told.
    bool openPortUntold()
    {
        const bool isOpen = openPort();
        events.clear();
        return isOpen;
    }

    /// What was told, like "0 5aa5020310 3 Read" (kind, bytes, row, text).
    QStringList told() const
    {
        QStringList all;
        for (const RecordEvent &event : events) {
            QString line = QString::number(int(event.kind)) + ' ' + event.bytes.toHex();
            if (event.row > 0) {
                line += QString(" %1").arg(event.row);
            }
            all.append(event.text.isEmpty() ? line : line + ' ' + event.text);
        }
        return all;
    }

    QByteArray bytesOfKind(RecordEvent::Kind kind) const
    {
        QByteArray bytes;
        for (const RecordEvent &event : events) {
            bytes += event.kind == kind ? event.bytes : QByteArray();
        }
        return bytes;
    }

    TestPort port;
    QTemporaryDir folder;
    Session session{folder.filePath("hidDeviceID.ini"), {}};
    QVector<RecordEvent> events;
};

} // namespace

void TestWireTap::whatARowSendsCarriesTheRow()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    const ArrivalTime before = ArrivalTime::now();
    bench.session.sender().sendOne(CheckedRow{7, "0310", "Read"});
    bench.session.sender().sendOne(QString("0311"));
    QCOMPARE(bench.told(), (QStringList{"0 5aa5020310 7 Read", "0 5aa5020311"}));
    QVERIFY(bench.events.at(0).time.monotonicNs >= before.monotonicNs);
    QVERIFY(bench.events.at(1).time.monotonicNs <= ArrivalTime::now().monotonicNs);
    QTRY_COMPARE(bench.port.received(), QByteArray::fromHex("5AA50203105AA5020311"));
}

void TestWireTap::aBlockIsToldFrameByFrameAsItWasMade()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    // The second payload has start bytes in it, the third is no frame, the fourth a pause.
    bench.session.sender().sendAll({{2, "0310", "a"},
                                    {3, "035AA5015AA5", ""},
                                    {4, "0", "c"},
                                    {5, "++100", "d"},
                                    {6, "04", "e"}});
    QCOMPARE(bench.told(),
             (QStringList{"0 5aa5020310 2 a", "0 5aa506035aa5015aa5 3", "0 5aa50104 6 e"}));
    QTRY_COMPARE(bench.port.received(), bench.bytesOfKind(RecordEvent::Kind::Sent));
}

void TestWireTap::aLoopTellsItsRows_data()
{
    QTest::addColumn<int>("intervalMs");
    QTest::newRow("rows") << 1;
    QTest::newRow("blocks") << 0;
}

void TestWireTap::aLoopTellsItsRows()
{
    QFETCH(int, intervalMs);
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    bench.session.loop().start({{2, "035AA5", "a"}, {4, "0311", "b"}}, {intervalMs, 5});
    QTRY_VERIFY(bench.events.size() >= 4);
    bench.session.loop().stop();
    const QStringList pass{"0 5aa503035aa5 2 a", "0 5aa5020311 4 b"};
    QCOMPARE(bench.told().mid(0, 4), pass + pass);
}

void TestWireTap::framesAndStrayBytesAreTold()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    bench.port.send(QByteArray::fromHex("00FF5AA50203105AA501"));
    QTRY_COMPARE(bench.told(), (QStringList{"2 00ff", "1 5aa5020310"}));
    bench.port.send("B");
    QTRY_COMPARE(bench.told().size(), 3);
    QCOMPARE(bench.told().last(), QString("1 5aa50142"));
}

void TestWireTap::theCrcIsChecked()
{
    TapBench bench;
    bench.session.format().setCrc(true);
    QVERIFY(bench.openPortUntold());
    bench.session.sender().sendOne(CheckedRow{1, "010300000001", ""});
    bench.port.send(QByteArray::fromHex("5AA508010300000001840A5AA508010300000001840B00"));
    QTRY_COMPARE(bench.events.size(), 4);
    QCOMPARE(bench.events.at(0).crc, RecordEvent::Crc::Ok);
    QCOMPARE(bench.events.at(1).crc, RecordEvent::Crc::Ok);
    QCOMPARE(bench.events.at(2).crc, RecordEvent::Crc::Bad);
    QCOMPARE(bench.events.at(3).crc, RecordEvent::Crc::None);
}

/// They are what the format says, in both directions.
void TestWireTap::silenceEndsFramesWhereNothingElseDoes()
{
    TapBench bench;
    bench.session.format().setStartBytes(false);
    bench.session.format().setLength(false);
    bench.session.format().setCrc(true);
    bench.session.setFrameGap(5);
    QVERIFY(bench.openPortUntold());
    QCOMPARE(bench.session.tap().head().startBytes, QByteArray());
    bench.session.sender().sendOne(CheckedRow{1, "010300000001", ""});
    bench.port.send(QByteArray::fromHex("0103021234B533"));
    QTRY_COMPARE(bench.told(), (QStringList{"0 010300000001840a 1", "1 0103021234b533"}));
    QCOMPARE(bench.events.at(0).crc, RecordEvent::Crc::Ok);
    QCOMPARE(bench.events.at(1).crc, RecordEvent::Crc::Ok);
    // What no silence has ended is told when the recording ends.
    bench.session.setFrameGap(60000);
    QSignalSpy arrived(&bench.session.links().serial(), &Link::arrived);
    bench.port.send("B");
    QVERIFY(arrived.wait());
    QCOMPARE(bench.events.size(), 2);
    bench.session.tap().stop();
    QCOMPARE(bench.told().value(2), QString("1 42"));
}

void TestWireTap::everyByteComesWhateverTheLogDoes()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    QByteArray sent;
    // More than the log holds, which is cleared on top of that.
    for (int i = 0; i < 3000; ++i) {
        const QByteArray frame =
            QByteArray::fromHex("5AA503") + QByteArray(3, char(i)) + (i % 7 == 0 ? "?" : "");
        sent += frame;
        bench.port.send(frame);
        if (i % 500 == 0) {
            QTRY_VERIFY(bench.events.size() >= i);
            bench.session.log().clear();
        }
    }
    const auto received = [&bench] {
        QByteArray bytes;
        for (const RecordEvent &event : bench.events) {
            bytes += event.bytes;
        }
        return bytes;
    };
    QTRY_COMPARE(received().size(), sent.size());
    QVERIFY(received() == sent);
    QVERIFY(bench.session.log().count() < 3000);
}

void TestWireTap::whatComesWhileAMessageIsShownIsTold()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    bench.session.setHeaderText("0x5A");
    QStringList toldMeanwhile;
    QObject::connect(&bench.session, &Session::notice, &bench.session, [&] {
        bench.port.send(QByteArray::fromHex("A55A020311"));
        QEventLoop messageBox;
        QObject::connect(&bench.session.tap(), &WireTap::happened, &messageBox, &QEventLoop::quit);
        messageBox.exec();
        toldMeanwhile = bench.told();
    });
    bench.port.send(QByteArray::fromHex("A55A020310"));
    QTRY_COMPARE(toldMeanwhile, (QStringList{"1 a55a020310", "1 a55a020311"}));
}

void TestWireTap::openingAndClosingAreTold()
{
    TapBench bench;
    QVERIFY(bench.openPort());
    bench.session.endLink(LinkMode::Uart);
    QCOMPARE(bench.told(), (QStringList{"3 ", "4 "}));
    QCOMPARE(bench.events.at(0).link, bench.port.path());
    QCOMPARE(bench.events.at(0).settings, QString("115200 8N1"));
    QCOMPARE(bench.events.at(1).link, bench.port.path());
    bench.session.use(LinkMode::Hid);
    QVERIFY(bench.session.links().hid().open(tappedHidPath, 3));
    QCOMPARE(bench.events.at(2).link, QString(tappedHidPath));
    QCOMPARE(bench.events.at(2).settings, QString("64 bytes, report ID 0x03"));
}

void TestWireTap::aLossIsToldWithItsReason()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    bench.port.send(QByteArray::fromHex("5AA50203105AA509"));
    QTRY_COMPARE(bench.events.size(), 1);
    bench.port.unplug();
    QTRY_COMPARE(bench.events.size(), 3);
    QCOMPARE(bench.told().at(1), QString("2 5aa509"));
    QCOMPARE(bench.events.at(2).kind, RecordEvent::Kind::Close);
    QVERIFY(!bench.events.at(2).text.isEmpty());
}

void TestWireTap::whatNeverLeftIsTold()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    // More than a terminal takes that nobody reads.
    const QString frame = "42" + QString(60000, '0');
    bench.session.sender().sendOne(CheckedRow{1, frame, ""});
    const qint64 unsent = bench.session.links().serial().unsentBytes();
    QVERIFY(unsent > 0);
    bench.session.end();
    QCOMPARE(bench.told().at(1), QString("5  %1 bytes of what was sent never left").arg(unsent));
    QCOMPARE(bench.events.at(2).kind, RecordEvent::Kind::Close);
}

void TestWireTap::anUnfinishedFrameIsToldAtTheEnd()
{
    TapBench bench;
    QVERIFY(bench.openPortUntold());
    bench.port.send(QByteArray::fromHex("5AA501425AA50510"));
    QTRY_COMPARE(bench.told(), (QStringList{"1 5aa50142"}));
    bench.session.tap().stop();
    QCOMPARE(bench.told().value(1), QString("2 5aa50510"));
}

void TestWireTap::zerosOfAHidDeviceAreToldToo()
{
    TapBench bench;
    bench.session.use(LinkMode::Hid);
    QVERIFY(bench.session.links().hid().open(tappedHidPath, 0));
    FakeHid::instance().sendReport(QByteArray::fromHex("5AA50142000000"));
    QTRY_COMPARE(bench.events.size(), 3);
    QCOMPARE(bench.told().mid(1), (QStringList{"1 5aa50142", "2 000000"}));
}

void TestWireTap::nothingIsToldBeforeAndAfter()
{
    TapBench bench;
    bench.session.tap().stop();
    QVERIFY(bench.openPort());
    bench.session.sender().sendOne(QString("0310"));
    bench.port.send(QByteArray::fromHex("5AA5020310"));
    QTRY_COMPARE(bench.session.log().count(), 2);
    bench.session.end();
    QVERIFY(bench.events.isEmpty());
}

void TestWireTap::theHeadTellsTheOpenLink()
{
    TapBench bench;
    bench.session.format().setCrc(true);
    QCOMPARE(bench.session.tap().head().link, QString());
    QVERIFY(bench.openPort());
    const RecordingHead head = bench.session.tap().head();
    QCOMPARE(head.link, bench.port.path());
    QCOMPARE(head.settings, QString("115200 8N1"));
    QCOMPARE(head.startBytes, QByteArray::fromHex("5AA5"));
    QVERIFY(head.withCrc);
    const QRegularExpression zone("^[+-][0-9]{2}:[0-9]{2} .+$");
    QVERIFY2(zone.match(head.zone).hasMatch(), qPrintable(head.zone));
}

QTEST_GUILESS_MAIN(TestWireTap)
#include "tst_wiretap.moc"
