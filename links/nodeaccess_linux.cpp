#include "links/nodeaccess.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uint root = 0;

/// The group that may read and write the file, unless it is root's.
QString groupOf(const QByteArray &path)
{
    struct stat status = {};
    constexpr mode_t readAndWrite = S_IRGRP | S_IWGRP;
    const bool isHelpful = ::stat(path.constData(), &status) == 0 && status.st_gid != root &&
                           (status.st_mode & readAndWrite) == readAndWrite;
    return isHelpful ? QFileInfo(QFile::decodeName(path)).group() : QString();
}

} // namespace

OpenFailure examineDevice(const QString &name)
{
    // A port's name alone stands for a file in /dev.
    const QByteArray path = QFile::encodeName(QDir(QStringLiteral("/dev")).filePath(name));
    if (::access(path.constData(), R_OK | W_OK) == 0) {
        return {};
    }
    const int error = errno;
    if (error != EACCES) {
        return {OpenFailure::Cause::Other, qt_error_string(error), {}};
    }
    return {OpenFailure::Cause::NoPermission, qt_error_string(error), groupOf(path)};
}
