#include "filesaver.h"

#include <QFile>
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

bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

/// Writes straight into a file. What is longer than the old content goes first, so that a full
/// disk is noticed while the old content is still whole.
bool writeInPlace(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        return false;
    }
    const qint64 oldSize = file.size();
    if (bytes.size() > oldSize) {
        const QByteArray excess = bytes.mid(static_cast<int>(oldSize));
        if (!file.seek(oldSize) || !writeAll(file, excess)) {
            file.resize(oldSize);
            return false;
        }
    }
    const QByteArray rest = bytes.left(static_cast<int>(oldSize));
    return file.seek(0) && writeAll(file, rest) && file.resize(bytes.size());
}

} // namespace

bool saveFile(const QString &path, const QByteArray &bytes)
{
    const QString target = behindLinks(path);
    const QFileInfo existing(target);
    if (target.isEmpty() || (existing.exists() && !existing.isFile())) {
        return false;
    }
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) {
        return writeInPlace(target, bytes);
    }
    // On a full disk it may well take a part of the bytes, and call that no error.
    return file.write(bytes) == bytes.size() && file.commit();
}
