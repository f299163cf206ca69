#include "files/guidepage.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr auto installedPage = "../share/doc/tarnwick/guide/index.html";

QString placeFrom(const QString &applicationFolder, const char *place)
{
    return QDir::cleanPath(QDir(applicationFolder).filePath(QLatin1String(place)));
}

} // namespace

QString guidePage(const QString &applicationFolder)
{
    for (const char *place : {installedPage, "guide/index.html", "../guide/index.html",
                              "../../../docs/guide/index.md"}) {
        const QString page = placeFrom(applicationFolder, place);
        if (QFileInfo(page).isFile()) {
            return page;
        }
    }
    return {};
}

QString installedGuidePage(const QString &applicationFolder)
{
    return placeFrom(applicationFolder, installedPage);
}
