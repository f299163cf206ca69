#include "files/examplesfolder.h"

#include <QDir>

QString examplesFolder(const QString &applicationFolder)
{
    const QDir application(applicationFolder);
    for (const char *place : {"../share/tarnwick/examples", "examples"}) {
        const QDir folder(application.filePath(QLatin1String(place)));
        if (folder.exists()) {
            return QDir::cleanPath(folder.path());
        }
    }
    return {};
}
