#pragma once

#include <QByteArray>

class QIODevice;
class QString;

/// What came of reading a file as a whole.
struct FileContent
{
    enum class Outcome { Read, Unreadable, TooLarge };

    Outcome outcome = Outcome::Unreadable;
    /// All of the file's bytes; empty unless it was read.
    QByteArray bytes;
};

/// Reads what an open device holds, up to `limit` bytes. It is unreadable when reading fails on
/// the way or when fewer bytes come than the device had at first.
FileContent readDevice(QIODevice &device, qint64 limit);

/// Reads a file as it stands, up to `limit` bytes, without ever waiting. Anything but a regular
/// file (a folder, a named pipe, a device) is unreadable, and so is one that has nothing to tell
/// yet.
FileContent readFile(const QString &path, qint64 limit);
