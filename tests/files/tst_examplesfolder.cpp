#include "files/examplesfolder.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestExamplesFolder : public QObject
{
    Q_OBJECT

private slots:
    void standsBelowShareOrBesideTheProgram_data();
    void standsBelowShareOrBesideTheProgram();
    void isNoneWhereNothingIsInstalled();
    void whatIsNoFolderIsPassedOver();
};

void TestExamplesFolder::standsBelowShareOrBesideTheProgram_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("found");

    const QString shared = QStringLiteral("share/tarnwick/examples");
    const QString beside = QStringLiteral("bin/examples");
    QTest::newRow("installed") << QStringList({"bin", shared}) << shared;
    QTest::newRow("unpacked") << QStringList({beside}) << beside;
    QTest::newRow("both") << QStringList({beside, shared}) << shared;
}

void TestExamplesFolder::standsBelowShareOrBesideTheProgram()
{
    QFETCH(QStringList, folders);
    QFETCH(QString, found);
    const QTemporaryDir root;
    for (const QString &folder : qAsConst(folders)) {
        QVERIFY(QDir(root.path()).mkpath(folder));
    }
    QCOMPARE(examplesFolder(root.filePath("bin")), root.filePath(found));
}

void TestExamplesFolder::isNoneWhereNothingIsInstalled()
{
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("bin"));
    QVERIFY(QDir(root.path()).mkpath("share/tarnwick"));
    QVERIFY(QDir(root.path()).mkpath("examples"));
    QCOMPARE(examplesFolder(root.filePath("bin")), QString());
}

void TestExamplesFolder::whatIsNoFolderIsPassedOver()
{
    const QTemporaryDir root;
    QFile file(root.filePath("examples"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(examplesFolder(root.path()), QString());
}

QTEST_APPLESS_MAIN(TestExamplesFolder)
#include "tst_examplesfolder.moc"
