#include "app/recovery.h"

#include "app/liststate.h"
#include "files/recoverytext.h"
#include "system/regularfile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

/// More programs than that don't run at once, and more lists aren't left behind.
constexpr int mostFiles = 99;

/// Takes the place of the file at once: whoever is killed meanwhile leaves the one before. That it
/// has reached the disk is not waited for, since a loop may be running.
bool writeSwiftly(const QString &path, const QByteArray &bytes)
{
    const QString newPath = path + QStringLiteral(".new");
    QFile::remove(newPath);
    QFile file(newPath);
    const bool isWritten =
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) &&
        file.write(bytes) == bytes.size();
    file.close();
    return isWritten && moveOver(newPath, path);
}

} // namespace

Recovery::Recovery(QString dataFolder, const ListState &list,
                   std::function<QVector<CommandRow>()> rows, RecoveryPace pace, QObject *parent)
    : QObject(parent)
    , m_folder(std::move(dataFolder))
    , m_list(list)
    , m_rows(std::move(rows))
    , m_pace(pace)
{
    connect(&m_list, &ListState::changed, this, &Recovery::followList);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_timer.start(m_pace.everyMs);
        write();
    });
}

Recovery::~Recovery()
{
    if (!m_isKept) {
        discard();
    }
}

void Recovery::keep()
{
    if (m_list.isModified()) {
        write();
        m_isKept = true;
    }
}

void Recovery::write()
{
    const QByteArray text = recoveryText(m_rows());
    if (text != m_written && claimFile() && writeSwiftly(m_path, text)) {
        m_written = text;
    }
}

void Recovery::discard()
{
    m_timer.stop();
    m_isKept = false;
    m_written.clear();
    if (m_lock) {
        QFile::remove(m_path);
        m_lock.reset();
    }
}

void Recovery::followList()
{
    if (!m_list.isModified()) {
        discard();
    } else if (!m_timer.isActive()) {
        m_timer.start(m_pace.firstMs);
    }
}

/// Finds a name that nobody uses, the first time.
bool Recovery::claimFile()
{
    for (int number = 1; number <= mostFiles && !m_lock; ++number) {
        if (QFileInfo::exists(pathOf(number))) {
            continue;
        }
        auto lock = std::make_unique<LockFile>(lockPathOf(number));
        // Whoever had the lock until now may have left a file.
        if (lock->tryLock() == LockFile::Outcome::Locked && !QFileInfo::exists(pathOf(number))) {
            m_lock = std::move(lock);
            m_path = pathOf(number);
        }
    }
    return m_lock != nullptr;
}

QString Recovery::leftBehind() const
{
    QFileInfo newest;
    for (int number = 1; number <= mostFiles; ++number) {
        const QFileInfo file(pathOf(number));
        const bool isNewer = !newest.exists() || file.lastModified() > newest.lastModified();
        if (file.isFile() && isNewer && isLeftBehind(number)) {
            newest = file;
        }
    }
    return newest.exists() ? newest.filePath() : QString();
}

void Recovery::takeOver(const QString &path)
{
    write();
    for (int number = 1; number <= mostFiles; ++number) {
        if (QFileInfo(path) == QFileInfo(pathOf(number)) && isLeftBehind(number)) {
            QFile::remove(path);
        }
    }
}

QString Recovery::pathOf(int number) const
{
    return QDir(m_folder).filePath(QStringLiteral("recovery-%1.txt").arg(number));
}

QString Recovery::lockPathOf(int number) const
{
    return QDir(m_folder).filePath(QStringLiteral(".recovery-%1.lock").arg(number));
}

/// The lock is released at once: several programs may find what is left behind.
bool Recovery::isLeftBehind(int number) const
{
    LockFile lock(lockPathOf(number));
    return lock.tryLock() == LockFile::Outcome::Locked;
}
