#include "links/linktexts.h"
#include "links/serial/seriallink.h"

#include <QtTest>

class TestLinkTexts : public QObject
{
    Q_OBJECT

private slots:
    void anOpenPort_data();
    void anOpenPort();
    void anOpenDevice_data();
    void anOpenDevice();
    void aPortThatFailed_data();
    void aPortThatFailed();
    void aDeviceThatFailed_data();
    void aDeviceThatFailed();
    void aLinkThatWasLost();
};

Q_DECLARE_METATYPE(SerialSettings)
Q_DECLARE_METATYPE(HidDescription)
Q_DECLARE_METATYPE(OpenFailure)

using Cause = OpenFailure::Cause;

void TestLinkTexts::anOpenPort_data()
{
    QTest::addColumn<SerialSettings>("settings");
    QTest::addColumn<QString>("text");

    QTest::newRow("usual") << SerialSettings{"ttyUSB0", 115200, QSerialPort::Data8,
                                             QSerialPort::NoParity, QSerialPort::OneStop}
                           << "ttyUSB0 115200 8N1";
    QTest::newRow("even, two") << SerialSettings{"COM3", 9600, QSerialPort::Data7,
                                                 QSerialPort::EvenParity, QSerialPort::TwoStop}
                               << "COM3 9600 7E2";
    QTest::newRow("odd, one and a half")
        << SerialSettings{"/a/%1/%2", 1382400, QSerialPort::Data5, QSerialPort::OddParity,
                          QSerialPort::OneAndHalfStop}
        << "/a/%1/%2 1382400 5O1.5";
    QTest::newRow("six") << SerialSettings{"x", 300, QSerialPort::Data6, QSerialPort::NoParity,
                                           QSerialPort::OneStop}
                         << "x 300 6N1";
}

void TestLinkTexts::anOpenPort()
{
    QFETCH(SerialSettings, settings);
    QTEST(describeLink(settings), "text");
}

void TestLinkTexts::anOpenDevice_data()
{
    QTest::addColumn<HidDescription>("device");
    QTest::addColumn<QString>("text");

    QTest::newRow("path without IDs") << HidDescription{"/dev/hidraw3", {0xEEEF, 0x1616}, 64, 0}
                                      << "/dev/hidraw3 VID_EEEF&PID_1616, 64 bytes, report ID 0x00";
    QTest::newRow("path with IDs")
        << HidDescription{"a#VID_EEEF&PID_2929#1", {0xEEEF, 0x2929}, 512, 0x1F}
        << "a#VID_EEEF&PID_2929#1, 512 bytes, report ID 0x1F";
    QTest::newRow("no IDs") << HidDescription{"/dev/hidraw3", {}, 64, 255}
                            << "/dev/hidraw3, 64 bytes, report ID 0xFF";
    QTest::newRow("long path")
        << HidDescription{"VID_EEEF&PID_2929#" + QString("x").repeated(100) + "#end",
                          {0xEEEF, 0x2929},
                          64,
                          0}
        << QString::fromUtf8("VID_EEEF&PID_2929#xxxxx…xxxxxxxxxxxxxxxxxxx#end, 64 bytes, report ID "
                             "0x00");
}

void TestLinkTexts::anOpenDevice()
{
    QFETCH(HidDescription, device);
    QTEST(describeLink(device), "text");
}

void TestLinkTexts::aPortThatFailed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<OpenFailure>("failure");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << "" << OpenFailure{Cause::Other, "Is a directory", {}}
                          << "No port is chosen.";
    QTest::newRow("missing") << "ttyS9" << OpenFailure{Cause::Other, "No such file", {}}
                             << "ttyS9: No such file.";
    QTest::newRow("busy") << "ttyS9" << OpenFailure{Cause::Busy, "Device busy", {}}
                          << "ttyS9 is in use by another program (Device busy).";
    QTest::newRow("group") << "ttyS9"
                           << OpenFailure{Cause::NoPermission, "Permission denied", "dialout"}
                           << "ttyS9: Permission denied. It belongs to the group dialout. To join "
                              "it: sudo adduser \"$USER\" dialout, then log in again.";
    QTest::newRow("no group") << "ttyS9"
                              << OpenFailure{Cause::NoPermission, "Permission denied", {}}
                              << "ttyS9: Permission denied.";
    QTest::newRow("no words") << "ttyS9" << OpenFailure() << "ttyS9: cannot be opened.";
}

void TestLinkTexts::aPortThatFailed()
{
    QFETCH(QString, name);
    QFETCH(OpenFailure, failure);
    QTEST(whyPortFailed(name, failure), "text");
}

void TestLinkTexts::aDeviceThatFailed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<OpenFailure>("failure");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << "" << OpenFailure() << "No device is chosen.";
    QTest::newRow("missing") << "/dev/hidraw3" << OpenFailure{Cause::Other, "No such file", {}}
                             << "/dev/hidraw3: No such file.";
    QTest::newRow("no words") << "/dev/hidraw3" << OpenFailure()
                              << "/dev/hidraw3: cannot be opened.";
    QTest::newRow("no permission")
        << "/dev/hidraw3" << OpenFailure{Cause::NoPermission, "Permission denied", {}}
        << "/dev/hidraw3: Permission denied. A udev rule helps: copy 70-tarnwick.rules to "
           "/etc/udev/rules.d, with a line for VID_EEEF&PID_1616, and plug the device in again.";
}

void TestLinkTexts::aDeviceThatFailed()
{
    QFETCH(QString, path);
    QFETCH(OpenFailure, failure);
    QTEST(whyHidFailed(path, {0xEEEF, 0x1616}, failure), "text");
}

void TestLinkTexts::aLinkThatWasLost()
{
    QCOMPARE(whyLost("ttyUSB0", "the device is gone"),
             QString("The connection to ttyUSB0 is lost: the device is gone"));
}

QTEST_APPLESS_MAIN(TestLinkTexts)
#include "tst_linktexts.moc"
