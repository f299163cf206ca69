#include "fakehid.h"
#include "fakesystemwatch.h"
#include "links/watch/devicenames.h"
#include "session/session.h"
#include "testport.h"

#include <QTemporaryDir>
#include <QtTest>

class TestLostLinks : public QObject
{
    Q_OBJECT

private slots:
    void aFailedPortIsClosedAndNamed();
    void aFailedHidDeviceIsClosedAndNamed();
    void aPortThatGoesIsClosedBeforeItsRow();
    void aHidDeviceThatGoesIsClosedBeforeItsRow();
    void otherDevicesAreOnlyRecorded();
};

namespace {

const QByteArray lostPath = "/dev/hidraw-of-a-session";
constexpr DeviceIds hidIds{0xEEEF, 0x1616};

/// A session whose links go, with all that it tells and records in one list.
class LossBench
{
public:
    LossBench()
    {
        FakeHid::instance().reset();
        FakeHid::instance().addDevice(lostPath, hidIds.vendor, hidIds.product);
        session.links().hid().readDeviceTypes();
        session.links().hid().listDevices();
        session.setHeaderText("0x5A,0xA5");
        session.devices().start({});
        QObject::connect(&session, &Session::linkFailed, &session,
                         [this](LinkMode mode, const QString &name, const QString &reason) {
                             heard.append("failed " + describe(mode, name) + ": " + reason);
                         });
        QObject::connect(&session, &Session::deviceGone, &session,
                         [this](LinkMode mode, const QString &name) {
                             heard.append("gone " + describe(mode, name));
                         });
        QObject::connect(&session.log(), &RecordLog::appended, &session,
                         [this](const LogRecord &record) {
                             if (record.kind == LogRecord::Kind::Event) {
                                 heard.append(record.source + ' ' + record.text.english);
                             }
                         });
    }

    /// Opens the port and starts a loop on it.
    bool loopOverPort()
    {
        SerialSettings settings;
        settings.portName = port.path();
        const bool opened = session.links().serial().open(settings);
        startLoop();
        return opened;
    }

    /// Opens the HID device and starts a loop on it.
    bool loopOverHid()
    {
        session.use(LinkMode::Hid);
        const bool opened = session.links().hid().open(lostPath, 0);
        startLoop();
        return opened;
    }

    TestPort port;
    QTemporaryDir folder;
    Session session{folder.filePath("hidDeviceID.ini"), {}};
    QStringList heard;

private:
    void startLoop() { session.loop().start({{1, "0310"}}, {1, 0}); }

    /// With a mark where the link or the loop goes on.
    QString describe(LinkMode mode, const QString &name)
    {
        const bool isOpen = session.links().serial().isOpen() || session.links().hid().isOpen();
        const bool goesOn = isOpen || session.loop().isRunning();
        return QString(mode == LinkMode::Uart ? "Uart " : "HID ") + name + (goesOn ? "!" : "");
    }
};

WatchedDevice hidDevice()
{
    return {DeviceKind::Hid, lostPath, hidDeviceName(lostPath, hidIds)};
}

} // namespace

void TestLostLinks::aFailedPortIsClosedAndNamed()
{
    LossBench bench;
    QVERIFY(bench.loopOverPort());
    bench.port.unplug();
    QTRY_COMPARE(bench.heard,
                 QStringList{"failed Uart " + bench.port.path() + ": the device is gone"});
}

void TestLostLinks::aFailedHidDeviceIsClosedAndNamed()
{
    LossBench bench;
    FakeHid::instance().failWrites();
    QVERIFY(bench.loopOverHid());
    QTRY_COMPARE(bench.heard.size(), 1);
    QVERIFY(bench.heard.at(0).startsWith("failed HID " + lostPath + ": "));
    QCOMPARE(FakeHid::instance().openHandles(), 0);
}

void TestLostLinks::aPortThatGoesIsClosedBeforeItsRow()
{
    LossBench bench;
    QVERIFY(bench.loopOverPort());
    FakeSystem::instance().pullOut({DeviceKind::Port, bench.port.path(), bench.port.path()});
    QCOMPARE(bench.heard,
             (QStringList{"gone Uart " + bench.port.path(), "Uart Remove " + bench.port.path()}));
}

void TestLostLinks::aHidDeviceThatGoesIsClosedBeforeItsRow()
{
    LossBench bench;
    QVERIFY(bench.loopOverHid());
    FakeSystem::instance().pullOut(hidDevice());
    QCOMPARE(bench.heard,
             (QStringList{"gone HID " + lostPath, "HID Remove " + hidDevice().name.toUpper()}));
}

void TestLostLinks::otherDevicesAreOnlyRecorded()
{
    LossBench bench;
    QVERIFY(bench.loopOverPort());
    FakeSystem::instance().plugIn(hidDevice());
    FakeSystem::instance().pullOut(hidDevice());
    FakeSystem::instance().pullOut({DeviceKind::Port, "ttyUSB9", "ttyUSB9"});
    QCOMPARE(bench.heard,
             (QStringList{"HID Insert " + hidDevice().name.toUpper(),
                          "HID Remove " + hidDevice().name.toUpper(), "Uart Remove ttyUSB9"}));
    QVERIFY(bench.session.links().serial().isOpen());
    QVERIFY(bench.session.loop().isRunning());
    bench.session.end();
}

QTEST_GUILESS_MAIN(TestLostLinks)

#include "tst_lostlinks.moc"
