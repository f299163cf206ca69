#include "files/overwriting.h"

#include "system/filereader.h"
#include "system/regularfile.h"

#include <QFile>

namespace {

/// The file is short before anything new is in it, even after a power cut.
bool replaceContent(QFile &file, const QByteArray &bytes)
{
    return file.resize(0) && syncToDisk(file) && file.seek(0) &&
           file.write(bytes) == bytes.size() && syncToDisk(file);
}

} // namespace

bool overwriteFile(const QString &path, const QByteArray &bytes,
                   const std::function<void()> &beforehand)
{
    constexpr int mostThatComesBack = 64 * 1024 * 1024;
    QFile file;
    if (!openRegularFile(file, path, QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return false;
    }
    const FileContent before = readDevice(file, mostThatComesBack);
    const bool needsRoom = bytes.size() > before.bytes.size();
    if (before.outcome != FileContent::Outcome::Read ||
        (needsRoom && !reserveRoom(file, bytes.size()))) {
        return false;
    }
    if (beforehand) {
        beforehand();
    }
    if (replaceContent(file, bytes)) {
        return true;
    }
    replaceContent(file, before.bytes);
    return false;
}
