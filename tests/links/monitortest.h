#pragma once

#include "links/watch/devicemonitor.h"
#include "privatesystem.h"

#include <QStringList>

inline SystemDevice usbPort(int number)
{
    const QByteArray name = "ttyUSB" + QByteArray::number(number);
    return {"tty", "/devices/pci0/usb1/1-2/" + name + "/tty/" + name, name};
}

/// Announcements keep their order, so all before this one have been handled when it is told.
inline const SystemDevice lastPort = usbPort(99);

/// What a monitor tells, one line each.
class Told : public QStringList
{
public:
    explicit Told(const DeviceMonitor &monitor)
    {
        QObject::connect(&monitor, &DeviceMonitor::arrived,
                         [this](const WatchedDevice &device) { append("+ " + text(device)); });
        QObject::connect(&monitor, &DeviceMonitor::removed,
                         [this](const WatchedDevice &device) { append("- " + text(device)); });
        QObject::connect(&monitor, &DeviceMonitor::refreshNeeded, [this] { append("refresh"); });
    }

private:
    static QString text(const WatchedDevice &device)
    {
        return (device.kind == DeviceKind::Port ? "port " : "hid ") + device.name;
    }
};
