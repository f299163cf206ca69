#include "devicewatch.h"

#include "datafolder.h"
#include "hextext.h"
#include "hidlink.h"
#include "messagelog.h"
#include "seriallink.h"

namespace {

QString linkName(DeviceKind kind)
{
    return kind == DeviceKind::Port ? QStringLiteral("Uart") : QStringLiteral("HID");
}

/// Interface paths are compared and shown in upper case, port names as they are.
QString shownName(DeviceKind kind, const QString &name)
{
    return kind == DeviceKind::Port ? name : name.toUpper();
}

} // namespace

DeviceWatch::DeviceWatch(const SerialLink &serialLink, const HidLink &hidLink, MessageLog &log,
                         QObject *parent)
    : QObject(parent)
    , m_serialLink(serialLink)
    , m_hidLink(hidLink)
    , m_log(log)
    , m_monitor(portsFolder(), this)
{
    connect(&m_monitor, &DeviceMonitor::arrived, this, &DeviceWatch::noteArrival);
    connect(&m_monitor, &DeviceMonitor::removed, this, &DeviceWatch::noteRemoval);
    connect(&m_monitor, &DeviceMonitor::refreshNeeded, this, &DeviceWatch::listsOutdated);
}

void DeviceWatch::noteArrival(DeviceKind kind, const QString &name)
{
    emit listsOutdated();
    m_log.appendEvent(linkName(kind), QStringLiteral("Insert ") + shownName(kind, name));
}

void DeviceWatch::noteRemoval(DeviceKind kind, const QString &name)
{
    const QString shown = shownName(kind, name);
    if (kind == DeviceKind::Port && isOpenPort(shown)) {
        emit portGone();
    } else if (kind == DeviceKind::Hid && isOpenHidDevice(shown)) {
        emit hidGone();
    }
    m_log.appendEvent(linkName(kind), QStringLiteral("Remove ") + shown);
    emit listsOutdated();
}

bool DeviceWatch::isOpenPort(const QString &name) const
{
    return m_serialLink.isOpen() && name == m_serialLink.openPortName();
}

bool DeviceWatch::isOpenHidDevice(const QString &path) const
{
    constexpr int idDigits = 4;
    const DeviceIds ids = m_hidLink.ids();
    return m_hidLink.isOpen() &&
           path.contains(QLatin1String("VID_") + paddedHex(ids.vendor, idDigits)) &&
           path.contains(QLatin1String("PID_") + paddedHex(ids.product, idDigits));
}
