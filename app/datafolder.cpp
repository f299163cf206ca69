#include "app/datafolder.h"

#include "system/ownfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

QString dataFolder()
{
    const QString applicationFolder = QCoreApplication::applicationDirPath();
    if (takesOwnFiles(applicationFolder)) {
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
