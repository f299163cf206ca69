#pragma once

#include "links/hid/deviceids.h"

#include <QString>

enum class DeviceKind { Port, Hid };

/// A port or HID device whose coming and going is watched.
struct WatchedDevice
{
    DeviceKind kind = DeviceKind::Port;
    /// What it is opened by: the port name or the HID device path.
    QString path;
    /// What it is announced as: the port name, or the HID device path with the IDs in it.
    QString name;
};

inline bool operator==(const WatchedDevice &left, const WatchedDevice &right)
{
    return left.kind == right.kind && left.path == right.path && left.name == right.name;
}
