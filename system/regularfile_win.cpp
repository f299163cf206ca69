#include "system/regularfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <io.h>
#include <windows.h>

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

bool moveOver(const QString &from, const QString &to)
{
    const std::wstring source = QDir::toNativeSeparators(from).toStdWString();
    const std::wstring target = QDir::toNativeSeparators(to).toStdWString();
    return MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE;
}

bool giveToOwnerOf(const QString & /*model*/, const QFileDevice & /*file*/)
{
    return true;
}
