#include "files/filesaver.h"
#include "restrictions.h"
#include "testfiles.h"

#include <QFileInfo>
#include <QtTest>

#include <optional>
#include <sys/stat.h>
#include <unistd.h>

class TestFileSaver : public QObject
{
    Q_OBJECT

private slots:
    void textsReplaceEachOther_data();
    void textsReplaceEachOther();
    void leavesNothingBeside();
    void keepsThePermissions();
    void keepsTheOwner_data();
    void keepsTheOwner();
    void aFileOfOthersInAStickyFolderIsReplaced();

    void aFileInAFolderThatTakesNoneIsReplaced_data();
    void aFileInAFolderThatTakesNoneIsReplaced();
    void onlyAnOverwrittenFileIsCopiedFirst();
    void aFolderThatTakesNoFilesHasNoNewOnes();
    void aProtectedFileStaysAsItIs();
};

void TestFileSaver::textsReplaceEachOther_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("shorter") << QByteArray("a long text") << QByteArray("a\n");
    QTest::newRow("longer") << QByteArray("a") << QByteArray("a\r\n\0b", 5);
    QTest::newRow("nothing") << QByteArray("a") << QByteArray();
    QTest::newRow("large") << QByteArray("a") << QByteArray(3'000'000, 'x');
}

void TestFileSaver::textsReplaceEachOther()
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

void TestFileSaver::keepsTheOwner_data()
{
    QTest::addColumn<uint>("user");
    QTest::addColumn<uint>("group");
    QTest::addColumn<bool>("asRoot");

    QTest::newRow("user, by root") << nobody << nobody << true;
    QTest::newRow("group, by root") << 0U << nobody << true;
    QTest::newRow("user, by another one") << 0U << 0U << false;
    QTest::newRow("group, by its owner") << nobody << 0U << false;
}

void TestFileSaver::keepsTheOwner()
{
    QFETCH(uint, user);
    QFETCH(uint, group);
    QFETCH(bool, asRoot);
    if (geteuid() != 0) {
        QSKIP("only root can give files to others");
    }
    const QTemporaryDir dir;
    QCOMPARE(chmod(qUtf8Printable(dir.path()), 0777), 0);
    const QString path = dir.filePath(QStringLiteral("list.txt"));
    writeFile(path, "before");
    QCOMPARE(chown(qUtf8Printable(path), user, group), 0);
    QCOMPARE(chmod(qUtf8Printable(path), 0666), 0);
    std::optional<OrdinaryUser> ordinary;
    if (!asRoot) {
        ordinary.emplace();
        QVERIFY(ordinary->isInForce());
    }
    QVERIFY(saveFile(path, "after"));
    QCOMPARE(contentOf(path), QByteArray("after"));
    QCOMPARE(QFileInfo(path).ownerId(), user);
    QCOMPARE(QFileInfo(path).groupId(), group);
    QCOMPARE(QFile::permissions(path) & 0x777, QFile::Permissions(0x666));
    QCOMPARE(filesIn(dir.path()), QStringList("list.txt"));
}

void TestFileSaver::aFileOfOthersInAStickyFolderIsReplaced()
{
    const ClosedFolder folder("before");
    QCOMPARE(chmod(qUtf8Printable(folder.path()), 01777), 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QVERIFY(saveFile(folder.filePath(), "after"));
    QCOMPARE(contentOf(folder.filePath()), QByteArray("after"));
    QCOMPARE(filesIn(folder.path()), QStringList("list.txt"));
}

void TestFileSaver::onlyAnOverwrittenFileIsCopiedFirst()
{
    const ClosedFolder folder("before");
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QByteArray copied;
    const auto copy = [&] { copied = contentOf(folder.filePath()); };
    QVERIFY(saveFile(folder.filePath(), "after", copy));
    QCOMPARE(copied, QByteArray("before"));
    const QTemporaryDir dir;
    QVERIFY(saveFile(dir.filePath(QStringLiteral("list.txt")), "a", [] { QFAIL("no need"); }));
}

void TestFileSaver::aFileInAFolderThatTakesNoneIsReplaced_data()
{
    textsReplaceEachOther_data();
}

void TestFileSaver::aFileInAFolderThatTakesNoneIsReplaced()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const ClosedFolder folder(before);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QVERIFY(saveFile(folder.filePath(), after));
    QCOMPARE(contentOf(folder.filePath()), after);
}

void TestFileSaver::aFolderThatTakesNoFilesHasNoNewOnes()
{
    const ClosedFolder folder("a");
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QVERIFY(!saveFile(folder.newFilePath(), "b"));
    QVERIFY(!QFileInfo::exists(folder.newFilePath()));
}

void TestFileSaver::aProtectedFileStaysAsItIs()
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

QTEST_GUILESS_MAIN(TestFileSaver)
#include "tst_filesaver.moc"
