#include "files/settings.h"
#include "testfiles.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class TestHostileSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void valuesAreNeverDecoded_data();
    void valuesAreNeverDecoded();
    void whatIsNoFileIsLeftAlone_data();
    void whatIsNoFileIsLeftAlone();
    void aFileOfTheLargestSizeIsRead();
    void aFileThatIsTooLargeIsLeftAlone();
    void noFileBecomesTooLargeToBeRead();

private:
    QString path() const { return m_folder->filePath("debuggerConfig.ini"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

constexpr int largestFile = 1024 * 1024;

/// A file with one setting, of so many bytes.
QByteArray fileOfSize(int size)
{
    const QByteArray file = "[set]\nisEditorFun=7\n[other]\nkey=";
    return file + QByteArray(size - file.size(), 'x');
}

} // namespace

void TestHostileSettings::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestHostileSettings::valuesAreNeverDecoded_data()
{
    QTest::addColumn<QByteArray>("value");

    // A list of 2^31 - 1 values, for which no machine has room.
    const QByteArray hugeList = R"(\0\0\0\t\x7f\xff\xff\xff)";
    QTest::newRow("plain") << "@Variant(" + hugeList + ")";
    QTest::newRow("quoted") << "\"@Variant(" + hugeList + ")\"";
    QTest::newRow("in disguise") << "\\x40Variant(" + hugeList + ")";
    QTest::newRow("in a list") << "a, @Variant(" + hugeList + ")";
    QTest::newRow("a time") << QByteArray(R"(@DateTime(\0\0\0\x10\xff))");
}

void TestHostileSettings::valuesAreNeverDecoded()
{
    QFETCH(QByteArray, value);
    writeFile(path(), "[other]\nkey=" + value + "\n[set]\nLastLoadPath=" + value +
                          "\ndebuggerMode=" + value + "\nisEditorFun=3\n");
    const SettingsFile file(path());
    Settings settings = file.load();
    QCOMPARE(settings.lastLoadPath, QString());
    QCOMPARE(settings.linkMode, 0);
    QCOMPARE(settings.isEditorFun, 3);
    settings.linkMode = 1;
    file.save(settings);
    QCOMPARE(file.load().linkMode, 1);
    QCOMPARE(contentOf(path()).count(value), 1);
}

void TestHostileSettings::whatIsNoFileIsLeftAlone_data()
{
    QTest::addColumn<bool>("throughLink");

    QTest::newRow("a named pipe") << false;
    QTest::newRow("a link to one") << true;
}

void TestHostileSettings::whatIsNoFileIsLeftAlone()
{
    QFETCH(bool, throughLink);
    const QString pipe = throughLink ? m_folder->filePath("pipe") : path();
    QCOMPARE(mkfifo(qUtf8Printable(pipe), 0600), 0);
    QVERIFY(!throughLink || QFile::link(pipe, path()));
    const SettingsFile file(path());
    Settings settings = file.load();
    QCOMPARE(settings.isEditorFun, 0);
    settings.isEditorFun = 1;
    file.save(settings);
    QVERIFY(!QFileInfo(path()).isFile());
    QVERIFY(QFileInfo::exists(pipe));
}

void TestHostileSettings::aFileOfTheLargestSizeIsRead()
{
    writeFile(path(), fileOfSize(largestFile));
    QCOMPARE(SettingsFile(path()).load().isEditorFun, 7);
}

void TestHostileSettings::aFileThatIsTooLargeIsLeftAlone()
{
    writeFile(path(), fileOfSize(largestFile + 1));
    const SettingsFile file(path());
    QCOMPARE(file.load().isEditorFun, 0);
    file.save({});
    QCOMPARE(contentOf(path()), fileOfSize(largestFile + 1));
}

void TestHostileSettings::noFileBecomesTooLargeToBeRead()
{
    writeFile(path(), fileOfSize(largestFile - 10));
    SettingsFile(path()).save({});
    QCOMPARE(contentOf(path()), fileOfSize(largestFile - 10));
}

QTEST_GUILESS_MAIN(TestHostileSettings)
#include "tst_hostilesettings.moc"
