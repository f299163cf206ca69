#include "links/watch/devicenames.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

DeviceIds idsOf(const QRegularExpressionMatch &match)
{
    return {quint16(match.captured(1).toUInt(nullptr, 16)),
            quint16(match.captured(2).toUInt(nullptr, 16))};
}

} // namespace

QString hidDeviceName(const QString &node, DeviceIds ids)
{
    return ids == DeviceIds() ? node : node + QLatin1Char('#') + deviceIdsText(ids);
}

bool areDifferentDevices(const QString &path, const QString &otherPath)
{
    static const QStringList beginnings{QStringLiteral("/dev/"), QStringLiteral(R"(\\?\)")};
    const bool areComparable = std::any_of(
        beginnings.begin(), beginnings.end(), [&path, &otherPath](const QString &beginning) {
            return path.startsWith(beginning, Qt::CaseInsensitive) &&
                   otherPath.startsWith(beginning, Qt::CaseInsensitive);
        });
    return areComparable && path.compare(otherPath, Qt::CaseInsensitive) != 0;
}

DeviceIds idsInHidId(const QString &hidId)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A[0-9A-Fa-f]{4}:0000([0-9A-Fa-f]{4}):0000([0-9A-Fa-f]{4})\\z"));
    return idsOf(pattern.match(hidId));
}

DeviceIds idsInSystemPath(const QString &systemPath)
{
    // A receiver's devices stand below the receiver: the last one is meant.
    static const QRegularExpression pattern(
        QStringLiteral(".*/[0-9A-F]{4}:([0-9A-F]{4}):([0-9A-F]{4})\\.[0-9A-F]{4,}(?:/|\\z)"));
    return idsOf(pattern.match(systemPath));
}

bool isSerialPort(const QString &name, const QString &systemPath)
{
    if (!systemPath.contains(QLatin1String("/virtual/"))) {
        return true;
    }
    // Bluetooth, null-modem and gadget ports have no hardware of their own above them.
    static const QStringList virtualPorts{QStringLiteral("rfcomm"), QStringLiteral("tnt"),
                                          QStringLiteral("ttyGS")};
    return std::any_of(virtualPorts.begin(), virtualPorts.end(),
                       [&name](const QString &prefix) { return name.startsWith(prefix); });
}
