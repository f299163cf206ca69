#include "filedialoguser.h"
#include "files/commandfile.h"
#include "files/recoverytext.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QCloseEvent>
#include <QLabel>
#include <QtTest>

class TestRecovering : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void anEditedListIsKept();
    void closingAndSavingLeaveNothing_data();
    void closingAndSavingLeaveNothing();
    void whatWasLeftBehindIsOfferedAndLoadedWhenAsked();
    void declinedItIsOfferedAgain();
    void theProgramEndsWithoutAQuestion();
    void anEditThatIsStillOpenIsKept();
    void theProgramMayEndDuringTheQuestion();
    void aSessionThatEndsIsNoReasonToClose();
    void theLoopEndsBeforeTheQuestion();
    void whatIsTakenBackIsKept();
};

namespace {

QString pathOf(const QString &name)
{
    return QCoreApplication::applicationDirPath() + '/' + name;
}

QStringList recoveryFiles()
{
    return filesIn(QCoreApplication::applicationDirPath()).filter("recovery-");
}

QString keptRowIn(const QString &name)
{
    const QVector<CommandRow> rows = readCommandFile(contentOf(pathOf(name))).rows;
    return rows.isEmpty() ? QString("nothing") : rows.first().description;
}

QString description(const WindowDriver &window)
{
    return window.commands()->item(0, CommandColumn::Description)->text();
}

void edit(const WindowDriver &window, const QString &text)
{
    window.commands()->item(0, CommandColumn::Description)->setText(text);
}

/// A list as it is left behind by a program that was killed.
void leaveBehind(const QString &text)
{
    CommandRow row = emptyRow();
    row.description = text;
    row.cmd = "03";
    row.dataType = "hex";
    row.originalData = "as typed";
    writeFile(pathOf("recovery-1.txt"), recoveryText({row}));
}

QString status(const WindowDriver &window)
{
    return window.find<QLabel>("label_Status")->text();
}

void acceptOffer(const WindowDriver &window)
{
    emit window.find<QLabel>("label_Status")->linkActivated("#");
}

} // namespace

void TestRecovering::cleanup()
{
    for (const QString &name : recoveryFiles()) {
        QVERIFY(QFile::remove(pathOf(name)));
    }
}

void TestRecovering::anEditedListIsKept()
{
    const WindowDriver window;
    edit(window, "edited");
    QTRY_COMPARE(keptRowIn("recovery-1.txt"), QString("edited"));
}

void TestRecovering::closingAndSavingLeaveNothing_data()
{
    QTest::addColumn<QByteArray>("slot");

    QTest::newRow("closing") << QByteArray("close");
    QTest::newRow("saving") << QByteArray("on_pushButton_SaveCommand_clicked");
    QTest::newRow("loading") << QByteArray("on_pushButton_LoadCommand_clicked");
    QTest::newRow("clearing") << QByteArray("on_pushButton_ClearCommand_clicked");
}

void TestRecovering::closingAndSavingLeaveNothing()
{
    QFETCH(QByteArray, slot);
    const QTemporaryDir folder;
    writeFile(folder.filePath("list.txt"), "a,5A0001\n");
    MessageBoxes boxes;
    boxes.answerWith(slot == "close" ? QMessageBox::No : QMessageBox::Yes);
    const FileDialogUser user(folder.filePath("list.txt"));
    WindowDriver window;
    edit(window, "edited");
    QTRY_COMPARE(recoveryFiles().size(), 2);
    window.call(slot.constData());
    QCOMPARE(recoveryFiles(), QStringList());
}

void TestRecovering::whatWasLeftBehindIsOfferedAndLoadedWhenAsked()
{
    leaveBehind("kept");
    const FileDialogUser user(pathOf("recovery-1.txt"));
    WindowDriver window;
    QVERIFY(status(window).contains("not saved"));
    QCOMPARE(description(window), QString());
    QCOMPARE(user.dialogCount(), 0);
    acceptOffer(window);
    QTRY_COMPARE(description(window), QString("kept"));
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(user.look().folder, QCoreApplication::applicationDirPath());
    QCOMPARE(window.commands()->item(0, CommandColumn::OriginalData)->text(), QString("as typed"));
    QCOMPARE(status(window), QString());
    // It is still not saved, so it is kept for this program now.
    QCOMPARE(recoveryFiles(), QStringList({".recovery-2.lock", "recovery-2.txt"}));
    QCOMPARE(keptRowIn("recovery-2.txt"), QString("kept"));
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    window.window().close();
    QCOMPARE(boxes.texts(), QStringList("Do you want to save your command?"));
    QCOMPARE(recoveryFiles(), QStringList());
}

void TestRecovering::declinedItIsOfferedAgain()
{
    leaveBehind("kept");
    const FileDialogUser user;
    {
        WindowDriver window;
        acceptOffer(window);
        QTRY_COMPARE(user.dialogCount(), 1);
        QCOMPARE(description(window), QString());
        window.window().close();
    }
    const WindowDriver window;
    QVERIFY(status(window).contains("not saved"));
    QCOMPARE(recoveryFiles(), QStringList("recovery-1.txt"));
}

void TestRecovering::theProgramEndsWithoutAQuestion()
{
    const MessageBoxes boxes;
    const TestPort port;
    {
        WindowDriver window;
        window.open(port);
        window.setRow(0, "10", "0010", "12");
        window.checkRow(0);
        window.click("pushButton_Start_Loop");
        edit(window, "edited");
        window.window().end();
        QCOMPARE(window.button("pushButton_OpenCom")->text(), QString("Open Com Port"));
        QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    }
    QCOMPARE(boxes.texts(), QStringList());
    QCOMPARE(recoveryFiles(), QStringList("recovery-1.txt"));
    QCOMPARE(keptRowIn("recovery-1.txt"), QString("edited"));
}

void TestRecovering::anEditThatIsStillOpenIsKept()
{
    {
        WindowDriver window;
        QTableWidget *table = window.commands();
        table->setCurrentCell(0, CommandColumn::Description);
        table->editItem(table->currentItem());
        QTest::keyClicks(table->viewport()->findChild<QLineEdit *>(), "typed");
        window.window().end();
    }
    QCOMPARE(keptRowIn("recovery-1.txt"), QString("typed"));
}

void TestRecovering::theProgramMayEndDuringTheQuestion()
{
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    {
        WindowDriver window;
        edit(window, "edited");
        connect(&boxes, &MessageBoxes::shown, this, [&window] { window.window().end(); });
        window.window().close();
    }
    QCOMPARE(boxes.texts().size(), 1);
    QCOMPARE(recoveryFiles(), QStringList("recovery-1.txt"));
}

void TestRecovering::aSessionThatEndsIsNoReasonToClose()
{
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    WindowDriver window;
    edit(window, "edited");
    window.window().keepForNextStart();
    QCOMPARE(keptRowIn("recovery-1.txt"), QString("edited"));
    QCOMPARE(boxes.texts(), QStringList());
    QVERIFY(window.window().isVisible());
    window.window().close();
    QCOMPARE(recoveryFiles(), QStringList());
}

void TestRecovering::theLoopEndsBeforeTheQuestion()
{
    const TestPort port;
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    WindowDriver window;
    window.open(port);
    window.setRow(0, "10", "0010", "12");
    window.checkRow(0);
    window.click("pushButton_Start_Loop");
    QString label;
    connect(&boxes, &MessageBoxes::shown, this,
            [&] { label = window.button("pushButton_Start_Loop")->text(); });
    window.window().close();
    QCOMPARE(label, QString("Auto Send"));
}

/// The list that is there again is in no file; taken back to how it was loaded, it is.
void TestRecovering::whatIsTakenBackIsKept()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("list.txt"), "a,5A0001\n");
    MessageBoxes boxes;
    const FileDialogUser user(folder.filePath("list.txt"));
    WindowDriver window;
    edit(window, "edited");
    QTRY_COMPARE(keptRowIn("recovery-1.txt"), QString("edited"));
    window.click("pushButton_LoadCommand");
    QCOMPARE(recoveryFiles(), QStringList());
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    QTest::keyClick(window.commands(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(keptRowIn("recovery-1.txt"), QString("edited"));
    QTest::keyClick(window.commands(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(recoveryFiles(), QStringList());
    window.window().close();
    QCOMPARE(boxes.texts(), QStringList());
}

QTEST_MAIN(TestRecovering)
#include "tst_recovering.moc"
