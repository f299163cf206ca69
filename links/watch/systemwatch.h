#pragma once

#include "links/watch/watcheddevice.h"

#include <QObject>

#include <functional>
#include <memory>

/// Gives the native handle of the window that the system may send its announcements to.
using WindowHandle = std::function<quintptr()>;

/// What the system itself announces about ports and HID devices.
class SystemWatch : public QObject
{
    Q_OBJECT

public:
    /// The watch of the platform that this is built for.
    static std::unique_ptr<SystemWatch> create();

    /// Begins to watch. Returns false when the system doesn't let us; then nothing is announced.
    /// The window is asked for only where announcements come as window messages.
    virtual bool start(const WindowHandle &window) = 0;

    /// Takes a native message of that window. Returns whether it was an announcement.
    virtual bool takeMessage(void * /*message*/) { return false; }

signals:
    void arrived(const WatchedDevice &device);
    void removed(const WatchedDevice &device);
    /// Announcements were lost. What could be found out about them has been signalled before.
    void announcementsLost();
};
