#include "system/ownfolder.h"

#include <QFile>
#include <QTemporaryFile>

/// What an installer has laid out is its own, though the user may be able to write there. Elsewhere
/// it is tried: permissions of folders are not told without asking for much more.
bool takesOwnFiles(const QString &folder)
{
    if (QFile::exists(folder + QStringLiteral("/uninstall.exe"))) {
        return false;
    }
    QTemporaryFile probe(folder + QStringLiteral("/XXXXXX.tmp"));
    return probe.open();
}
