#include "publishedlink.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

PublishedLink::PublishedLink(const QString &folder, const QString &name)
    : m_folder(QDir(folder).absolutePath())
    , m_path(QDir(m_folder).filePath(name))
    , m_lock(QDir(m_folder).filePath(QStringLiteral(".%1.lock").arg(name)))
{
    // However old, the lock of a running device counts.
    m_lock.setStaleLockTime(0);
}

PublishedLink::~PublishedLink()
{
    if (!m_target.isEmpty() && QFile::symLinkTarget(m_path) == m_target) {
        QFile::remove(m_path);
    }
}

QString PublishedLink::publish(const QString &target)
{
    if (!QDir().mkpath(m_folder)) {
        return QStringLiteral("Can't make the folder %1.").arg(m_folder);
    }
    if (!m_lock.tryLock(0)) {
        return lockError();
    }
    const QFileInfo present(m_path);
    if (present.exists() && !present.isSymLink()) {
        return QStringLiteral("%1 is in the way: it is no link.").arg(m_path);
    }
    QFile::remove(m_path);
    if (!QFile::link(target, m_path)) {
        return QStringLiteral("Can't make the link %1.").arg(m_path);
    }
    m_target = target;
    return {};
}

QString PublishedLink::lockError() const
{
    if (m_lock.error() == QLockFile::LockFailedError) {
        return QStringLiteral("%1 belongs to a running device; choose another --name.").arg(m_path);
    }
    return QStringLiteral("Can't write in the folder %1.").arg(m_folder);
}

QString defaultPortsFolder(const QString &applicationName)
{
    QString folder = QCoreApplication::applicationDirPath();
    if (!QFileInfo(folder).isWritable()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
                 applicationName;
    }
    return folder + QStringLiteral("/ports");
}
