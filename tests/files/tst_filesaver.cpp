#include "filesaver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

class TestFileSaver : public QObject
{
    Q_OBJECT

private slots:
    void saves_data();
    void saves();
    void leavesNothingBeside();
    void keepsThePermissions();
    void impossibleTargets_data();
    void impossibleTargets();
    void namedPipe();
    void followsLinks_data();
    void followsLinks();
    void linksInACircle();
    void folderThatTakesNoFiles_data();
    void folderThatTakesNoFiles();
    void folderThatTakesNoFilesHasNoNewOnes();
    void protectedFile();
    void fileSizeLimit_data();
    void fileSizeLimit();
    void fullFileSystem();
    void killedOnTheWay();
};

namespace {

constexpr int hugeSize = 16 * 1024 * 1024;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
}

/// For its lifetime, permissions count: root acts as a user without any rights of its own.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_wasRoot(geteuid() == 0)
    {
        if (m_wasRoot) {
            m_dropped = setresgid(nobody, nobody, 0) == 0 && setresuid(nobody, nobody, 0) == 0;
        }
    }

    ~OrdinaryUser()
    {
        if (m_dropped && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0)) {
            qFatal("cannot become root again");
        }
    }

    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    bool isInForce() const { return m_dropped || !m_wasRoot; }

private:
    static constexpr uid_t nobody = 65534;

    bool m_wasRoot;
    bool m_dropped = false;
};

/// For its lifetime, writing past a file size fails as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

/// A folder that takes no new files, with one file "list.txt" that everybody may write.
class ClosedFolder
{
public:
    explicit ClosedFolder(const QByteArray &content)
    {
        writeFile(filePath(), content);
        chmod(qUtf8Printable(filePath()), 0666);
        chmod(qUtf8Printable(m_dir.path()), 0555);
    }

    ~ClosedFolder() { chmod(qUtf8Printable(m_dir.path()), 0777); }

    ClosedFolder(const ClosedFolder &) = delete;
    ClosedFolder &operator=(const ClosedFolder &) = delete;

    QString filePath() const { return m_dir.filePath(QStringLiteral("list.txt")); }
    QString newFilePath() const { return m_dir.filePath(QStringLiteral("new.txt")); }

private:
    QTemporaryDir m_dir;
};

} // namespace

void TestFileSaver::saves_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("shorter") << QByteArray("a long text") << QByteArray("a\n");
    QTest::newRow("longer") << QByteArray("a") << QByteArray("a\r\n\0b", 5);
    QTest::newRow("nothing") << QByteArray("a") << QByteArray();
    QTest::newRow("large") << QByteArray("a") << QByteArray(3'000'000, 'x');
}

void TestFileSaver::saves()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a b é.txt"));
    QVERIFY(saveFile(path, before));
    QCOMPARE(contentOf(path), before);
    QVERIFY(saveFile(path, after));
    QCOMPARE(contentOf(path), after);
}

void TestFileSaver::leavesNothingBeside()
{
    const QTemporaryDir dir;
    QVERIFY(saveFile(dir.filePath(QStringLiteral("list.txt")), "a"));
    QVERIFY(saveFile(dir.filePath(QStringLiteral("list.txt")), "b"));
    QCOMPARE(filesIn(dir.path()), QStringList("list.txt"));
}

void TestFileSaver::keepsThePermissions()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("list.txt"));
    writeFile(path, "a");
    QVERIFY(chmod(qUtf8Printable(path), 0664) == 0);
    const QFile::Permissions before = QFile::permissions(path);
    QVERIFY(saveFile(path, "b"));
    QCOMPARE(QFile::permissions(path), before);
}

void TestFileSaver::impossibleTargets_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("no name") << QString();
    QTest::newRow("missing folder") << QStringLiteral("/nowhere/list.txt");
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("file as a folder") << QStringLiteral("/etc/passwd/list.txt");
    QTest::newRow("device that is always full") << QStringLiteral("/dev/full");
    QTest::newRow("device") << QStringLiteral("/dev/null");
    QTest::newRow("file system without files") << QStringLiteral("/proc/list.txt");
}

void TestFileSaver::impossibleTargets()
{
    QFETCH(QString, path);
    const QFileInfo before(path);
    const bool wasFile = before.isFile();
    const bool existed = before.exists();
    QVERIFY(!saveFile(path, "a"));
    QCOMPARE(QFileInfo(path).exists(), existed);
    QCOMPARE(QFileInfo(path).isFile(), wasFile);
}

void TestFileSaver::namedPipe()
{
    const QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qUtf8Printable(pipe), 0600), 0);
    QVERIFY(!saveFile(pipe, "a"));
    QVERIFY(!QFileInfo(pipe).isFile());
}

void TestFileSaver::followsLinks_data()
{
    QTest::addColumn<QStringList>("links");
    QTest::addColumn<bool>("exists");

    QTest::newRow("one") << QStringList{"list.txt"} << true;
    QTest::newRow("a chain") << QStringList{"link1", "link0", "list.txt"} << true;
    QTest::newRow("to no file yet") << QStringList{"list.txt"} << false;
    QTest::newRow("a chain to no file yet") << QStringList{"link0", "list.txt"} << false;
    QTest::newRow("into another folder") << QStringList{"sub/list.txt"} << true;
}

void TestFileSaver::followsLinks()
{
    QFETCH(QStringList, links);
    QFETCH(bool, exists);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("sub")));
    const QString target = dir.filePath(links.last());
    if (exists) {
        writeFile(target, "before");
    }
    // Relative links, each named after its place in the chain.
    for (int i = 0; i < links.size(); ++i) {
        const QString link = dir.filePath(QStringLiteral("link%1").arg(links.size() - 1 - i));
        QCOMPARE(symlink(qUtf8Printable(links.at(i)), qUtf8Printable(link)), 0);
    }
    const QString outermost = dir.filePath(QStringLiteral("link%1").arg(links.size() - 1));
    QVERIFY(saveFile(outermost, "after"));
    QVERIFY(QFileInfo(outermost).isSymLink());
    QVERIFY(QFileInfo(dir.filePath(QStringLiteral("link0"))).isSymLink());
    QVERIFY(!QFileInfo(target).isSymLink());
    QCOMPARE(contentOf(target), QByteArray("after"));
}

void TestFileSaver::linksInACircle()
{
    const QTemporaryDir dir;
    const QString link = dir.filePath(QStringLiteral("a"));
    QCOMPARE(symlink("b", qUtf8Printable(link)), 0);
    QCOMPARE(symlink("a", qUtf8Printable(dir.filePath(QStringLiteral("b")))), 0);
    QVERIFY(!saveFile(link, "x"));
    QVERIFY(QFileInfo(link).isSymLink());
}

void TestFileSaver::folderThatTakesNoFiles_data()
{
    saves_data();
}

void TestFileSaver::folderThatTakesNoFiles()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const ClosedFolder folder(before);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QVERIFY(saveFile(folder.filePath(), after));
    QCOMPARE(contentOf(folder.filePath()), after);
}

void TestFileSaver::folderThatTakesNoFilesHasNoNewOnes()
{
    const ClosedFolder folder("a");
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QVERIFY(!saveFile(folder.newFilePath(), "b"));
    QVERIFY(!QFileInfo::exists(folder.newFilePath()));
}

void TestFileSaver::protectedFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("list.txt"));
    writeFile(path, "before");
    QVERIFY(chmod(qUtf8Printable(path), 0444) == 0);
    QVERIFY(chmod(qUtf8Printable(dir.path()), 0777) == 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QVERIFY(!saveFile(path, "after"));
    QCOMPARE(contentOf(path), QByteArray("before"));
}

void TestFileSaver::fileSizeLimit_data()
{
    QTest::addColumn<bool>("inPlace");

    QTest::newRow("beside the file") << false;
    QTest::newRow("straight into it") << true;
}

void TestFileSaver::fileSizeLimit()
{
    QFETCH(bool, inPlace);
    const QByteArray before(50'000, 'b');
    const ClosedFolder folder(before);
    if (!inPlace) {
        QVERIFY(chmod(qUtf8Printable(QFileInfo(folder.filePath()).path()), 0777) == 0);
    }
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    bool saved = true;
    {
        const FileSizeLimit limit(100'000);
        saved = saveFile(folder.filePath(), QByteArray(200'000, 'a'));
    }
    QVERIFY(!saved);
    QCOMPARE(contentOf(folder.filePath()), before);
    QCOMPARE(filesIn(QFileInfo(folder.filePath()).path()), QStringList("list.txt"));
}

void TestFileSaver::fullFileSystem()
{
    const QTemporaryDir dir;
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--fill", dir.path()});
    QVERIFY(child.waitForFinished());
    const QByteArray told = child.readAllStandardOutput().trimmed();
    if (told == "no file system of its own") {
        QSKIP("this system lets nobody mount a file system; fileSizeLimit() stands in");
    }
    QCOMPARE(told, QByteArray("refused, old file whole"));
}

void TestFileSaver::killedOnTheWay()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("list.txt"));
    writeFile(path, "before");
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--be-killed", path});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    QCOMPARE(child.exitCode(), SIGKILL);

    QCOMPARE(contentOf(path), QByteArray("before"));
    QVERIFY(saveFile(path, "after"));
    QCOMPARE(contentOf(path), QByteArray("after"));
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
    TestFileSaver test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_filesaver.moc"
