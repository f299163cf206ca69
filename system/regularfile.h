#pragma once

#include <QIODevice>

class QFile;
class QFileDevice;
class QString;

/// Opens a regular file that exists, for reading or for both reading and writing, so that neither
/// this nor reading from it ever waits: not for the other end of a pipe, not for a kernel file that
/// has nothing to tell yet. Such a read fails instead.
///
/// False for whatever is no regular file (a folder, a named pipe, a device), and where it cannot be
/// opened. The file is closed beforehand and has no name of its own afterwards.
bool openRegularFile(QFile &file, const QString &path, QIODevice::OpenMode mode);

/// Makes sure that the file, which is open for writing, can grow to so many bytes, without changing
/// what is in it. False where the disk is full or the file may not get that large; true where the
/// system can't tell.
bool reserveRoom(const QFile &file, qint64 bytes);

/// Waits until what was written to the open file is safe from a power cut; false if that fails.
bool syncToDisk(const QFile &file);

/// Gives a file the name of another one, which it replaces at once; false if that fails.
bool moveOver(const QString &from, const QString &to);

/// Gives an open file of ours to the user and the group that the file `model` belongs to. True if
/// it belongs to them afterwards; so it does where files have no such owners.
bool giveToOwnerOf(const QString &model, const QFileDevice &file);
