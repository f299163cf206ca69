#include "links/hid/hidnode.h"

#include <QFileInfo>
#include <QString>

/// The path of a HID device is no path of a file or folder.
bool mayBeHidNode(const QByteArray &path)
{
    return path.startsWith(R"(\\?\)") || !QFileInfo::exists(QString::fromLocal8Bit(path));
}
