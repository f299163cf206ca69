#pragma once

#include "links/hid/deviceids.h"

#include <QString>

/// A HID device node as it is announced, "/dev/hidraw0#VID_EEEF&PID_1616"; the node alone while its
/// IDs are not known.
QString hidDeviceName(const QString &node, DeviceIds ids);

/// Whether two HID device paths name devices that can't be the same: both name a node or interface
/// of the same system, and not the same one. Letters count alike in upper and lower case. A text
/// that only has IDs in it names none, and is like any.
bool areDifferentDevices(const QString &path, const QString &otherPath);

/// The IDs in a kernel's HID_ID property "0003:0000EEEF:00001616" (bus, vendor and product in hex);
/// zeros when it is none.
DeviceIds idsInHidId(const QString &hidId);

/// The IDs in the system path of a HID device or of what belongs to it, such as
/// "/devices/…/0003:EEEF:1616.0004/hidraw/hidraw0"; zeros when it has none.
DeviceIds idsInSystemPath(const QString &systemPath);

/// Whether a terminal with this name and system path is a serial port, and not one of the consoles
/// and pseudo-terminals.
bool isSerialPort(const QString &name, const QString &systemPath);
