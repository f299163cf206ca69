#pragma once

#include <QByteArray>
#include <QList>

/// Cuts this process off from the machine's devices and their announcements, and puts an empty
/// system in their place. It needs to be root, or to be allowed user namespaces, and comes before
/// any other thread. Returns what went wrong, or nothing.
QByteArray enterPrivateSystem();

/// One device of the private system.
struct SystemDevice
{
    QByteArray subsystem;
    /// Path below /sys, "/devices/…/ttyUSB0".
    QByteArray path;
    /// Name below /dev; empty for none.
    QByteArray node;
    /// Further properties, "KEY=value".
    QList<QByteArray> properties = {};
};

/// Makes the system list the device; lines of its attribute "type" may be given.
bool plugIn(const SystemDevice &device, const QByteArray &type = "4");
void pullOut(const SystemDevice &device);

/// Tells every monitor of the private system what udev would ("add", "remove", "change").
bool announce(const QByteArray &action, const SystemDevice &device);

/// Whether a monitor's buffer has run over, so that it can't be told everything.
bool announcementsWereLost();
