#pragma once

#include "links/hid/deviceids.h"
#include "links/watch/watcheddevice.h"

#include <QByteArray>
#include <QMetaType>
#include <QStringList>

// Devices that come and go at a window: the HID library lists them and the system's watch announces
// them, both in their stand-ins.

const QByteArray smallNode = "/dev/hidraw-of-a-test-1";
const QByteArray largeNode = "/dev/hidraw-of-a-test-2";
constexpr DeviceIds smallIds{0xEEEF, 0x1616};
constexpr DeviceIds largeIds{0xEEEF, 0x2929};

WatchedDevice hidDevice(const QByteArray &path, DeviceIds ids);
WatchedDevice portDevice(const QString &name);

/// Begins a test: no settings, and the small and the large device are attached.
void attachBoth();

/// What must hold after each test: every device closed, the library called as it has to be.
void verifyNothingIsOpen();

void plugIn(const QByteArray &path, DeviceIds ids);
void pullOut(const QByteArray &path, DeviceIds ids);
void pullOutSmall();

/// The log's row about a device.
QStringList deviceRow(const QString &link, const QString &text);

Q_DECLARE_METATYPE(WatchedDevice)
