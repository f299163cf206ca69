#pragma once

#include "links/watch/systemwatch.h"

#include <QPointer>

/// Stands in for the system's own watch of devices in a test program: it announces what the test
/// says, to the monitor made last.
class FakeSystem
{
public:
    static FakeSystem &instance();

    /// Whether watches that are started from now on are refused by the system.
    void setRefusing(bool refusing) { m_refusing = refusing; }
    bool isRefusing() const { return m_refusing; }

    void plugIn(const WatchedDevice &device) const;
    void pullOut(const WatchedDevice &device) const;
    void loseAnnouncements() const;

    /// The watch that hears of it.
    void setWatch(SystemWatch *watch) { m_watch = watch; }

private:
    bool m_refusing = false;
    QPointer<SystemWatch> m_watch;
};
