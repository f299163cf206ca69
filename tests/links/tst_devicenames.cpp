#include "links/watch/devicenames.h"

#include <QtTest>

class TestDeviceNames : public QObject
{
    Q_OBJECT

private slots:
    void hidName();
    void differentDevices_data();
    void differentDevices();
    void hidId_data();
    void hidId();
    void systemPath_data();
    void systemPath();
    void serialPort_data();
    void serialPort();
};

void TestDeviceNames::hidName()
{
    QCOMPARE(hidDeviceName("/dev/hidraw3", {0xEEEF, 0x000A}),
             QString("/dev/hidraw3#VID_EEEF&PID_000A"));
    QCOMPARE(hidDeviceName("/dev/hidraw3", {}), QString("/dev/hidraw3"));
}

void TestDeviceNames::differentDevices_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("different");

    const char opened[] = R"(\\?\hid#vid_eeef&pid_1616#6&1&0&0000#{4d1e55b2})";
    QTest::newRow("the same node") << "/dev/hidraw0"
                                   << "/dev/hidraw0" << false;
    QTest::newRow("in other letters") << "/DEV/HIDRAW0"
                                      << "/dev/hidraw0" << false;
    QTest::newRow("another node") << "/dev/hidraw1"
                                  << "/dev/hidraw0" << true;
    QTest::newRow("one number begins like the other") << "/dev/hidraw1"
                                                      << "/dev/hidraw10" << true;
    QTest::newRow("the same interface")
        << R"(\\?\HID#VID_EEEF&PID_1616#6&1&0&0000#{4D1E55B2})" << opened << false;
    QTest::newRow("another interface")
        << R"(\\?\HID#VID_EEEF&PID_1616#6&2&0&0000#{4D1E55B2})" << opened << true;
    QTest::newRow("only IDs") << "VID_EEEF&PID_1616" << opened << false;
    QTest::newRow("nothing") << ""
                             << "/dev/hidraw0" << false;
    QTest::newRow("a place on the bus") << "/dev/hidraw0"
                                        << "0001:0004:00" << false;
}

void TestDeviceNames::differentDevices()
{
    QFETCH(QString, path);
    QFETCH(QString, other);
    QFETCH(bool, different);
    QCOMPARE(areDifferentDevices(path, other), different);
    QCOMPARE(areDifferentDevices(other, path), different);
}

void TestDeviceNames::hidId_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint16>("vendor");
    QTest::addColumn<quint16>("product");

    const auto row = [](const char *text, quint16 vendor, quint16 product) {
        QTest::newRow(text) << QString(text) << vendor << product;
    };
    row("0003:0000EEEF:00001616", 0xEEEF, 0x1616);
    row("0005:0000046d:0000b01a", 0x046D, 0xB01A);
    row("0003:EEEF:1616", 0, 0);
    row("0003:0000EEEF:00001616:1", 0, 0);
    row("0003:0001EEEF:00001616", 0, 0);
    row("", 0, 0);
}

void TestDeviceNames::hidId()
{
    QFETCH(QString, text);
    QFETCH(quint16, vendor);
    QFETCH(quint16, product);
    QCOMPARE(idsInHidId(text).vendor, vendor);
    QCOMPARE(idsInHidId(text).product, product);
}

void TestDeviceNames::systemPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<quint16>("vendor");
    QTest::addColumn<quint16>("product");

    const auto row = [](const char *name, const char *path, quint16 vendor, quint16 product) {
        QTest::newRow(name) << QString(path) << vendor << product;
    };
    row("emulated", "/devices/virtual/misc/uhid/0003:EEEF:1616.0001/hidraw/hidraw0", 0xEEEF,
        0x1616);
    row("on USB",
        "/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/0003:EEEF:2929.00AB/hidraw/hidraw1",
        0xEEEF, 0x2929);
    row("below a receiver", "/devices/x/0003:046D:C52B.0003/0003:046D:4051.0004/hidraw/hidraw1",
        0x046D, 0x4051);
    row("the HID device itself", "/devices/x/0003:EEEF:1616.0001", 0xEEEF, 0x1616);
    row("after 65,535 connections", "/devices/x/0003:EEEF:1616.10000/hidraw/hidraw0", 0xEEEF,
        0x1616);
    row("no HID device", "/devices/pci0000:00/0000:00:14.0/usb1/1-2/ttyUSB0", 0, 0);
    row("nothing", "", 0, 0);
}

void TestDeviceNames::systemPath()
{
    QFETCH(QString, path);
    QFETCH(quint16, vendor);
    QFETCH(quint16, product);
    QCOMPARE(idsInSystemPath(path).vendor, vendor);
    QCOMPARE(idsInSystemPath(path).product, product);
}

void TestDeviceNames::serialPort_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("serial");

    const auto row = [](const char *name, const char *folder, bool serial) {
        QTest::newRow(name) << QString(name) << QString(folder) + '/' + name << serial;
    };
    row("ttyUSB0", "/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/ttyUSB0/tty", true);
    row("ttyACM3", "/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/tty", true);
    row("ttyS0", "/devices/pnp0/00:04/tty", true);
    row("tty1", "/devices/virtual/tty", false);
    row("console", "/devices/virtual/tty", false);
    row("ptmx", "/devices/virtual/tty", false);
    row("ttyprintk", "/devices/virtual/tty", false);
    row("rfcomm0", "/devices/virtual/tty", true);
    row("tnt1", "/devices/virtual/tty", true);
    row("ttyGS0", "/devices/virtual/tty", true);
}

void TestDeviceNames::serialPort()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(bool, serial);
    QCOMPARE(isSerialPort(name, path), serial);
}

QTEST_APPLESS_MAIN(TestDeviceNames)
#include "tst_devicenames.moc"
