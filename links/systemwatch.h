#pragma once

#include "watcheddevice.h"

#include <QObject>

#include <memory>

/// What the system itself announces about ports and HID devices.
class SystemWatch : public QObject
{
    Q_OBJECT

public:
    /// The watch of the platform that this is built for.
    static std::unique_ptr<SystemWatch> create();

    /// Begins to watch. Returns false when the system doesn't let us; then nothing is announced.
    virtual bool start() = 0;

signals:
    void arrived(const WatchedDevice &device);
    void removed(const WatchedDevice &device);
    /// Announcements were lost. What could be found out about them has been signalled before.
    void announcementsLost();
};
