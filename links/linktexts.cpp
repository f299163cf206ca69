#include "links/linktexts.h"

#include "frames/hextext.h"
#include "frames/messages.h"
#include "links/serial/serialline.h"
#include "links/serial/seriallink.h"

namespace {

constexpr int longestShownPath = 48;

QString shortened(const QString &path)
{
    constexpr int half = (longestShownPath - 1) / 2;
    return path.size() <= longestShownPath ? path
                                           : path.left(half) + QChar(0x2026) + path.right(half);
}

/// The device's name and the system's words about it.
QString plainReason(const QString &name, const OpenFailure &failure)
{
    const QString words =
        failure.words.isEmpty() ? Messages::tr("cannot be opened") : Messages::shown(failure.words);
    return QStringLiteral("%1: %2.").arg(name, words);
}

} // namespace

QString describeLink(const SerialSettings &settings)
{
    return settings.portName + QLatin1Char(' ') + describeLine(settings);
}

QString describeLink(const HidDescription &device)
{
    QString name = shortened(device.path);
    if (parseDeviceIds(device.path) != device.ids) {
        name += QLatin1Char(' ') + deviceIdsText(device.ids);
    }
    constexpr int idDigits = 2;
    return Messages::tr("%1, %2 bytes, report ID 0x%3")
        .arg(name, QString::number(device.packetSize), paddedHex(device.reportId, idDigits));
}

QString whyPortFailed(const QString &portName, const OpenFailure &failure)
{
    if (portName.isEmpty()) {
        return Messages::tr("No port is chosen.");
    }
    if (failure.cause == OpenFailure::Cause::Busy) {
        return Messages::tr("%1 is in use by another program (%2).")
            .arg(portName, Messages::shown(failure.words));
    }
    const QString reason = plainReason(portName, failure);
    if (failure.group.isEmpty()) {
        return reason;
    }
    return Messages::tr(
               "%1 It belongs to the group %2. To join it: sudo adduser \"$USER\" %2, then log in "
               "again.")
        .arg(reason, failure.group);
}

QString whyLost(const QString &name, const QString &reason)
{
    return Messages::tr("The connection to %1 is lost: %2").arg(name, Messages::shown(reason));
}

QString whyHidFailed(const QString &path, DeviceIds ids, const OpenFailure &failure)
{
    if (path.isEmpty()) {
        return Messages::tr("No device is chosen.");
    }
    const QString reason = plainReason(shortened(path), failure);
    if (failure.cause != OpenFailure::Cause::NoPermission) {
        return reason;
    }
    return Messages::tr(
               "%1 A udev rule helps: copy 70-tarnwick.rules to /etc/udev/rules.d, with a line for "
               "%2, and plug the device in again.")
        .arg(reason, deviceIdsText(ids));
}
