#include "links/watch/devicemonitor.h"

#include "links/serial/portsfolder.h"

#include <QFileInfo>

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
    connect(m_system.get(), &SystemWatch::arrived, this, &DeviceMonitor::arrived);
    connect(m_system.get(), &SystemWatch::removed, this, &DeviceMonitor::removed);
    connect(m_system.get(), &SystemWatch::announcementsLost, this, &DeviceMonitor::refreshNeeded);
}

DeviceMonitor::~DeviceMonitor() = default;

bool DeviceMonitor::start(const WindowHandle &window)
{
    if (!m_portsFolder.isEmpty()) {
        m_folderWatcher = std::make_unique<QFileSystemWatcher>(
            QStringList(QFileInfo(m_portsFolder).absolutePath()));
        connect(m_folderWatcher.get(), &QFileSystemWatcher::directoryChanged, this,
                &DeviceMonitor::lookAgain);
        watchPortsFolder();
    }
    m_linkedPorts = linkedPorts(m_portsFolder);
    return m_system->start(window);
}

/// Watches the folder that is there now: the watcher stays with the one it was given, even where
/// that has been moved away and another stands in its place.
void DeviceMonitor::watchPortsFolder()
{
    m_folderWatcher->removePath(m_portsFolder);
    m_folderWatcher->addPath(m_portsFolder);
}

/// A link that has gone and come again since the last look is the same as before. The folder above
/// may have told first: watching anew drops what the ports' folder has yet to tell.
void DeviceMonitor::lookAgain()
{
    if (!comparePorts()) {
        emit replacedUnseen();
    }
}

/// Whether there was anything to tell.
bool DeviceMonitor::comparePorts()
{
    watchPortsFolder();
    const auto before = std::exchange(m_linkedPorts, linkedPorts(m_portsFolder));
    const auto now = m_linkedPorts;
    for (const QString &path : missingOrChanged(before, now)) {
        emit removed({DeviceKind::Port, path, path});
    }
    for (const QString &path : missingOrChanged(now, before)) {
        emit arrived({DeviceKind::Port, path, path});
    }
    return before != now;
}
