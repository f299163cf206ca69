#include "filedesk.h"
#include "filedialoguser.h"
#include "overwriting.h"
#include "restrictions.h"
#include "testfiles.h"

#include <QtTest>

class TestOverwriting : public QObject
{
    Q_OBJECT

private slots:
    void commandsAreKeptUntilTheirFileIsDone();
    void commandsBesideTheirFileNeedNoKeeping();
    void messagesAreNotKept();
    void hugeFilesAreRefused();
};

void TestOverwriting::commandsAreKeptUntilTheirFileIsDone()
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

void TestOverwriting::commandsBesideTheirFileNeedNoKeeping()
{
    FileDesk desk;
    desk.rows = {rowWith(QStringLiteral("a"))};
    const FileDialogUser user(desk.path(QStringLiteral("list.txt")));
    desk.actions.saveCommands();
    QVERIFY(!desk.events.contains("about to be overwritten"));
}

void TestOverwriting::messagesAreNotKept()
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

void TestOverwriting::hugeFilesAreRefused()
{
    const ClosedFolder folder({});
    const qint64 size = qint64(65) * 1024 * 1024;
    QVERIFY(QFile::resize(folder.filePath(), size));
    QVERIFY(!overwriteFile(folder.filePath(), "a", {}));
    QCOMPARE(QFileInfo(folder.filePath()).size(), size);
}

QTEST_MAIN(TestOverwriting)
#include "tst_overwriting.moc"
