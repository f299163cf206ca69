#include "app/datafolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QtTest>

class TestDataFolder : public QObject
{
    Q_OBJECT

private slots:
    void writableApplicationFolderIsTheDataFolder();
    void filesStandBehindThePlatformsSeparator();
};

void TestDataFolder::writableApplicationFolderIsTheDataFolder()
{
    QCOMPARE(dataFolder(), QCoreApplication::applicationDirPath());
}

void TestDataFolder::filesStandBehindThePlatformsSeparator()
{
    QCOMPARE(dataFile("debuggerConfig.ini"),
             QCoreApplication::applicationDirPath() + QDir::separator() + "debuggerConfig.ini");
}

QTEST_GUILESS_MAIN(TestDataFolder)
#include "tst_datafolder.moc"
