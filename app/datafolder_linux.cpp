#include "app/datafolder.h"

#include <QDir>

QString portsFolder()
{
    const QString folder = dataFolder() + QStringLiteral("/ports");
    QDir().mkpath(folder);
    return folder;
}
