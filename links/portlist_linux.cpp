#include "naturalorder.h"
#include "portlist.h"

#include <QDir>
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

/// A link whose target is gone is no port; QDir lists it as a system file and leaves it out here.
QStringList linkedPorts(const QString &folder)
{
    QStringList paths;
    for (const QFileInfo &entry :
         QDir(folder).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        if (entry.isSymLink() && entry.exists()) {
            paths.append(entry.absoluteFilePath());
        }
    }
    std::sort(paths.begin(), paths.end(), naturallyBefore);
    return paths;
}

} // namespace

PortList listPorts(const QString &linksFolder)
{
    return {systemPorts() + linkedPorts(linksFolder)};
}
