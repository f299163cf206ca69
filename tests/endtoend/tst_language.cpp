#include "testfiles.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The program on systems of several languages.
class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void theSystemsLanguageIsSpoken_data();
    void theSystemsLanguageIsSpoken();
};

void TestLanguage::theSystemsLanguageIsSpoken_data()
{
    QTest::addColumn<QStringList>("locale");
    QTest::addColumn<QByteArray>("caption");

    const QByteArray english = "Auto Send";
    QTest::newRow("nothing is said") << QStringList() << english;
    QTest::newRow("C") << QStringList{"LC_ALL=C.UTF-8"} << english;
    QTest::newRow("C, with a list") << QStringList{"LC_ALL=C", "LANGUAGE=de"} << english;
    QTest::newRow("English") << QStringList{"LANG=en_GB.UTF-8"} << english;
    QTest::newRow("French") << QStringList{"LANG=fr_FR.UTF-8"} << english;
    QTest::newRow("Traditional Chinese") << QStringList{"LANG=zh_TW.UTF-8"} << english;
    QTest::newRow("German") << QStringList{"LANG=de_DE.UTF-8"} << QByteArray("Autom. senden");
    QTest::newRow("Chinese") << QStringList{"LANG=zh_CN.UTF-8"} << QByteArray("自动发送");
    QTest::newRow("of messages") << QStringList{"LANG=de_DE.UTF-8", "LC_MESSAGES=zh_CN.UTF-8"}
                                 << QByteArray("自动发送");
    QTest::newRow("of all") << QStringList{"LANG=de_DE.UTF-8", "LC_ALL=en_US.UTF-8"} << english;
    QTest::newRow("a list") << QStringList{"LANG=en_US.UTF-8", "LANGUAGE=zh_CN:en"}
                            << QByteArray("自动发送");
}

void TestLanguage::theSystemsLanguageIsSpoken()
{
    QFETCH(QStringList, locale);
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(TARNWICK_PROGRAM, folder.filePath("tarnwick")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LANG", "LANGUAGE", "LC_ALL", "LC_MESSAGES"}) {
        environment.remove(name);
    }
    for (const QString &entry : locale) {
        environment.insert(entry.section('=', 0, 0), entry.section('=', 1));
    }
    environment.insert("QT_PLUGIN_PATH", TYPIST_PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "typist:");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(folder.filePath("tarnwick"), QStringList());
    QByteArray told;
    while (!told.endsWith("done\n") && program.waitForReadyRead()) {
        told += program.readAllStandardOutput();
    }
    program.terminate();
    QVERIFY(program.waitForFinished());
    QTEST(told.left(told.indexOf('\n')).mid(told.indexOf(' ') + 1), "caption");
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
