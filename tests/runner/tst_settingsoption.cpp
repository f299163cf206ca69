#include "ranprogram.h"

#include <QtTest>

/// The built program with the window's settings file.
class TestSettingsOption : public QObject
{
    Q_OBJECT

private slots:
    void framesAreAsTheWindowSays_data();
    void framesAreAsTheWindowSays();
    void aPipeIsAsTheWindowSays();
    void aBadFileIsNamed_data();
    void aBadFileIsNamed();
    void nothingIsSentWithABadFile();
};

namespace {

const QByteArray oneRow("Read,select,03 0010\n");

} // namespace

void TestSettingsOption::framesAreAsTheWindowSays_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QByteArray>("frame");

    const QByteArray usual("5A A5 03 03 00 10\n");
    const QByteArray bare("03 00 10\n");
    const QByteArray neither("[set]\nnoAppendHeader=1\nnoAppendLength=1\n");
    const auto row = [](const char *name, const QByteArray &settings, const QStringList &options,
                        const QByteArray &list, const QByteArray &frame) {
        QTest::newRow(name) << settings << options << list << frame;
    };
    row("nothing said", "[set]\n", {}, oneRow, usual);
    row("switches off", "[set]\nnoAppendHeader=0\nnoAppendLength=0\n", {}, oneRow, usual);
    row("no start bytes", "[set]\nnoAppendHeader=1\n", {}, oneRow, "03 03 00 10\n");
    row("no length", "[set]\nnoAppendLength=1\n", {}, oneRow, "5A A5 03 00 10\n");
    row("neither", neither, {}, oneRow, bare);
    row("a whole file of the window",
        "[other]\nnoAppendHeader=1\n[set]\r\nLastLoadPath=/a b\r\ndebuggerMode=1\r\n"
        "isEditorFun=0\r\nnoAppendHeader=0\r\nnoAppendLength=1\r\n",
        {}, oneRow, "5A A5 03 00 10\n");
    row("options say otherwise", neither, {"--start", "0102", "--length"}, oneRow,
        "01 02 03 03 00 10\n");
    row("one option says otherwise", neither, {"--length"}, oneRow, "03 03 00 10\n");
    row("the command file says otherwise", neither, {}, "//@ tarnwick-run 1 start=0102\n" + oneRow,
        "01 02 03 00 10\n");
    row("options go before all", "[set]\n", {"--no-start", "--no-length"},
        "//@ tarnwick-run 1 start=0102\n" + oneRow, bare);
}

void TestSettingsOption::framesAreAsTheWindowSays()
{
    QFETCH(QByteArray, settings);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, list);
    const ListFolder folder;
    const Ran result =
        ran(QStringList{"--dry-run", "--settings", folder.file(settings, "debuggerConfig.ini")} +
            options + QStringList{folder.file(list)});
    QVERIFY2(result.code == 0, result.error);
    QTEST(result.out, "frame");
}

void TestSettingsOption::aPipeIsAsTheWindowSays()
{
    const ListFolder folder;
    const QString usual = folder.file("[set]\nnoAppendHeader=0\n", "usual.ini");
    const Ran answered = ran({"--pipe", "--sim", "--settings", usual}, "Read,03 0010 00 01\n");
    QVERIFY2(answered.code == 0, answered.error);
    QVERIFY2(answered.out.contains("5AA5050300100001"), answered.out);

    const QString bare = folder.file("[set]\nnoAppendHeader=1\n", "bare.ini");
    const Ran refused = ran({"--pipe", "--sim", "--settings", bare}, "Read,03 0010 00 01\n");
    QCOMPARE(refused.code, 2);
    QVERIFY2(refused.error.contains("simulated device needs start bytes"), refused.error);
}

void TestSettingsOption::aBadFileIsNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("words");

    QTest::newRow("no number") << QByteArray("[set]\nnoAppendHeader=1\nnoAppendLength=yes\n")
                               << QByteArray(":3: the value of noAppendLength is no whole number");
    QTest::newRow("no value") << QByteArray("[set]\n\n\nnoAppendHeader=\n")
                              << QByteArray(":4: the value of noAppendHeader is no whole number");
    QTest::newRow("a list") << QByteArray("[set]\nisEditorFun=1,2\n")
                            << QByteArray(":2: the value of isEditorFun is no whole number");
    QTest::newRow("empty") << QByteArray() << QByteArray(":1: there is no group [set] in it");
    QTest::newRow("a command file") << oneRow << QByteArray(":1: there is no group [set] in it");
    QTest::newRow("too large") << QByteArray("[set]\n").append(QByteArray(1024 * 1024, '\n'))
                               << QByteArray(": it is larger than 1 MiB");
}

void TestSettingsOption::aBadFileIsNamed()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, words);
    const ListFolder folder;
    const QString path = folder.file(content, "settings.ini");
    const Ran result = ran({"--dry-run", "--settings", path, folder.file(oneRow)});
    QCOMPARE(result.code, 2);
    QCOMPARE(result.out, QByteArray());
    QVERIFY2(result.error.contains(path.toLocal8Bit() + words), result.error);
}

void TestSettingsOption::nothingIsSentWithABadFile()
{
    const ListFolder folder;
    for (const QString &path : {folder.path("missing.ini"), folder.path(".")}) {
        const Ran result = ran({"--sim", "--settings", path, folder.file(oneRow)});
        QCOMPARE(result.code, 2);
        QCOMPARE(result.out, QByteArray());
        QVERIFY2(result.error.contains(path.toLocal8Bit() + ": it can't be read"), result.error);
    }
}

QTEST_GUILESS_MAIN(TestSettingsOption)
#include "tst_settingsoption.moc"
