#include "links/serial/portlist.h"
#include "links/serial/portregistry.h"

PortList listPorts(const QString & /*linksFolder*/)
{
    return listRegistryPorts(QStringLiteral("HARDWARE\\DEVICEMAP\\SERIALCOMM"));
}
