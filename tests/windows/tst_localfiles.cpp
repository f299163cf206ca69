#include "app/datafolder.h"
#include "filedialoguser.h"
#include "system/ownfolder.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QTemporaryDir>
#include <QtTest>

#include <windows.h>

/// Command files and logs in the system's own encoding, which tests/windows/run makes GBK.
class TestLocalFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void commandsAreSavedInTheSystemsEncoding();
    void commandsAreLoaded_data();
    void commandsAreLoaded();
    void messagesAreSavedInTheSystemsEncoding();
    void ownFilesStandBehindABackslash();
    void anInstallersFolderTakesNoFiles();
};

namespace {

const QString chinese = QStringLiteral(u"\u6D4B\u8BD5");
const QByteArray chineseInGbk = "\xB2\xE2\xCA\xD4";

} // namespace

void TestLocalFiles::initTestCase()
{
    QCOMPARE(GetACP(), UINT(936));
}

void TestLocalFiles::commandsAreSavedInTheSystemsEncoding()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(chinese + ".txt");
    const FileDialogUser user(path);
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    WindowDriver window;
    window.setRow(0, "03", "0010", "0002");
    window.commands()->item(0, CommandColumn::Description)->setText(chinese);
    window.setRow(1, "04", "0000", "01");
    window.checkRow(1);
    window.click("pushButton_SaveCommand");
    QCOMPARE(contentOf(path), chineseInGbk + ",unselect,03 0010 0002\r\n,select,04 0000 01\r\n");

    window.click("pushButton_ClearCommand");
    window.click("pushButton_LoadCommand");
    QCOMPARE(window.commands()->item(0, CommandColumn::Description)->text(), chinese);
    QCOMPARE(window.commands()->item(1, CommandColumn::Cmd)->text(), QString("04"));
    QCOMPARE(boxes.texts(), QStringList());
}

void TestLocalFiles::commandsAreLoaded_data()
{
    QTest::addColumn<QByteArray>("description");

    QTest::newRow("GBK") << chineseInGbk;
    QTest::newRow("UTF-8") << chinese.toUtf8();
}

void TestLocalFiles::commandsAreLoaded()
{
    QFETCH(QByteArray, description);
    const QTemporaryDir folder;
    const QString path = folder.filePath("list.txt");
    writeFile(path, description + ",select,03 0010 00 02\r\n");
    const FileDialogUser user(path);
    MessageBoxes boxes;
    WindowDriver window;
    window.click("pushButton_LoadCommand");
    QCOMPARE(window.commands()->item(0, CommandColumn::Description)->text(), chinese);
    QCOMPARE(window.commands()->item(0, CommandColumn::Cmd)->text(), QString("03"));
    QCOMPARE(boxes.texts(), QStringList());
}

void TestLocalFiles::messagesAreSavedInTheSystemsEncoding()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("log.txt");
    const FileDialogUser user(path);
    MessageBoxes boxes;
    TestPort port;
    WindowDriver window;
    window.open(port);
    window.setRow(0, "03", "0010", "0002");
    window.sendCurrentRow();
    window.click("pushButton_SaveMessage");
    const QByteArray saved = contentOf(path);
    QVERIFY2(saved.contains("5A A5") && saved.endsWith("\r\n"), saved.constData());
    QCOMPARE(saved.count('\n'), saved.count("\r\n"));
}

void TestLocalFiles::ownFilesStandBehindABackslash()
{
    const QString path = dataFile("debuggerConfig.ini");
    QCOMPARE(path, QCoreApplication::applicationDirPath() + "\\debuggerConfig.ini");
    QCOMPARE(portsFolder(), QString());
    QFile::remove(path);
    WindowDriver().window().close();
    QVERIFY(QFile::exists(path));
}

void TestLocalFiles::anInstallersFolderTakesNoFiles()
{
    const QTemporaryDir folder;
    QVERIFY(takesOwnFiles(folder.path()));
    writeFile(folder.filePath("uninstall.exe"), "");
    QVERIFY(!takesOwnFiles(folder.path()));
    QVERIFY(!takesOwnFiles(folder.filePath("missing")));
}

QTEST_MAIN(TestLocalFiles)
#include "tst_localfiles.moc"
