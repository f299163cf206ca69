#include "filedesk.h"
#include "filedialoguser.h"
#include "testfiles.h"

#include <QTextCodec>
#include <QtTest>

class TestSavingCommands : public QObject
{
    Q_OBJECT

private slots:
    void asksForTheFileInTheLastSaveFolder();
    void cancellingSavesNothing();
    void theCommandsReplaceTheChosenFile();
    void anUntouchedTableIsAnEmptyFile();
    void aFailedSaveChangesNothing();
    void tellsWhatTheFileCannotHold();
    void savesInTheLocalEncoding();
    void aSavedListLoadsAgain();
};

void TestSavingCommands::asksForTheFileInTheLastSaveFolder()
{
    FileDesk desk;
    const FileDialogUser user;
    desk.actions.saveCommands();
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(user.look().caption, QStringLiteral("Select command txt files"));
    QCOMPARE(user.look().filters, QStringList("*.txt"));
    QCOMPARE(user.look().folder, QCoreApplication::applicationDirPath());
    QCOMPARE(user.look().parent, &desk.window);
    QCOMPARE(user.look().mode, QFileDialog::AcceptSave);

    desk.actions.setLastLoadFolder(QStringLiteral("/"));
    desk.actions.setLastSaveFolder(desk.folder());
    desk.actions.saveCommands();
    QCOMPARE(user.dialogCount(), 2);
    QCOMPARE(user.look().folder, desk.dir.path());
}

void TestSavingCommands::cancellingSavesNothing()
{
    FileDesk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const FileDialogUser user;
    desk.actions.saveCommands();
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(desk.events, QStringList());
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.storedFolders(), QByteArray("unreadable"));
}

void TestSavingCommands::theCommandsReplaceTheChosenFile()
{
    FileDesk desk;
    desk.rows = {emptyRow(), rowWith(QStringLiteral("Name")), delayRow()};
    desk.actions.setLastLoadFolder(QStringLiteral("/l/"));
    const QString path = desk.path(QStringLiteral("list.txt"));
    writeFile(path, "before");
    const FileDialogUser user(path);
    desk.actions.saveCommands();
    QCOMPARE(textIn(path), QByteArray("Name,unselect,%% %%%% \nDaley(ms),unselect,++  1000\n"));
    QCOMPARE(desk.events, QStringList({desk.stored("list.txt"),
                                       "told: Commands saved: " + QDir::toNativeSeparators(path)}));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.actions.lastLoadFolder(), QStringLiteral("/l/"));
    QCOMPARE(desk.storedFolders(), folderFile(QString(), desk.folder()));
}

void TestSavingCommands::anUntouchedTableIsAnEmptyFile()
{
    FileDesk desk;
    desk.rows = QVector<CommandRow>(9, emptyRow());
    const FileDialogUser user(desk.path(QStringLiteral("list.txt")));
    desk.actions.saveCommands();
    QCOMPARE(contentOf(desk.path(QStringLiteral("list.txt"))), QByteArray());
}

void TestSavingCommands::aFailedSaveChangesNothing()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("a,b"))};
    desk.actions.setLastSaveFolder(desk.folder());
    const FileDialogUser user(QStringLiteral("/proc/list.txt"));
    desk.actions.saveCommands();
    QCOMPARE(desk.events, QStringList("message: Save the file failed"));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.storedFolders(), QByteArray("unreadable"));
}

void TestSavingCommands::tellsWhatTheFileCannotHold()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("a")), rowWith(QStringLiteral("a,b"))};
    const QString path = desk.path(QStringLiteral("list.txt"));
    const FileDialogUser user(path);
    desk.actions.saveCommands();
    QCOMPARE(textIn(path), QByteArray("a,unselect,%% %%%% \na,b,unselect,%% %%%% \n"));
    QCOMPARE(desk.events.size(), 3);
    QCOMPARE(desk.events.first(), desk.stored("list.txt"));
    QVERIFY(desk.events.last().contains(QLatin1String("row 2: cannot be read again")));
}

void TestSavingCommands::savesInTheLocalEncoding()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("啊")), rowWith(QStringLiteral("😀"))};
    const QString path = desk.path(QStringLiteral("list.txt"));
    const FileDialogUser user(path);
    QTextCodec *const local = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("GBK"));
    desk.actions.saveCommands();
    QTextCodec::setCodecForLocale(local);
    QVERIFY(contentOf(path).startsWith("\xB0\xA1,unselect,"));
    QVERIFY(desk.events.last().contains(QLatin1String("row 2: some characters")));
}

void TestSavingCommands::aSavedListLoadsAgain()
{
    FileDesk desk;
    CommandRow row = rowWith(QStringLiteral("读 é"));
    row.selected = true;
    row.cmd = QStringLiteral("5A");
    row.data = QStringLiteral("01");
    desk.rows = {row, emptyRow(), delayRow()};
    const QString path = desk.path(QStringLiteral("list.txt"));
    const FileDialogUser user(path);
    desk.actions.saveCommands();
    const QByteArray saved = contentOf(path);
    desk.actions.loadCommands();
    QCOMPARE(desk.rows.size(), 2);
    QCOMPARE(desk.rows.first().addr, QString());
    desk.actions.saveCommands();
    QCOMPARE(contentOf(path), saved);
    const QString stored = desk.stored("list.txt");
    const QString told = "told: Commands saved: " + QDir::toNativeSeparators(path);
    QCOMPARE(desk.events, QStringList({stored, told, "2 rows", stored, stored, told}));
    QCOMPARE(desk.storedFolders(), folderFile(desk.folder(), desk.folder()));
}

QTEST_MAIN(TestSavingCommands)
#include "tst_savingcommands.moc"
