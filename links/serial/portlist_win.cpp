#include "portlist.h"
#include "portregistry.h"

PortList listPorts(const QString & /*linksFolder*/)
{
    return listRegistryPorts(QStringLiteral("HARDWARE\\DEVICEMAP\\SERIALCOMM"));
}
