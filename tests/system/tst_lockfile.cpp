#include "restrictions.h"
#include "system/lockfile.h"
#include "testfiles.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

class TestLockFile : public QObject
{
    Q_OBJECT

private slots:
    void holdsUntilItIsUnlocked();
    void goesWithItsProcess();
    void takesOverWhateverIsInIt_data();
    void takesOverWhateverIsInIt();
    void takesOverWhatNobodyCanRead();
    void locksWhatItCanOnlyRead();
    void saysWhyItFails_data();
    void saysWhyItFails();
};

using Locking = LockFile::Outcome;

void TestLockFile::holdsUntilItIsUnlocked()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("lock"));
    LockFile first(path);
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(first.tryLock(), Locking::Locked);
    QCOMPARE(first.tryLock(), Locking::Locked);
    LockFile second(path);
    QCOMPARE(second.tryLock(), Locking::HeldByAnother);
    QVERIFY(!second.isLocked());
    second.unlock();
    QVERIFY(QFileInfo::exists(path));
    first.unlock();
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(second.tryLock(), Locking::Locked);
}

void TestLockFile::goesWithItsProcess()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("lock"));
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {"--hold", path});
    QVERIFY(other.waitForReadyRead());
    LockFile lock(path);
    QCOMPARE(lock.tryLock(), Locking::HeldByAnother);
    other.kill();
    QVERIFY(other.waitForFinished());
    QVERIFY(QFileInfo::exists(path));
    QCOMPARE(lock.tryLock(), Locking::Locked);
}

void TestLockFile::takesOverWhateverIsInIt_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("rubbish") << QByteArray("\0\xFF\n", 3).repeated(1000);
    QTest::newRow("a process that runs") << QByteArray("1\n");
}

void TestLockFile::takesOverWhateverIsInIt()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("lock"));
    writeFile(path, content);
    LockFile lock(path);
    QCOMPARE(lock.tryLock(), Locking::Locked);
    QCOMPARE(contentOf(path), QByteArray::number(getpid()) + '\n');
}

void TestLockFile::takesOverWhatNobodyCanRead()
{
    const QTemporaryDir dir;
    QCOMPARE(chmod(qUtf8Printable(dir.path()), 0777), 0);
    const QString path = dir.filePath(QStringLiteral("lock"));
    writeFile(path, "1\n");
    QCOMPARE(chmod(qUtf8Printable(path), 0), 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    LockFile lock(path);
    QCOMPARE(lock.tryLock(), Locking::Locked);
}

void TestLockFile::locksWhatItCanOnlyRead()
{
    const ClosedFolder folder("1\n");
    QCOMPARE(chmod(qUtf8Printable(folder.filePath()), 0444), 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    LockFile first(folder.filePath());
    QCOMPARE(first.tryLock(), Locking::Locked);
    LockFile second(folder.filePath());
    QCOMPARE(second.tryLock(), Locking::HeldByAnother);
}

void TestLockFile::saysWhyItFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("folder") << "folder";
    QTest::newRow("named pipe") << "pipe";
    QTest::newRow("missing folder") << "nowhere/lock";
}

void TestLockFile::saysWhyItFails()
{
    QFETCH(QString, name);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder")));
    QCOMPARE(mkfifo(qUtf8Printable(dir.filePath(QStringLiteral("pipe"))), 0600), 0);
    LockFile lock(dir.filePath(name));
    QCOMPARE(lock.tryLock(), Locking::Failed);
    QVERIFY(!lock.error().isEmpty());
    QCOMPARE(filesIn(dir.path()), QStringList("pipe"));
}

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    if (QCoreApplication::arguments().value(1) == QLatin1String("--hold")) {
        LockFile lock(QCoreApplication::arguments().value(2));
        puts(lock.tryLock() == Locking::Locked ? "locked" : "failed");
        fflush(stdout);
        return QCoreApplication::exec();
    }
    TestLockFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_lockfile.moc"
