#include "app/datafolder.h"

#include <QDir>
#include <QFileInfo>

QString portsFolder()
{
    const QString folder = dataFolder() + QStringLiteral("/ports");
    QDir().mkpath(folder);
    return folder;
}

bool takesOwnFiles(const QString &folder)
{
    return QFileInfo(folder).isWritable();
}
