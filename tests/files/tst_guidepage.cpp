#include "files/guidepage.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestGuidePage : public QObject
{
    Q_OBJECT

private slots:
    void theBestOneIsFound_data();
    void theBestOneIsFound();
    void thereMayBeNone();
    void aFolderIsNoPage();
    void isInstalledBelowShare();
};

namespace {

const QString installedGuide = QStringLiteral("build/share/doc/tarnwick/guide/index.html");
const QString unpackedGuide = QStringLiteral("build/bin/guide/index.html");
const QString builtGuide = QStringLiteral("build/guide/index.html");

void writePage(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile page(path);
    QVERIFY(page.open(QIODevice::WriteOnly));
}

} // namespace

void TestGuidePage::theBestOneIsFound_data()
{
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QString>("found");

    QTest::newRow("installed") << QStringList{builtGuide, installedGuide} << installedGuide;
    QTest::newRow("unpacked") << QStringList{builtGuide, unpackedGuide} << unpackedGuide;
    QTest::newRow("built") << QStringList{builtGuide} << builtGuide;
}

void TestGuidePage::theBestOneIsFound()
{
    QFETCH(QStringList, pages);
    QFETCH(QString, found);
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("build/bin"));
    for (const QString &page : qAsConst(pages)) {
        writePage(root.filePath(page));
    }
    QCOMPARE(guidePage(root.filePath("build/bin")), root.filePath(found));

    // From the tree, in the end.
    writePage(root.filePath("docs/guide/index.md"));
    QVERIFY(QDir(root.path()).mkpath("build/other/bin"));
    QCOMPARE(guidePage(root.filePath("build/other/bin")), root.filePath("docs/guide/index.md"));
}

void TestGuidePage::thereMayBeNone()
{
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("a/b/c/bin"));
    QCOMPARE(guidePage(root.filePath("a/b/c/bin")), QString());
}

void TestGuidePage::aFolderIsNoPage()
{
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("a/b/c/bin/guide/index.html"));
    QCOMPARE(guidePage(root.filePath("a/b/c/bin")), QString());
}

void TestGuidePage::isInstalledBelowShare()
{
    QCOMPARE(installedGuidePage("/usr/bin"), QString("/usr/share/doc/tarnwick/guide/index.html"));
}

QTEST_APPLESS_MAIN(TestGuidePage)
#include "tst_guidepage.moc"
