#include "app/datafolder.h"

#include <QTemporaryFile>

QString portsFolder()
{
    return {};
}

/// Permissions of folders are not told without asking for much more; so it is tried.
bool isWritableFolder(const QString &folder)
{
    QTemporaryFile probe(folder + QStringLiteral("/XXXXXX.tmp"));
    return probe.open();
}
