#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <sys/types.h>

/// A user and a group without any rights of their own.
inline constexpr uid_t nobody = 65534;

/// For its lifetime, permissions count: root acts as a user without any rights of its own.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    bool isInForce() const { return m_dropped || !m_wasRoot; }

private:
    bool m_wasRoot;
    bool m_dropped = false;
};

/// A folder that takes no new files, with one file "list.txt" that everybody may write.
class ClosedFolder
{
public:
    explicit ClosedFolder(const QByteArray &content);
    ~ClosedFolder() { reopen(); }
    ClosedFolder(const ClosedFolder &) = delete;
    ClosedFolder &operator=(const ClosedFolder &) = delete;

    QString path() const { return m_dir.path(); }
    QString filePath() const { return m_dir.filePath(QStringLiteral("list.txt")); }
    QString newFilePath() const { return m_dir.filePath(QStringLiteral("new.txt")); }

    /// Lets everybody make new files in it; false if that fails.
    bool reopen() const;

private:
    QTemporaryDir m_dir;
};
