#include "system/filedescriptor.h"
#include "system/lockfile.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

namespace {

constexpr mode_t readableByAll = 0644;

FileDescriptor openLock(const QByteArray &name, int access)
{
    constexpr int never = O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC;
    return FileDescriptor(::open(name.constData(), access | never, readableByAll));
}

/// Those of others are only readable. One that isn't even that is none of ours: it makes room.
FileDescriptor openOrMake(const QByteArray &name)
{
    FileDescriptor file = openLock(name, O_RDWR | O_CREAT);
    if (!file.isValid() && errno == EACCES) {
        file = openLock(name, O_RDONLY);
    }
    if (!file.isValid() && errno == EACCES && unlink(name.constData()) == 0) {
        file = openLock(name, O_RDWR | O_CREAT);
    }
    return file;
}

bool isRegular(const FileDescriptor &file)
{
    struct stat status = {};
    return fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Whether the name still stands for the file: its former owner may have removed it meanwhile.
bool isFileOfName(const FileDescriptor &file, const QByteArray &name)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(file.get(), &opened) == 0 && lstat(name.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// For people who look into it.
void writeProcessId(const FileDescriptor &file)
{
    const QByteArray id = QByteArray::number(getpid()) + '\n';
    if (fchmod(file.get(), readableByAll) != 0 || ftruncate(file.get(), 0) != 0 ||
        write(file.get(), id.constData(), static_cast<size_t>(id.size())) != id.size()) {
        // The lock holds without it.
        return;
    }
}

} // namespace

LockFile::LockFile(QString path)
    : m_path(std::move(path))
{}

LockFile::~LockFile()
{
    unlock();
}

LockFile::Outcome LockFile::tryLock()
{
    constexpr int mostTries = 10;
    const QByteArray name = QFile::encodeName(m_path);
    for (int i = 0; i < mostTries && !isLocked(); ++i) {
        FileDescriptor file = openOrMake(name);
        if (file.isValid() && !isRegular(file)) {
            m_error = QStringLiteral("it is no file");
            return Outcome::Failed;
        }
        if (!file.isValid() || flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
            m_error = qt_error_string(errno);
            return file.isValid() && errno == EWOULDBLOCK ? Outcome::HeldByAnother
                                                          : Outcome::Failed;
        }
        if (isFileOfName(file, name)) {
            writeProcessId(file);
            m_handle = file.release();
        }
    }
    return isLocked() ? Outcome::Locked : Outcome::HeldByAnother;
}

void LockFile::unlock()
{
    if (isLocked()) {
        // First the name: who finds the file without a lock would lock one that goes.
        QFile::remove(m_path);
        ::close(static_cast<int>(m_handle));
        m_handle = noHandle;
    }
}
