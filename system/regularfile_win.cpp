#include "regularfile.h"

#include <QFile>
#include <QFileInfo>

#include <io.h>

bool openRegularFile(QFile &file, const QString &path, QIODevice::OpenMode mode)
{
    file.setFileName(path);
    return QFileInfo(path).isFile() && file.open(mode | QIODevice::ExistingOnly);
}

bool reserveRoom(const QFile & /*file*/, qint64 /*bytes*/)
{
    return true;
}

bool syncToDisk(const QFile &file)
{
    return _commit(file.handle()) == 0;
}

bool giveToOwnerOf(const QString & /*model*/, const QFileDevice & /*file*/)
{
    return true;
}
