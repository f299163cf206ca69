#pragma once

#include <QString>

/// A file by which one program tells others that it is alive: the system keeps the lock on it and
/// lets go of it however the program ends. Only the lock counts, never what is in the file: one
/// that is left behind, empty or full of rubbish is taken over.
class LockFile
{
public:
    enum class Outcome { Locked, HeldByAnother, Failed };

    /// Nothing is touched before tryLock(). The folder must exist by then.
    explicit LockFile(QString path);
    LockFile(const LockFile &) = delete;
    LockFile &operator=(const LockFile &) = delete;
    /// Removes the file if it is locked by this object.
    ~LockFile();

    /// Locks the file, which is made where it is missing, without waiting.
    Outcome tryLock();
    void unlock();
    bool isLocked() const { return m_handle != noHandle; }

    QString path() const { return m_path; }
    /// Why the last try failed, in the system's words.
    QString error() const { return m_error; }

private:
    static constexpr qintptr noHandle = -1;

    QString m_path;
    QString m_error;
    qintptr m_handle = noHandle;
};
