#include "files/filesaver.h"

#include "files/overwriting.h"
#include "system/regularfile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

/// The file that a chain of links ends at, whether it exists or not; the path itself when it is no
/// link. Nothing for links that lead in a circle.
QString behindLinks(const QString &path)
{
    constexpr int longestChain = 40;
    QFileInfo file(path);
    for (int link = 0; link < longestChain; ++link) {
        if (!file.isSymLink()) {
            return file.absoluteFilePath();
        }
        file.setFile(file.symLinkTarget());
    }
    return {};
}

enum class Outcome { Saved, Failed, NotAllowed };

/// Not allowed is what the folder doesn't permit, and what would give the file to somebody else.
Outcome replaceFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    // With a buffer, a write would seem to succeed that the disk refuses later.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return Outcome::NotAllowed;
    }
    if (QFileInfo::exists(path) && !giveToOwnerOf(path, file)) {
        return Outcome::NotAllowed;
    }
    if (file.write(bytes) != bytes.size()) {
        return Outcome::Failed;
    }
    if (file.commit()) {
        return Outcome::Saved;
    }
    return file.error() == QFileDevice::RenameError ? Outcome::NotAllowed : Outcome::Failed;
}

} // namespace

bool saveFile(const QString &path, const QByteArray &bytes,
              const std::function<void()> &beforeOverwriting)
{
    const QString target = behindLinks(path);
    const QFileInfo existing(target);
    if (target.isEmpty() || (existing.exists() && !existing.isFile())) {
        return false;
    }
    const Outcome outcome = replaceFile(target, bytes);
    return outcome == Outcome::NotAllowed ? overwriteFile(target, bytes, beforeOverwriting)
                                          : outcome == Outcome::Saved;
}
