#include "filedesk.h"
#include "filedialoguser.h"
#include "testfiles.h"

#include <QtTest>

#include <sys/stat.h>

class TestLoadingCommands : public QObject
{
    Q_OBJECT

private slots:
    void asksForTheFileInTheLastLoadFolder();
    void beginsInTheExamplesThatAreInstalled();
    void cancellingLoadsNothing();
    void theChosenFileIsLoaded();
    void tellsOfInvalidLinesBeforeTheFolderIsStored();
    void loadsNothingFromAListWithoutCommands();
    void unusableFilesAreToldAndNotLoaded_data();
    void unusableFilesAreToldAndNotLoaded();
    void aFileThatVanishesBehindTheDialogIsTold();
};

void TestLoadingCommands::asksForTheFileInTheLastLoadFolder()
{
    FileDesk desk;
    const FileDialogUser user;
    desk.actions.loadCommands();
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(user.look().caption, QStringLiteral("Select command txt files"));
    QCOMPARE(user.look().filters, QStringList("*.txt"));
    QCOMPARE(user.look().folder, QCoreApplication::applicationDirPath());
    QCOMPARE(user.look().parent, &desk.window);
    QCOMPARE(user.look().mode, QFileDialog::AcceptOpen);

    desk.actions.setLastLoadFolder(desk.folder());
    desk.actions.setLastSaveFolder(QStringLiteral("/"));
    desk.actions.loadCommands();
    QCOMPARE(user.dialogCount(), 2);
    QCOMPARE(user.look().folder, desk.dir.path());
}

void TestLoadingCommands::beginsInTheExamplesThatAreInstalled()
{
    QDir beside(QCoreApplication::applicationDirPath());
    QVERIFY(beside.mkdir("examples"));
    const auto remove = qScopeGuard([&beside] { beside.rmdir("examples"); });
    FileDesk desk;
    const FileDialogUser user;
    desk.actions.loadCommands();
    QCOMPARE(user.look().folder, beside.filePath("examples"));
    QCOMPARE(desk.actions.lastLoadFolder(), QString());

    desk.actions.setLastLoadFolder(desk.folder());
    desk.actions.loadCommands();
    QCOMPARE(user.look().folder, desk.dir.path());
}

void TestLoadingCommands::cancellingLoadsNothing()
{
    FileDesk desk;
    desk.actions.setLastLoadFolder(desk.folder());
    const FileDialogUser user;
    desk.actions.loadCommands();
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(desk.events, QStringList());
    QCOMPARE(desk.actions.lastLoadFolder(), desk.folder());
    QCOMPARE(desk.storedFolders(), QByteArray("unreadable"));
}

void TestLoadingCommands::theChosenFileIsLoaded()
{
    FileDesk desk;
    desk.actions.setLastSaveFolder(QStringLiteral("/s/"));
    writeFile(desk.path(QStringLiteral("list.txt")), "a,select,5A 0001 01\nb,++  500\n");
    const FileDialogUser user(desk.path(QStringLiteral("list.txt")));
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList({"2 rows", desk.stored("list.txt")}));
    QCOMPARE(desk.rows.first().description, QStringLiteral("a"));
    QCOMPARE(desk.actions.lastLoadFolder(), desk.folder());
    QCOMPARE(desk.actions.lastSaveFolder(), QStringLiteral("/s/"));
    QCOMPARE(desk.storedFolders(), folderFile(desk.folder(), QString()));
}

void TestLoadingCommands::tellsOfInvalidLinesBeforeTheFolderIsStored()
{
    FileDesk desk;
    writeFile(desk.path(QStringLiteral("list.txt")), "a,b,c,d\na,5A0001\nwrong\n");
    const FileDialogUser user(desk.path(QStringLiteral("list.txt")));
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList({"1 rows", desk.stored("list.txt"),
                                       "message: Input Register:Invalid format!"}));
    QCOMPARE(desk.folderAtMessage, std::optional<QString>(QString()));
    QCOMPARE(desk.actions.lastLoadFolder(), desk.folder());
}

void TestLoadingCommands::loadsNothingFromAListWithoutCommands()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("before"))};
    writeFile(desk.path(QStringLiteral("list.txt")), "// nothing\n\n");
    const FileDialogUser user(desk.path(QStringLiteral("list.txt")));
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList({"0 rows", desk.stored("list.txt")}));
    QVERIFY(desk.rows.isEmpty());
}

void TestLoadingCommands::unusableFilesAreToldAndNotLoaded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");

    QTest::newRow("a named pipe") << QByteArray() << "Read fail,please check the path!";
    QTest::newRow("large rubbish")
        << QByteArray(100 * 1024 * 1024, 'x') << "The file is too large for a command list!";
    QTest::newRow("50,000 commands")
        << QByteArray("a,5A0001\n").repeated(50'000) << "The file has more than 10000 commands!";
}

void TestLoadingCommands::unusableFilesAreToldAndNotLoaded()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    FileDesk desk;
    const QString path = desk.path(QStringLiteral("list.txt"));
    if (bytes.isEmpty()) {
        QCOMPARE(mkfifo(qUtf8Printable(path), 0600), 0);
    } else {
        writeFile(path, bytes);
    }
    const FileDialogUser user(path);
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList("message: " + message));
    QCOMPARE(desk.actions.lastLoadFolder(), QString());
    QCOMPARE(desk.storedFolders(), QByteArray("unreadable"));
}

void TestLoadingCommands::aFileThatVanishesBehindTheDialogIsTold()
{
    FileDesk desk;
    const QString path = desk.path(QStringLiteral("list.txt"));
    writeFile(path, "a,5A0001\n");
    const FileDialogUser user(path);
    // Runs once the dialog has been accepted, before the file is opened.
    connect(&user, &FileDialogUser::shown, this, [&path](QFileDialog *dialog) {
        connect(dialog, &QDialog::finished, dialog, [&path] { QFile::remove(path); });
    });
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList("message: Read fail,please check the path!"));
}

QTEST_MAIN(TestLoadingCommands)
#include "tst_loadingcommands.moc"
