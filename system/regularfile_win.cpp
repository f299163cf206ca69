#include "regularfile.h"

#include <QFile>
#include <QFileInfo>

bool openRegularFile(QFile &file, const QString &path, QIODevice::OpenMode mode)
{
    file.setFileName(path);
    return QFileInfo(path).isFile() && file.open(mode | QIODevice::ExistingOnly);
}

bool reserveRoom(const QFile & /*file*/, qint64 /*bytes*/)
{
    return true;
}
