#include "comingdevices.h"

#include "fakehid.h"
#include "fakesystemwatch.h"
#include "links/watch/devicenames.h"

#include <QtTest>

WatchedDevice hidDevice(const QByteArray &path, DeviceIds ids)
{
    return {DeviceKind::Hid, path, hidDeviceName(path, ids)};
}

WatchedDevice portDevice(const QString &name)
{
    return {DeviceKind::Port, name, name};
}

void attachBoth()
{
    QFile::remove(QCoreApplication::applicationDirPath() + "/debuggerConfig.ini");
    FakeHid &hid = FakeHid::instance();
    hid.reset();
    hid.addDevice(smallNode, smallIds.vendor, smallIds.product);
    hid.addDevice(largeNode, largeIds.vendor, largeIds.product);
    FakeSystem::instance().setRefusing(false);
}

void verifyNothingIsOpen()
{
    QCOMPARE(FakeHid::instance().openHandles(), 0);
    QCOMPARE(FakeHid::instance().misuses(), 0);
}

void plugIn(const QByteArray &path, DeviceIds ids)
{
    FakeHid::instance().addDevice(path, ids.vendor, ids.product);
    FakeSystem::instance().plugIn(hidDevice(path, ids));
}

void pullOut(const QByteArray &path, DeviceIds ids)
{
    FakeHid::instance().removeDevice(path);
    FakeSystem::instance().pullOut(hidDevice(path, ids));
}

void pullOutSmall()
{
    pullOut(smallNode, smallIds);
}

QStringList deviceRow(const QString &link, const QString &text)
{
    return {link, "", "", "", "", text, ""};
}
