#include "links/hid/hidnode.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace {

bool isHidraw(const struct stat &status)
{
    if (!S_ISCHR(status.st_mode)) {
        return false;
    }
    const QString subsystem = QFile::symLinkTarget(QString::asprintf(
        "/sys/dev/char/%u:%u/subsystem", major(status.st_rdev), minor(status.st_rdev)));
    return QFileInfo(subsystem).fileName() == QLatin1String("hidraw");
}

} // namespace

bool mayBeHidNode(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) != 0 || isHidraw(status);
}
