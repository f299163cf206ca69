#include "links/hid/hidnode.h"
#include "monitortest.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>

namespace {

SystemDevice hidDevice(int number, const QByteArray &ids)
{
    const QByteArray name = "hidraw" + QByteArray::number(number);
    return {"hidraw", "/devices/virtual/misc/uhid/0003:" + ids + ".0001/hidraw/" + name, name};
}

} // namespace

/// What the system announces of ports and HID devices.
class TestDeviceMonitor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void portComesAndGoes();
    void hidDeviceComesAndGoes();
    void hidDeviceWithoutIdsInItsPath();
    void removalTellsIdsOfDeviceFoundAtStart();
    void unknownHidDevice();
    void whatIsNoPortIsIgnored_data();
    void whatIsNoPortIsIgnored();
    void burst();
    void lostAnnouncements();
    void systemRefuses();
    void listenerEndsTheMonitor();
    void hidNodeIsKnownByItsSubsystem();

private:
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestDeviceMonitor::initTestCase()
{
    const QByteArray trouble = enterPrivateSystem();
    QVERIFY2(trouble.isEmpty(), trouble);
}

void TestDeviceMonitor::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestDeviceMonitor::portComesAndGoes()
{
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(announce("add", usbPort(0)));
    QVERIFY(announce("remove", usbPort(0)));
    QTRY_COMPARE(told, QStringList({"+ port ttyUSB0", "- port ttyUSB0"}));
}

void TestDeviceMonitor::hidDeviceComesAndGoes()
{
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(announce("add", hidDevice(0, "EEEF:1616")));
    QVERIFY(announce("remove", hidDevice(0, "EEEF:1616")));
    QVERIFY(announce("add", hidDevice(0, "EEEF:2929")));
    QTRY_COMPARE(told, QStringList({"+ hid /dev/hidraw0#VID_EEEF&PID_1616",
                                    "- hid /dev/hidraw0#VID_EEEF&PID_1616",
                                    "+ hid /dev/hidraw0#VID_EEEF&PID_2929"}));
}

void TestDeviceMonitor::hidDeviceWithoutIdsInItsPath()
{
    const SystemDevice parent{"hid", "/devices/odd", "", {"HID_ID=0003:0000EEEF:00001616"}};
    const SystemDevice device{"hidraw", "/devices/odd/hidraw/hidraw7", "hidraw7"};
    QVERIFY(plugIn(parent));
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(announce("add", device));
    QTRY_COMPARE(told.size(), 1);
    pullOut(parent);
    QVERIFY(announce("remove", device));
    QTRY_COMPARE(told, QStringList({"+ hid /dev/hidraw7#VID_EEEF&PID_1616",
                                    "- hid /dev/hidraw7#VID_EEEF&PID_1616"}));
}

void TestDeviceMonitor::removalTellsIdsOfDeviceFoundAtStart()
{
    const SystemDevice parent{"hid", "/devices/odd", "", {"HID_ID=0003:0000EEEF:00002929"}};
    const SystemDevice device{"hidraw", "/devices/odd/hidraw/hidraw8", "hidraw8"};
    QVERIFY(plugIn(parent) && plugIn(device));
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    pullOut(device);
    pullOut(parent);
    QVERIFY(announce("remove", device));
    QTRY_COMPARE(told, QStringList("- hid /dev/hidraw8#VID_EEEF&PID_2929"));
}

void TestDeviceMonitor::unknownHidDevice()
{
    const SystemDevice device{"hidraw", "/devices/odd/hidraw/hidraw9", "hidraw9"};
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(announce("remove", device));
    QTRY_COMPARE(told, QStringList("- hid /dev/hidraw9"));
}

void TestDeviceMonitor::whatIsNoPortIsIgnored_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QByteArray>("subsystem");
    QTest::addColumn<QByteArray>("path");

    const auto row = [](const char *name, const char *action, const char *subsystem,
                        const char *path) {
        QTest::newRow(name) << QByteArray(action) << QByteArray(subsystem) << QByteArray(path);
    };
    row("console", "add", "tty", "/devices/virtual/tty/tty7");
    row("console goes", "remove", "tty", "/devices/virtual/tty/tty7");
    row("reserved name", "add", "tty", "/devices/platform/serial8250/tty/ttyS9");
    row("changed port", "change", "tty", "/devices/pci0/usb1/1-2/ttyUSB5/tty/ttyUSB5");
    row("bound port", "bind", "tty", "/devices/pci0/usb1/1-2/ttyUSB5/tty/ttyUSB5");
    row("other device", "add", "usb", "/devices/pci0/usb1/1-2");
    row("HID device without a node", "add", "hidraw", "/devices/odd/hidraw/hidraw9");
}

void TestDeviceMonitor::whatIsNoPortIsIgnored()
{
    QFETCH(QByteArray, action);
    QFETCH(QByteArray, subsystem);
    QFETCH(QByteArray, path);

    const SystemDevice reserved{"tty", "/devices/platform/serial8250/tty/ttyS9", "ttyS9"};
    QVERIFY(plugIn(reserved, "0"));
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(announce(action, {subsystem, path, ""}));
    QVERIFY(announce("add", lastPort));
    QTRY_COMPARE(told, QStringList("+ port ttyUSB99"));
    pullOut(reserved);
}

void TestDeviceMonitor::burst()
{
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QStringList expected;
    for (int i = 0; i < 50; ++i) {
        QVERIFY(announce("add", usbPort(i)));
        QVERIFY(announce("remove", usbPort(i)));
        expected += {"+ port ttyUSB" + QString::number(i), "- port ttyUSB" + QString::number(i)};
    }
    QTRY_COMPARE(told, expected);
}

void TestDeviceMonitor::lostAnnouncements()
{
    const SystemDevice staying = usbPort(1);
    const SystemDevice going = hidDevice(2, "EEEF:1616");
    const SystemDevice coming = hidDevice(3, "EEEF:2929");
    const SystemDevice changing = hidDevice(4, "EEEF:1616");
    const SystemDevice changed = hidDevice(4, "EEEF:2929");
    QVERIFY(plugIn(staying) && plugIn(going) && plugIn(changing));
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    SystemDevice talkative = usbPort(5);
    talkative.properties.append("TALK=" + QByteArray(6000, 'x'));
    while (!announcementsWereLost()) {
        QVERIFY(announce("change", talkative));
    }
    pullOut(going);
    pullOut(changing);
    QVERIFY(plugIn(coming) && plugIn(changed));
    const QStringList expected{
        "- hid /dev/hidraw2#VID_EEEF&PID_1616", "- hid /dev/hidraw4#VID_EEEF&PID_1616",
        "+ hid /dev/hidraw3#VID_EEEF&PID_2929", "+ hid /dev/hidraw4#VID_EEEF&PID_2929", "refresh"};
    // Many announcements have to be read first.
    constexpr int patienceMs = 30'000;
    QTRY_COMPARE_WITH_TIMEOUT(told, expected, patienceMs);

    // What comes later is told as usual.
    QTRY_VERIFY_WITH_TIMEOUT(announce("add", lastPort) && told.last() == "+ port ttyUSB99",
                             patienceMs);
    for (const SystemDevice &device : {staying, coming, changed}) {
        pullOut(device);
    }
}

void TestDeviceMonitor::systemRefuses()
{
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    const rlimit none{0, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
    const bool started = monitor.start();
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &before), 0);
    QVERIFY(!started);
    QVERIFY(told.isEmpty());
}

void TestDeviceMonitor::listenerEndsTheMonitor()
{
    auto monitor = std::make_unique<DeviceMonitor>(m_folder->path());
    QVERIFY(monitor->start());
    connect(monitor.get(), &DeviceMonitor::arrived, this, [&monitor] { monitor.reset(); });
    QVERIFY(announce("add", usbPort(0)));
    QVERIFY(announce("add", usbPort(1)));
    QTRY_VERIFY(!monitor);
}

void TestDeviceMonitor::hidNodeIsKnownByItsSubsystem()
{
    QVERIFY(!mayBeHidNode("/dev/null"));
    QVERIFY(QDir().mkpath("/sys/dev/char/1:3"));
    QVERIFY(QFile::link("../../../class/hidraw", "/sys/dev/char/1:3/subsystem"));
    QVERIFY(mayBeHidNode("/dev/null"));
    QVERIFY(!mayBeHidNode("/dev/zero"));
    QVERIFY(QFile::link("/dev/null", inFolder("link")));
    QVERIFY(mayBeHidNode(inFolder("link").toLocal8Bit()));
    QVERIFY(mayBeHidNode("/dev/not-there"));
}

QTEST_GUILESS_MAIN(TestDeviceMonitor)
#include "tst_devicemonitor.moc"
