#include "datafolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString dataFolder()
{
    const QString applicationFolder = QCoreApplication::applicationDirPath();
    if (QFileInfo(applicationFolder).isWritable()) {
        return applicationFolder;
    }
    const QString userFolder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(userFolder);
    return userFolder;
}

QString dataFile(const QString &name)
{
    return dataFolder() + QDir::separator() + name;
}

QString portsFolder()
{
    const QString folder = dataFolder() + QStringLiteral("/ports");
    QDir().mkpath(folder);
    return folder;
}
