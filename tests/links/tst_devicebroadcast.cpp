#include "broadcasts.h"
#include "links/watch/devicebroadcast.h"

#include <QtTest>

class TestDeviceBroadcast : public QObject
{
    Q_OBJECT

private slots:
    void portIsNamed();
    void interfaceIsNamedAsItIsSent();
    void nameEndsWithTheBroadcast();
    void othersAreRefused_data();
    void othersAreRefused();
};

void TestDeviceBroadcast::portIsNamed()
{
    const auto device = deviceInBroadcast(broadcastOfPort("COM3"));
    QVERIFY(device);
    QVERIFY(device->kind == DeviceKind::Port);
    QCOMPARE(device->name, QString("COM3"));
    QCOMPARE(device->path, QString("COM3"));
}

void TestDeviceBroadcast::interfaceIsNamedAsItIsSent()
{
    const QString path = R"(\\?\HID#VID_EEEF&Pid_1616#7&1&0&0000#{4d1e55b2})";
    const auto device = deviceInBroadcast(broadcastOfInterface(path));
    QVERIFY(device);
    QVERIFY(device->kind == DeviceKind::Hid);
    QCOMPARE(device->name, path);
}

void TestDeviceBroadcast::nameEndsWithTheBroadcast()
{
    const QByteArray unended = wideText("COM3").chopped(2);
    QCOMPARE(deviceInBroadcast(broadcast(portBroadcast, unended))->name, QString("COM3"));
    QCOMPARE(deviceInBroadcast(broadcast(portBroadcast, unended + 'x'))->name, QString("COM3"));
    const QByteArray padded = wideText("COM3") + wideText("rest");
    QCOMPARE(deviceInBroadcast(broadcast(portBroadcast, padded))->name, QString("COM3"));
}

void TestDeviceBroadcast::othersAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray good = broadcastOfPort("COM3");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("less than a header") << littleEndian(8) + littleEndian(portBroadcast);
    QTest::newRow("says more than there is") << good.chopped(2);
    QTest::newRow("says less than there is") << good + "xx";
    QTest::newRow("port without a name") << broadcast(portBroadcast, {});
    QTest::newRow("port with half a character") << broadcast(portBroadcast, "C");
    QTest::newRow("port with an empty name") << broadcast(portBroadcast, wideText(""));
    QTest::newRow("interface without a class") << broadcast(interfaceBroadcast, "");
    QTest::newRow("interface without a name") << broadcast(interfaceBroadcast, QByteArray(16, 'c'));
    QTest::newRow("volume") << broadcast(2, wideText("COM3"));
    QTest::newRow("handle") << broadcast(6, QByteArray(16, 'c') + wideText("COM3"));
}

void TestDeviceBroadcast::othersAreRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!deviceInBroadcast(bytes));
}

QTEST_APPLESS_MAIN(TestDeviceBroadcast)
#include "tst_devicebroadcast.moc"
