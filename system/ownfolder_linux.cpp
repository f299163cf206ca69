#include "system/ownfolder.h"

#include <QFileInfo>

bool takesOwnFiles(const QString &folder)
{
    return QFileInfo(folder).isWritable();
}
