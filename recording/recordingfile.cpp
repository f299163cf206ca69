#include "recording/recordingfile.h"

#include "system/regularfile.h"

#include <QFileInfo>
#include <QStorageInfo>

RecordingSink::Created RecordingFile::create(const QString &path)
{
    m_file.close();
    m_file.setFileName(path);
    // Only what doesn't exist is opened, so it can be no pipe or device that would block. Without a
    // buffer, what the disk refuses is known at once.
    if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return Created::Yes;
    }
    m_error = m_file.errorString();
    const QFileInfo existing(path);
    return existing.exists() || existing.isSymLink() ? Created::NameIsTaken : Created::No;
}

bool RecordingFile::write(const QByteArray &bytes)
{
    // A disk that fills up takes a part, and tells why only when it is offered the rest.
    for (qint64 begin = 0; begin < bytes.size();) {
        const qint64 written = m_file.write(bytes.constData() + begin, bytes.size() - begin);
        if (written <= 0) {
            m_error = m_file.errorString();
            return false;
        }
        begin += written;
    }
    return true;
}

bool RecordingFile::sync()
{
    const bool isSafe = syncToDisk(m_file);
    if (!isSafe) {
        m_error = qt_error_string();
    }
    return isSafe;
}

bool RecordingFile::isThere() const
{
    return QFileInfo::exists(m_file.fileName());
}

std::optional<qint64> RecordingFile::freeBytes() const
{
    const QStorageInfo storage(QFileInfo(m_file.fileName()).absolutePath());
    const bool isKnown = storage.isValid() && storage.bytesTotal() > 0;
    return isKnown ? std::optional(storage.bytesAvailable()) : std::nullopt;
}
