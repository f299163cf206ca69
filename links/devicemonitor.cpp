#include "devicemonitor.h"

#include "portsfolder.h"
#include "systemwatch.h"

#include <utility>

namespace {

/// The keys of those that are not just the same in the other map.
QStringList missingOrChanged(const QMap<QString, QString> &map, const QMap<QString, QString> &other)
{
    QStringList keys;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (other.value(entry.key()) != *entry) {
            keys.append(entry.key());
        }
    }
    return keys;
}

} // namespace

DeviceMonitor::DeviceMonitor(QString portsFolder, QObject *parent)
    : QObject(parent)
    , m_portsFolder(std::move(portsFolder))
    , m_system(SystemWatch::create())
{
    connect(m_system.get(), &SystemWatch::arrived, this, &DeviceMonitor::announceArrival);
    connect(m_system.get(), &SystemWatch::removed, this, &DeviceMonitor::announceRemoval);
    connect(m_system.get(), &SystemWatch::announcementsLost, this, &DeviceMonitor::refreshNeeded);
    connect(&m_folderWatcher, &QFileSystemWatcher::directoryChanged, this,
            &DeviceMonitor::comparePorts);
}

DeviceMonitor::~DeviceMonitor() = default;

bool DeviceMonitor::start()
{
    m_folderWatcher.addPath(m_portsFolder);
    m_linkedPorts = linkedPorts(m_portsFolder);
    return m_system->start();
}

bool DeviceMonitor::arrivedWithin(const QString &path, int milliseconds) const
{
    const auto arrival = m_arrivals.constFind(path);
    return arrival != m_arrivals.constEnd() && !arrival->hasExpired(milliseconds);
}

void DeviceMonitor::announceArrival(const WatchedDevice &device)
{
    m_arrivals[device.path].start();
    emit arrived(device.kind, device.name);
}

void DeviceMonitor::announceRemoval(const WatchedDevice &device)
{
    m_arrivals.remove(device.path);
    emit removed(device.kind, device.name);
}

void DeviceMonitor::comparePorts()
{
    const auto before = std::exchange(m_linkedPorts, linkedPorts(m_portsFolder));
    const auto now = m_linkedPorts;
    for (const QString &path : missingOrChanged(before, now)) {
        announceRemoval({DeviceKind::Port, path, path});
    }
    for (const QString &path : missingOrChanged(now, before)) {
        announceArrival({DeviceKind::Port, path, path});
    }
}
