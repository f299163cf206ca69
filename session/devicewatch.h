#pragma once

#include "links/linkmode.h"
#include "links/watch/devicemonitor.h"

#include <QObject>

class HidLink;
class RecordLog;
class SerialLink;

/// Records devices that come and go, and tells when one in use has gone.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    /// The folder's links are watched like ports; an empty name stands for none. Links and log must
    /// outlive the watch.
    DeviceWatch(const SerialLink &serialLink, const HidLink &hidLink, RecordLog &log,
                const QString &portsFolder, QObject *parent = nullptr);

    /// Begins to watch the system's devices and the folder of port links. Returns false when the
    /// system doesn't let us watch its devices. Where announcements come as window messages, they
    /// go to the window given.
    bool start(const WindowHandle &window) { return m_monitor.start(window); }

    /// Takes a native message of that window. Returns whether it told of a device; then `*result`,
    /// if there is one, becomes 1, which is the answer to such a message.
    bool takeMessage(void *message, long *result);

signals:
    /// The device behind that open link has gone; emitted before this is recorded.
    void gone(LinkMode mode);

    /// A device has come; emitted after this is recorded.
    void came(const WatchedDevice &device);

    /// Some device may have come without a word.
    void cameUnseen();

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
