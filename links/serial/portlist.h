#pragma once

#include <QStringList>

/// The machine's serial ports as the user chooses them, by the names that QSerialPort opens.
struct PortList
{
    QStringList names;
    /// Place in `names` of the port that a USB serial function registered first; -1 where the
    /// system doesn't tell.
    int usbSerialIndex = -1;
};

/// Lists the ports that the system knows, in the system's own order or in natural order. On systems
/// with pseudo-terminals they are followed by the links in the folder, by their absolute paths, so
/// that a simulated device or a tunnel can be used like any port.
PortList listPorts(const QString &linksFolder);
