#include "files/filesaver.h"
#include "filesizelimit.h"
#include "restrictions.h"
#include "testfiles.h"

#include <QProcess>
#include <QtTest>

#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

class TestInterruptedSave : public QObject
{
    Q_OBJECT

private slots:
    void aFileTooLargeLeavesTheOldOne_data();
    void aFileTooLargeLeavesTheOldOne();
    void aFullFileSystemKeepsTheOldFile();
    void aSaveThatIsKilledLeavesTheOldFile();
    void aFileThatIsOverwrittenIsNeverAMixture();
};

namespace {

constexpr int hugeSize = 16 * 1024 * 1024;

/// Who the child process saves as.
uid_t writerId()
{
    const OrdinaryUser user;
    return geteuid();
}

} // namespace

void TestInterruptedSave::aFileTooLargeLeavesTheOldOne_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("most");

    QTest::newRow("beside the file") << false << 200'000 << 100'000;
    QTest::newRow("straight into it") << true << 200'000 << 100'000;
    QTest::newRow("a few bytes too many, beside the file") << false << 100'001 << 100'000;
    QTest::newRow("a few bytes too many, straight into it") << true << 100'001 << 100'000;
    QTest::newRow("a little file, beside it") << false << 2000 << 1000;
    QTest::newRow("a little file, straight into it") << true << 2000 << 1000;
}

void TestInterruptedSave::aFileTooLargeLeavesTheOldOne()
{
    QFETCH(bool, inPlace);
    QFETCH(int, size);
    QFETCH(int, most);
    const QByteArray before(size / 4, 'b');
    const ClosedFolder folder(before);
    if (!inPlace) {
        QVERIFY(folder.reopen());
    }
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    bool saved = true;
    {
        const FileSizeLimit limit(static_cast<rlim_t>(most));
        saved = saveFile(folder.filePath(), QByteArray(size, 'a'));
    }
    QVERIFY(!saved);
    QCOMPARE(contentOf(folder.filePath()), before);
    QCOMPARE(filesIn(folder.path()), QStringList("list.txt"));
}

void TestInterruptedSave::aFullFileSystemKeepsTheOldFile()
{
    const QTemporaryDir dir;
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--fill", dir.path()});
    QVERIFY(child.waitForFinished());
    const QByteArray told = child.readAllStandardOutput().trimmed();
    if (told == "no file system of its own") {
        QSKIP("this system lets nobody mount a file system; aFileTooLargeLeavesTheOldOne() stands "
              "in");
    }
    QCOMPARE(told, QByteArray("refused, old file whole"));
}

void TestInterruptedSave::aSaveThatIsKilledLeavesTheOldFile()
{
    const QTemporaryDir dir;
    QCOMPARE(chmod(qUtf8Printable(dir.path()), 0777), 0);
    const QString path = dir.filePath(QStringLiteral("list.txt"));
    writeFile(path, "before");
    QCOMPARE(chmod(qUtf8Printable(path), 0666), 0);
    QCOMPARE(chown(qUtf8Printable(path), writerId(), writerId()), 0);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--be-killed", path});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    QCOMPARE(child.exitCode(), SIGKILL);

    QCOMPARE(contentOf(path), QByteArray("before"));
    QVERIFY(saveFile(path, "after"));
    QCOMPARE(contentOf(path), QByteArray("after"));
}

void TestInterruptedSave::aFileThatIsOverwrittenIsNeverAMixture()
{
    const ClosedFolder folder(QByteArray(hugeSize, 'b'));
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--be-killed", folder.filePath()});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitCode(), SIGKILL);
    const QByteArray left = contentOf(folder.filePath());
    QCOMPARE(left.size(), hugeSize / 2);
    QCOMPARE(left.count('a'), left.size());
}

namespace {

/// What saving to a full file system of 64 KiB comes to.
const char *saveToFullFileSystem(const QByteArray &folder)
{
    const bool ownMounts = unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
    mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    if (!ownMounts || mount("tmpfs", folder.constData(), "tmpfs", 0, "size=64k") != 0) {
        return "no file system of its own";
    }
    const QString path = QString::fromUtf8(folder) + QLatin1String("/list.txt");
    const QByteArray before(20'000, 'b');
    if (!saveFile(path, before)) {
        return "cannot save at all";
    }
    if (saveFile(path, QByteArray(60'000, 'a'))) {
        return "saved";
    }
    return contentOf(path) == before ? "refused, old file whole" : "refused, old file lost";
}

/// Saves a large file and is killed when half of it is written.
bool saveAndBeKilled(const QString &path)
{
    const OrdinaryUser user;
    const FileSizeLimit limit(hugeSize / 2);
    std::signal(SIGXFSZ, [](int) { raise(SIGKILL); });
    return saveFile(path, QByteArray(hugeSize, 'a'));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--fill")) {
        puts(saveToFullFileSystem(arguments.value(2).toUtf8()));
        return 0;
    }
    if (arguments.value(1) == QLatin1String("--be-killed")) {
        return saveAndBeKilled(arguments.value(2)) ? 0 : 1;
    }
    TestInterruptedSave test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_interruptedsave.moc"
