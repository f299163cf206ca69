#include "session/devicewatch.h"

#include "frames/hextext.h"
#include "frames/messages.h"
#include "links/hid/hidlink.h"
#include "links/serial/seriallink.h"
#include "links/watch/devicenames.h"
#include "log/recordlog.h"

namespace {

QString linkName(DeviceKind kind)
{
    return kind == DeviceKind::Port ? QStringLiteral("Uart") : QStringLiteral("HID");
}

/// Interface paths are compared and shown in upper case, port names as they are.
QString shownName(const WatchedDevice &device)
{
    return device.kind == DeviceKind::Port ? device.name : device.name.toUpper();
}

} // namespace

DeviceWatch::DeviceWatch(const SerialLink &serialLink, const HidLink &hidLink, RecordLog &log,
                         const QString &portsFolder, QObject *parent)
    : QObject(parent)
    , m_serialLink(serialLink)
    , m_hidLink(hidLink)
    , m_log(log)
    , m_monitor(portsFolder, this)
{
    connect(&m_monitor, &DeviceMonitor::arrived, this, &DeviceWatch::noteArrival);
    connect(&m_monitor, &DeviceMonitor::removed, this, &DeviceWatch::noteRemoval);
    connect(&m_monitor, &DeviceMonitor::refreshNeeded, this, &DeviceWatch::listsOutdated);
    connect(&m_monitor, &DeviceMonitor::refreshNeeded, this, &DeviceWatch::cameUnseen);
    connect(&m_monitor, &DeviceMonitor::replacedUnseen, this, &DeviceWatch::cameUnseen);
}

bool DeviceWatch::takeMessage(void *message, long *result)
{
    const bool taken = m_monitor.takeMessage(message);
    if (taken && result != nullptr) {
        *result = 1;
    }
    return taken;
}

void DeviceWatch::noteArrival(const WatchedDevice &device)
{
    emit listsOutdated();
    m_log.appendEvent(
        linkName(device.kind),
        Messages::wording(QT_TRANSLATE_NOOP("Messages", "Insert %1"), shownName(device)));
    emit came(device);
}

void DeviceWatch::noteRemoval(const WatchedDevice &device)
{
    if (isOpenPort(device)) {
        emit gone(LinkMode::Uart);
    } else if (isOpenHidDevice(device)) {
        emit gone(LinkMode::Hid);
    }
    m_log.appendEvent(
        linkName(device.kind),
        Messages::wording(QT_TRANSLATE_NOOP("Messages", "Remove %1"), shownName(device)));
    emit listsOutdated();
}

bool DeviceWatch::isOpenPort(const WatchedDevice &device) const
{
    return device.kind == DeviceKind::Port && m_serialLink.isOpen() &&
           device.name == m_serialLink.openPortName();
}

/// Devices of one type have the same IDs, so the path decides where it can.
bool DeviceWatch::isOpenHidDevice(const WatchedDevice &device) const
{
    constexpr int idDigits = 4;
    const DeviceIds ids = m_hidLink.ids();
    const QString name = shownName(device);
    return device.kind == DeviceKind::Hid && m_hidLink.isOpen() &&
           name.contains(QLatin1String("VID_") + paddedHex(ids.vendor, idDigits)) &&
           name.contains(QLatin1String("PID_") + paddedHex(ids.product, idDigits)) &&
           !areDifferentDevices(device.path, m_hidLink.openPath());
}
