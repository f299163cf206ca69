#include "system/lockfile.h"

#include <QDir>

#include <utility>
#include <windows.h>

LockFile::LockFile(QString path)
    : m_path(std::move(path))
{}

LockFile::~LockFile()
{
    unlock();
}

/// An open file that is shared with nobody is a lock; the system removes it when it is closed.
LockFile::Outcome LockFile::tryLock()
{
    if (isLocked()) {
        return Outcome::Locked;
    }
    const std::wstring name = QDir::toNativeSeparators(m_path).toStdWString();
    HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD reason = GetLastError();
        m_error = qt_error_string(static_cast<int>(reason));
        return reason == ERROR_SHARING_VIOLATION ? Outcome::HeldByAnother : Outcome::Failed;
    }
    m_handle = reinterpret_cast<qintptr>(file);
    return Outcome::Locked;
}

void LockFile::unlock()
{
    if (isLocked()) {
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
        m_handle = noHandle;
    }
}
