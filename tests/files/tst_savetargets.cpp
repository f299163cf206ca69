#include "files/filesaver.h"
#include "testfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

class TestSaveTargets : public QObject
{
    Q_OBJECT

private slots:
    void impossibleTargetsAreRefused_data();
    void impossibleTargetsAreRefused();
    void aNamedPipeIsRefused();
    void followsLinks_data();
    void followsLinks();
    void linksInACircleAreRefused();
};

void TestSaveTargets::impossibleTargetsAreRefused_data()
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

void TestSaveTargets::impossibleTargetsAreRefused()
{
    QFETCH(QString, path);
    const QFileInfo before(path);
    const bool wasFile = before.isFile();
    const bool existed = before.exists();
    QVERIFY(!saveFile(path, "a"));
    QCOMPARE(QFileInfo(path).exists(), existed);
    QCOMPARE(QFileInfo(path).isFile(), wasFile);
}

void TestSaveTargets::aNamedPipeIsRefused()
{
    const QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qUtf8Printable(pipe), 0600), 0);
    QVERIFY(!saveFile(pipe, "a"));
    QVERIFY(!QFileInfo(pipe).isFile());
}

void TestSaveTargets::followsLinks_data()
{
    QTest::addColumn<QStringList>("links");
    QTest::addColumn<bool>("exists");

    QTest::newRow("one") << QStringList{"list.txt"} << true;
    QTest::newRow("a chain") << QStringList{"link1", "link0", "list.txt"} << true;
    QTest::newRow("to no file yet") << QStringList{"list.txt"} << false;
    QTest::newRow("a chain to no file yet") << QStringList{"link0", "list.txt"} << false;
    QTest::newRow("into another folder") << QStringList{"sub/list.txt"} << true;
}

void TestSaveTargets::followsLinks()
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

void TestSaveTargets::linksInACircleAreRefused()
{
    const QTemporaryDir dir;
    const QString link = dir.filePath(QStringLiteral("a"));
    QCOMPARE(symlink("b", qUtf8Printable(link)), 0);
    QCOMPARE(symlink("a", qUtf8Printable(dir.filePath(QStringLiteral("b")))), 0);
    QVERIFY(!saveFile(link, "x"));
    QVERIFY(QFileInfo(link).isSymLink());
}

QTEST_GUILESS_MAIN(TestSaveTargets)
#include "tst_savetargets.moc"
