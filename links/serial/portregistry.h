#pragma once

#include "links/serial/portlist.h"

// Windows only: how portlist.h gets its answer there.

/// One entry of a registry key of serial ports.
struct RegistryEntry
{
    /// "Cannot open regedit!" where the key can't be read, " " where it has no such entry.
    QString portName;
    bool isFirstUsbSerial = false;
};

/// Reads the entry at an index, from 0 on, of a key below HKEY_LOCAL_MACHINE.
RegistryEntry readRegistryEntry(const QString &key, int index);

/// The ports of such a key in the registry's order.
PortList listRegistryPorts(const QString &key);
