#include "runner/deviceidfile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

QString deviceIdFilePath()
{
    QString folder = QCoreApplication::applicationDirPath();
    if (!QFileInfo(folder).isWritable()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/tarnwick");
    }
    return folder + QStringLiteral("/hidDeviceID.ini");
}
