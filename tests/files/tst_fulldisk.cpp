#include "files/settings.h"
#include "filesizelimit.h"
#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void settingsStayAsTheyWere();
};

void TestFullDisk::settingsStayAsTheyWere()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("debuggerConfig.ini");
    const QByteArray former =
        "[other]\nkey=" + QByteArray(2000, 'x') + "\n\n[set]\nisEditorFun=1\n";
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(former), qint64(former.size()));
    file.close();
    Settings settings = SettingsFile(path).load();
    settings.linkMode = 1;
    {
        const FileSizeLimit limit(1000);
        SettingsFile(path).save(settings);
    }
    QCOMPARE(contentOf(path), former);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"debuggerConfig.ini"});
    SettingsFile(path).save(settings);
    QCOMPARE(SettingsFile(path).load().linkMode, 1);
    QVERIFY(contentOf(path).startsWith("[other]\nkey=xxx"));
}

QTEST_GUILESS_MAIN(TestFullDisk)
#include "tst_fulldisk.moc"
