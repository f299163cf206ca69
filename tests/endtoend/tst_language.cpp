#include "typedprogram.h"

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
    TypedProgram program(folder.path(), {});
    for (const char *name : {"LANG", "LANGUAGE", "LC_ALL", "LC_MESSAGES"}) {
        program.removeVariable(name);
    }
    for (const QString &entry : locale) {
        program.setVariable(entry.section('=', 0, 0), entry.section('=', 1));
    }
    QVERIFY(program.startAndType());
    program.terminate();
    QVERIFY(program.waitForFinished());
    QTEST(program.text("loop"), "caption");
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
