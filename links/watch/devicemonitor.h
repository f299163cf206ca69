#pragma once

#include "links/watch/systemwatch.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>

#include <memory>

/// Tells when serial ports and HID devices come and go: those that the system announces, and the
/// links in a folder that are used like serial ports.
class DeviceMonitor : public QObject
{
    Q_OBJECT

public:
    /// The folder may come, go and come again; what it stands in must be there. No folder is
    /// watched for an empty name.
    explicit DeviceMonitor(QString portsFolder, QObject *parent = nullptr);
    ~DeviceMonitor() override;

    /// Begins to watch; what is there already is not announced. Returns false when the system
    /// doesn't let us watch its devices; the folder is watched all the same.
    bool start(const WindowHandle &window = {});

    /// Takes a native message of that window. Returns whether it told of a device.
    bool takeMessage(void *message) { return m_system->takeMessage(message); }

signals:
    /// A port (by name; links by absolute path) or a HID device (by a path with its IDs, such as
    /// "/dev/hidraw0#VID_EEEF&PID_1616") has come.
    void arrived(const WatchedDevice &device);
    /// One has gone, by the name that it had on arrival.
    void removed(const WatchedDevice &device);
    /// More has happened than could be told; the device lists are to be read again.
    void refreshNeeded();
    /// The folder, or the one above, has changed, and the links are as before: one may have gone
    /// and come again.
    void replacedUnseen();

private:
    void watchPortsFolder();
    void lookAgain();
    bool comparePorts();

    QString m_portsFolder;
    /// None without a folder: on Windows it would also take the messages about devices.
    std::unique_ptr<QFileSystemWatcher> m_folderWatcher;
    QMap<QString, QString> m_linkedPorts;
    std::unique_ptr<SystemWatch> m_system;
};
