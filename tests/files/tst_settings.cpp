#include "files/settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void missingFileGivesDefaults();
    void missingKeysGiveDefaults();
    void valuesAreRead();
    void linkModeIsZeroOrOne_data();
    void linkModeIsZeroOrOne();
    void allKeysAreWrittenUnderTheGroup();
    void switchesAreWrittenAsTheyWereRead();
    void foldersSurvive_data();
    void foldersSurvive();
    void fileIsUtf8();
    void foreignKeysAndGroupsSurvive();
    void otherLinesStayAsTheyAre();
    void linesOfWindowsStaySuch();
    void theLastOneCounts();
    void aMarkOfUtf8InFrontIsNoMatter();
    void aFolderInItsPlaceIsNoError();
    void rubbishGivesDefaults_data();
    void rubbishGivesDefaults();

private:
    QString path() const { return m_folder->filePath("debuggerConfig.ini"); }
    void write(const QByteArray &content) const;
    /// With plain line ends, whatever the platform has.
    QByteArray content() const;
    /// In an order of their own: the platform decides where new ones go.
    QList<QByteArray> lines() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

void verifyDefaults(const Settings &settings)
{
    QCOMPARE(settings.lastLoadPath, QString());
    QCOMPARE(settings.lastSavePath, QString());
    QCOMPARE(settings.linkMode, 0);
    QCOMPARE(settings.noAppendHeader, 0);
    QCOMPARE(settings.noAppendLength, 0);
    QCOMPARE(settings.isEditorFun, 0);
}

} // namespace

void TestSettings::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestSettings::write(const QByteArray &content) const
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray TestSettings::content() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

QList<QByteArray> TestSettings::lines() const
{
    QList<QByteArray> lines = content().split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
}

void TestSettings::missingFileGivesDefaults()
{
    verifyDefaults(SettingsFile(path()).load());
    QVERIFY(!QFile::exists(path()));
}

void TestSettings::missingKeysGiveDefaults()
{
    write("[set]\nsomething=1\n[other]\ndebuggerMode=1\nLastLoadPath=/tmp\n");
    verifyDefaults(SettingsFile(path()).load());
}

void TestSettings::valuesAreRead()
{
    write("[set]\nLastLoadPath=/load\nLastSavePath=/save\ndebuggerMode=1\n"
          "noAppendHeader=2\nnoAppendLength=-3\nisEditorFun=4\n");
    const Settings settings = SettingsFile(path()).load();
    QCOMPARE(settings.lastLoadPath, QString("/load"));
    QCOMPARE(settings.lastSavePath, QString("/save"));
    QCOMPARE(settings.linkMode, 1);
    QCOMPARE(settings.noAppendHeader, 2);
    QCOMPARE(settings.noAppendLength, -3);
    QCOMPARE(settings.isEditorFun, 4);
}

void TestSettings::linkModeIsZeroOrOne_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("mode");

    QTest::newRow("0") << QByteArray("0") << 0;
    QTest::newRow("1") << QByteArray("1") << 1;
    QTest::newRow("5") << QByteArray("5") << 1;
    QTest::newRow("negative") << QByteArray("-1") << 1;
    QTest::newRow("no number") << QByteArray("HID") << 0;
    QTest::newRow("empty") << QByteArray() << 0;
}

void TestSettings::linkModeIsZeroOrOne()
{
    QFETCH(QByteArray, value);
    write("[set]\ndebuggerMode=" + value + "\n");
    QTEST(SettingsFile(path()).load().linkMode, "mode");
}

void TestSettings::allKeysAreWrittenUnderTheGroup()
{
    SettingsFile(path()).save({});
    QCOMPARE(content(), QByteArray("[set]\nLastLoadPath=\nLastSavePath=\ndebuggerMode=0\n"
                                   "isEditorFun=0\nnoAppendHeader=0\nnoAppendLength=0\n"));
}

void TestSettings::switchesAreWrittenAsTheyWereRead()
{
    write("[set]\ndebuggerMode=7\nisEditorFun=5\nnoAppendHeader=-6\nnoAppendLength=7\n");
    SettingsFile file(path());
    file.save(file.load());
    QCOMPARE(lines(),
             QList<QByteArray>({"", "LastLoadPath=", "LastSavePath=", "[set]", "debuggerMode=1",
                                "isEditorFun=5", "noAppendHeader=-6", "noAppendLength=7"}));
}

void TestSettings::foldersSurvive_data()
{
    QTest::addColumn<QString>("folder");

    QTest::newRow("plain") << "/home/user";
    QTest::newRow("umlauts") << QStringLiteral(u"/home/M\u00FCller");
    QTest::newRow("Chinese") << QStringLiteral(u"/home/\u547D\u4EE4");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("/home/\xF0\x9F\x94\x8C");
    QTest::newRow("marks of the format") << R"(/a,b;c=d "e" [f] %20 @g)";
    QTest::newRow("backslashes") << R"(C:\new\table\x41)";
    QTest::newRow("blanks at its ends") << " /home ";
}

void TestSettings::foldersSurvive()
{
    QFETCH(QString, folder);
    Settings settings;
    settings.lastLoadPath = folder;
    settings.lastSavePath = folder + "/save";
    SettingsFile(path()).save(settings);
    const Settings read = SettingsFile(path()).load();
    QCOMPARE(read.lastLoadPath, folder);
    QCOMPARE(read.lastSavePath, folder + "/save");
}

void TestSettings::fileIsUtf8()
{
    const QString folder = QStringLiteral(u"/home/\u547D\u4EE4");
    Settings settings;
    settings.lastLoadPath = folder;
    SettingsFile(path()).save(settings);
    QVERIFY(content().contains("LastLoadPath=" + folder.toUtf8()));
    write("[set]\nLastSavePath=" + folder.toUtf8() + "\n");
    QCOMPARE(SettingsFile(path()).load().lastSavePath, folder);
}

void TestSettings::foreignKeysAndGroupsSurvive()
{
    write("[other]\nkey=\"a, b\"\n\n[set]\nmine=kept\nisEditorFun=1\n");
    SettingsFile file(path());
    file.save(file.load());
    QCOMPARE(lines(), QList<QByteArray>({"", "", "LastLoadPath=", "LastSavePath=", "[other]",
                                         "[set]", "debuggerMode=0", "isEditorFun=1", "key=\"a, b\"",
                                         "mine=kept", "noAppendHeader=0", "noAppendLength=0"}));
    QVERIFY(content().indexOf("mine=") > content().indexOf("[set]"));
    QVERIFY(content().indexOf("key=") < content().indexOf("[set]"));
}

void TestSettings::otherLinesStayAsTheyAre()
{
    const QByteArray before = "; mine\r\n[other]\nkey = @Variant(x)\n\n[ set ] ; here\n";
    const QByteArray after = "mine\n=a\nisEditorFun=1\n;end\n";
    write(before + after + " isEditorFun = 1 ; too");
    SettingsFile file(path());
    file.save(file.load());
    QFile written(path());
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), before +
                                    "LastLoadPath=\nLastSavePath=\ndebuggerMode=0\n"
                                    "noAppendHeader=0\nnoAppendLength=0\n" +
                                    after);
}

void TestSettings::linesOfWindowsStaySuch()
{
    write("[set]\r\ndebuggerMode=1\r\nisEditorFun=1\r\n");
    SettingsFile file(path());
    file.save(file.load());
    QFile written(path());
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray bytes = written.readAll();
    QVERIFY(bytes.contains("\ndebuggerMode=1\r\n"));
    QVERIFY(bytes.endsWith("isEditorFun=1\r\n"));
}

void TestSettings::theLastOneCounts()
{
    write("[set]\nisEditorFun=1\n[other]\nisEditorFun=2\n[set]\nisEditorFun=3\n");
    SettingsFile file(path());
    QCOMPARE(file.load().isEditorFun, 3);
    file.save(file.load());
    QCOMPARE(file.load().isEditorFun, 3);
    QCOMPARE(content().count("isEditorFun"), 2);
}

void TestSettings::aMarkOfUtf8InFrontIsNoMatter()
{
    write("\xEF\xBB\xBF[set]\nisEditorFun=1\n");
    SettingsFile file(path());
    QCOMPARE(file.load().isEditorFun, 1);
    file.save(file.load());
    QCOMPARE(content().count("isEditorFun"), 1);
}

void TestSettings::aFolderInItsPlaceIsNoError()
{
    QVERIFY(QDir(m_folder->path()).mkpath("debuggerConfig.ini/inside"));
    SettingsFile file(path());
    verifyDefaults(file.load());
    file.save(file.load());
    QVERIFY(QFile::exists(path() + "/inside"));
}

void TestSettings::rubbishGivesDefaults_data()
{
    QTest::addColumn<QByteArray>("rubbish");

    QByteArray everyByte;
    for (int i = 0; i < 4096; ++i) {
        everyByte.append(static_cast<char>(i * 37));
    }
    QTest::newRow("binary") << everyByte;
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("text") << QByteArray("this is no settings file\n");
    QTest::newRow("marks") << QByteArray("]\n[]\n=\n==\n[[]]\ndebuggerMode=1\n");
}

void TestSettings::rubbishGivesDefaults()
{
    QFETCH(QByteArray, rubbish);
    write(rubbish);
    SettingsFile file(path());
    verifyDefaults(file.load());
    Settings settings;
    settings.linkMode = 1;
    file.save(settings);
    QCOMPARE(SettingsFile(path()).load().linkMode, 1);
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
