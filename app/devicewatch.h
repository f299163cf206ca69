#pragma once

#include "devicemonitor.h"

#include <QObject>

class HidLink;
class RecordLog;
class SerialLink;

/// Writes devices that come and go into the message log, and tells when one in use has gone.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    /// Links and log must outlive the watch.
    DeviceWatch(const SerialLink &serialLink, const HidLink &hidLink, RecordLog &log,
                QObject *parent = nullptr);

    /// Begins to watch the system's devices and the folder of port links. Returns false when the
    /// system doesn't let us watch its devices. Where announcements come as window messages, they
    /// go to the window given.
    bool start(const WindowHandle &window) { return m_monitor.start(window); }

    /// Takes a native message of that window. Returns whether it told of a device.
    bool takeMessage(void *message) { return m_monitor.takeMessage(message); }

signals:
    /// The open serial port's device has gone; emitted before its row is logged.
    void portGone();

    /// The open HID device has gone; emitted before its row is logged.
    void hidGone();

    /// The lists of ports and devices are out of date.
    void listsOutdated();

private:
    void noteArrival(const WatchedDevice &device);
    void noteRemoval(const WatchedDevice &device);
    bool isOpenPort(const WatchedDevice &device) const;
    bool isOpenHidDevice(const WatchedDevice &device) const;

    const SerialLink &m_serialLink;
    const HidLink &m_hidLink;
    RecordLog &m_log;
    DeviceMonitor m_monitor;
};
