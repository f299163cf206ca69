#include "system/filedescriptor.h"
#include "system/regularfile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

bool openRegularFile(QFile &file, const QString &path, QIODevice::OpenMode mode)
{
    // Some devices act on being opened, so they aren't opened to find out what they are.
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    const int access = mode.testFlag(QIODevice::WriteOnly) ? O_RDWR : O_RDONLY;
    const QByteArray name = QFile::encodeName(path);
    FileDescriptor descriptor(::open(name.constData(), access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    // By now the name may stand for something else.
    struct stat status = {};
    if (!descriptor.isValid() || fstat(descriptor.get(), &status) != 0 ||
        !S_ISREG(status.st_mode)) {
        return false;
    }
    return file.open(descriptor.release(), mode, QFileDevice::AutoCloseHandle);
}

bool reserveRoom(const QFile &file, qint64 bytes)
{
    const bool reserved = fallocate(file.handle(), FALLOC_FL_KEEP_SIZE, 0, bytes) == 0;
    return reserved || (errno != ENOSPC && errno != EDQUOT && errno != EFBIG);
}

bool syncToDisk(const QFile &file)
{
    return fsync(file.handle()) == 0;
}

bool moveOver(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool giveToOwnerOf(const QString &model, const QFileDevice &file)
{
    struct stat wanted = {};
    struct stat present = {};
    const QByteArray name = QFile::encodeName(model);
    if (stat(name.constData(), &wanted) != 0 || fstat(file.handle(), &present) != 0) {
        return false;
    }
    const bool isTheirs = present.st_uid == wanted.st_uid && present.st_gid == wanted.st_gid;
    return isTheirs || fchown(file.handle(), wanted.st_uid, wanted.st_gid) == 0;
}
