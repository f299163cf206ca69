#include "simulator/publishedlink.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

PublishedLink::PublishedLink(const QString &folder, const QString &name)
    : m_folder(QDir(folder).absolutePath())
    , m_path(QDir(m_folder).filePath(name))
    , m_lock(QDir(m_folder).filePath(QStringLiteral(".%1.lock").arg(name)))
{}

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
    const QString lockError = lockName();
    if (!lockError.isEmpty()) {
        return lockError;
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

QString PublishedLink::lockName()
{
    switch (m_lock.tryLock()) {
    case LockFile::Outcome::Locked:
        return {};
    case LockFile::Outcome::HeldByAnother:
        return QStringLiteral("%1 belongs to a running device, which holds %2; choose another "
                              "--name.")
            .arg(m_path, m_lock.path());
    case LockFile::Outcome::Failed:
        break;
    }
    return QStringLiteral("Can't lock %1: %2.").arg(m_lock.path(), m_lock.error());
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
