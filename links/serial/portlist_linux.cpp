#include "links/serial/naturalorder.h"
#include "links/serial/portlist.h"
#include "links/serial/portsfolder.h"

#include <QSerialPortInfo>

#include <algorithm>

namespace {

QStringList systemPorts()
{
    QStringList names;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        names.append(port.portName());
    }
    std::sort(names.begin(), names.end(), naturallyBefore);
    return names;
}

} // namespace

PortList listPorts(const QString &linksFolder)
{
    return {systemPorts() + linkedPortNames(linksFolder)};
}
