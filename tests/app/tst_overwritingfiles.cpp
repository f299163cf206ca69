#include "filedesk.h"
#include "filedialoguser.h"
#include "restrictions.h"
#include "testfiles.h"

#include <QtTest>

class TestOverwritingFiles : public QObject
{
    Q_OBJECT

private slots:
    void commandsAreKeptUntilTheirFileIsDone();
    void commandsBesideTheirFileNeedNoKeeping();
    void messagesAreNotKept();
};

void TestOverwritingFiles::commandsAreKeptUntilTheirFileIsDone()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("a"))};
    const ClosedFolder folder("before");
    const FileDialogUser user(folder.filePath());
    const OrdinaryUser ordinary;
    QVERIFY(ordinary.isInForce());
    desk.actions.saveCommands();
    QCOMPARE(desk.events.mid(0, 2),
             QStringList({"about to be overwritten", "stored: " + folder.filePath()}));
    QCOMPARE(contentOf(folder.filePath()), QByteArray("a,unselect,%% %%%% \n"));
}

void TestOverwritingFiles::commandsBesideTheirFileNeedNoKeeping()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("a"))};
    const FileDialogUser user(desk.path(QStringLiteral("list.txt")));
    desk.actions.saveCommands();
    QVERIFY(!desk.events.contains("about to be overwritten"));
}

void TestOverwritingFiles::messagesAreNotKept()
{
    FileDesk desk;
    const ClosedFolder folder("before");
    const FileDialogUser user(folder.filePath());
    const OrdinaryUser ordinary;
    QVERIFY(ordinary.isInForce());
    desk.actions.saveMessages();
    QVERIFY(!desk.events.contains("about to be overwritten"));
    QCOMPARE(contentOf(folder.filePath()), QByteArray());
}

QTEST_MAIN(TestOverwritingFiles)
#include "tst_overwritingfiles.moc"
