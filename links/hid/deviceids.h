#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// USB vendor and product ID; 0 where one is not known.
struct DeviceIds
{
    quint16 vendor = 0;
    quint16 product = 0;
};

inline bool operator==(DeviceIds left, DeviceIds right)
{
    return left.vendor == right.vendor && left.product == right.product;
}

inline bool operator!=(DeviceIds left, DeviceIds right)
{
    return !(left == right);
}

inline uint qHash(DeviceIds ids, uint seed = 0)
{
    return ((uint(ids.vendor) << 16U) | ids.product) ^ seed;
}

/// Packet size of a device type that the device-ID file tells nothing usable about.
constexpr int defaultPacketSize = 64;

/// The IDs in any text, such as a line "VID_EEEF,PID_1616,64" or a device path, in either case: the
/// four characters after the first "VID_" and "PID_" as hex numbers, 0 for what is missing.
DeviceIds parseDeviceIds(const QString &text);

/// The IDs as they stand in device paths, "VID_EEEF&PID_1616".
QString deviceIdsText(DeviceIds ids);

/// What a new device-ID file holds: the two known device types.
QByteArray defaultDeviceIdFile();

/// One pair per line of a device-ID file, in file order. Lines are not checked: one without IDs
/// gives a pair of zeros.
QVector<DeviceIds> parseDeviceIdFile(const QByteArray &content);

/// The packet size in bytes of a device type: the number after the last comma of the first line
/// with its IDs. It is `defaultPacketSize` when there is no such line, or when that number is no
/// size of a report.
int packetSizeIn(const QByteArray &content, DeviceIds ids);

/// Reads the device types from a device-ID file; a missing file is created with the default content
/// first. A file that can't be read, or an empty name, gives no device types.
QVector<DeviceIds> readDeviceIdFile(const QString &fileName);

/// The packet size that a device-ID file gives a device type, `defaultPacketSize` where there is no
/// readable file.
int readPacketSize(const QString &fileName, DeviceIds ids);
