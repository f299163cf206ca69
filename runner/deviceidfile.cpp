#include "runner/deviceidfile.h"

#include "system/ownfolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

QString deviceIdFilePath()
{
    QString folder = QCoreApplication::applicationDirPath();
    if (!takesOwnFiles(folder)) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/tarnwick");
    }
    return folder + QStringLiteral("/hidDeviceID.ini");
}

std::optional<int> reportSizeOf(const HidChoice &wanted)
{
    const bool isLeftOpen = !wanted.reportSize && !QFileInfo::exists(deviceIdFilePath());
    return isLeftOpen ? packetSizeIn(defaultDeviceIdFile(), wanted.ids) : wanted.reportSize;
}
