#include "filedesk.h"
#include "filedialoguser.h"
#include "testfiles.h"

#include <QtTest>

class TestSavingMessages : public QObject
{
    Q_OBJECT

private slots:
    void asksForTheFileInTheLastSaveFolder();
    void theMessagesAreSaved();
    void cancellingForgetsTheFolder();
    void aFailedSaveKeepsTheFolder();
};

void TestSavingMessages::asksForTheFileInTheLastSaveFolder()
{
    FileDesk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const FileDialogUser user;
    desk.actions.saveMessages();
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(user.look().caption, QStringLiteral("Save command txt files"));
    QCOMPARE(user.look().filters, QStringList("file(*.txt)"));
    QCOMPARE(user.look().folder, desk.dir.path());
    QCOMPARE(user.look().parent, &desk.window);
    QCOMPARE(user.look().mode, QFileDialog::AcceptSave);
}

void TestSavingMessages::theMessagesAreSaved()
{
    FileDesk desk;
    desk.messages = {{"1", "5A A5", "04", "03", "00 10", "", "0A 84"},
                     {"Uart", "a", "b", "c", "d", "e", "f"}};
    const QString path = desk.path(QStringLiteral("log.txt"));
    const FileDialogUser user(path);
    desk.actions.saveMessages();
    QCOMPARE(textIn(path), QByteArray("1, 5A A5 04 03 00 10  0A 84\n"));
    QCOMPARE(desk.events, QStringList("told: Messages saved: " + QDir::toNativeSeparators(path)));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.storedFolders(), QByteArray("unreadable"));
}

void TestSavingMessages::cancellingForgetsTheFolder()
{
    FileDesk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const FileDialogUser user;
    desk.actions.saveMessages();
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(desk.actions.lastSaveFolder(), QString());
    desk.actions.saveCommands();
    QCOMPARE(user.dialogCount(), 2);
    QCOMPARE(user.look().folder, QCoreApplication::applicationDirPath());
}

void TestSavingMessages::aFailedSaveKeepsTheFolder()
{
    FileDesk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const FileDialogUser user(QStringLiteral("/proc/log.txt"));
    desk.actions.saveMessages();
    QCOMPARE(desk.events, QStringList("message: Save the file failed"));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
}

QTEST_MAIN(TestSavingMessages)
#include "tst_savingmessages.moc"
