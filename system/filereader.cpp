#include "system/filereader.h"

#include "system/regularfile.h"

#include <QFile>

namespace {

constexpr int chunkSize = 64 * 1024;

} // namespace

FileContent readDevice(QIODevice &device, qint64 limit)
{
    const qint64 expected = device.size();
    if (expected > limit) {
        return {FileContent::Outcome::TooLarge, {}};
    }
    QByteArray bytes;
    bytes.reserve(static_cast<int>(expected));
    QByteArray chunk(chunkSize, Qt::Uninitialized);
    qint64 count = device.read(chunk.data(), chunkSize);
    while (count > 0 && bytes.size() <= limit) {
        bytes.append(chunk.constData(), static_cast<int>(count));
        count = device.read(chunk.data(), chunkSize);
    }
    if (count < 0 || bytes.size() < expected) {
        return {FileContent::Outcome::Unreadable, {}};
    }
    if (bytes.size() > limit) {
        return {FileContent::Outcome::TooLarge, {}};
    }
    return {FileContent::Outcome::Read, bytes};
}

FileContent readFile(const QString &path, qint64 limit)
{
    QFile file;
    if (!openRegularFile(file, path, QIODevice::ReadOnly)) {
        return {};
    }
    return readDevice(file, limit);
}
