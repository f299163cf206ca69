#include "commands/commandtable.h"
#include "loopwindow.h"
#include "seencells.h"

#include <QHelpEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QtTest>

namespace Column = CommandColumn;

class TestReplyFigures : public QObject
{
    Q_OBJECT

private slots:
    void theTipOfASendButtonTellsHowTheRowWasAnswered();
    void theFiguresMoveWithTheirRow();
    void anotherListBeginsWithoutFigures();
    void whatGetsNoAnswerIsLost();
    void theStatusLineTellsHowALoopGoes();
    void theTipOfADescriptionTellsWhatIsExpected();
    void aReplyThatIsNotExpectedIsUnderlined_data();
    void aReplyThatIsNotExpectedIsUnderlined();
};

namespace {

const QByteArray replyToAll = QByteArray::fromHex("5AA503030001");

/// The tip of a cell that a widget covers: it is the widget that the mouse rests on.
QString sendTip(const WindowDriver &window, int row)
{
    QToolTip::hideText();
    QWidget *button = window.commands()->cellWidget(row, Column::Send);
    const QPoint place = button->rect().center();
    QHelpEvent event(QEvent::ToolTip, place, button->mapToGlobal(place));
    QCoreApplication::sendEvent(button, &event);
    return QToolTip::text();
}

QString shownFigures(const WindowDriver &window)
{
    return window.find<QLabel>("label_Status")->text().remove(QChar(0x200B));
}

void sendAndAnswer(WindowDriver &window, const TestPort &port)
{
    const int before = window.messageCount();
    window.sendCurrentRow();
    port.send(replyToAll);
    QTRY_COMPARE(window.messageCount(), before + 2);
}

} // namespace

void TestReplyFigures::theTipOfASendButtonTellsHowTheRowWasAnswered()
{
    WindowDriver window;
    const TestPort port;
    window.window().resize(1120, 760);
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    QCOMPARE(sendTip(window, 0), QString());
    sendAndAnswer(window, port);
    sendAndAnswer(window, port);
    const QStringList lines = sendTip(window, 0).split('\n');
    QCOMPARE(lines.first(), QString("Sent 2, answered 2, lost 0 (none within 1 s)"));
    const QRegularExpression times(
        "^Reply time: last [\\d.]+ [mµ]s, median [\\d.]+ [mµ]s, 99 % within [\\d.]+ [mµ]s$");
    QVERIFY2(times.match(lines.last()).hasMatch(), qPrintable(lines.last()));
}

void TestReplyFigures::theFiguresMoveWithTheirRow()
{
    WindowDriver window;
    const TestPort port;
    window.window().resize(1120, 760);
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    sendAndAnswer(window, port);
    auto &rows = *window.window().findChild<CommandTable *>();
    const QString tip = sendTip(window, 0);
    rows.insertEmptyRow(0);
    QVERIFY(rows.moveDown(1));
    QCOMPARE(sendTip(window, 2), tip);
    rows.cloneRow(2);
    sendTip(window, 3);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestReplyFigures::anotherListBeginsWithoutFigures()
{
    WindowDriver window;
    const TestPort port;
    window.window().resize(1120, 760);
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    sendAndAnswer(window, port);
    QVERIFY(!sendTip(window, 0).isEmpty());
    window.click("pushButton_ClearCommand");
    sendTip(window, 0);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestReplyFigures::whatGetsNoAnswerIsLost()
{
    WindowDriver window;
    const TestPort port;
    window.window().resize(1120, 760);
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    window.sendCurrentRow();
    QCOMPARE(sendTip(window, 0), QString("Sent 1, answered 0, lost 0 (none within 1 s)"));
    QTRY_COMPARE(sendTip(window, 0), QString("Sent 1, answered 0, lost 1 (none within 1 s)"));
}

void TestReplyFigures::theStatusLineTellsHowALoopGoes()
{
    LoopWindow window("20", "10", "1");
    window.edit("lineEdit_Repeat")->setText("3");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(shownFigures(window).contains("Passes: 0\nFrames: 0 out, 0 in, 0 lost\n"));
    for (int frames = 1; frames <= 6; ++frames) {
        QTRY_VERIFY(window.port.received().size() >= frames * firstFrame.size());
        window.port.send(replyToAll);
    }
    QTRY_COMPARE(window.loopCaption(), QString("Auto Send"));
    const QRegularExpression figures("Passes: 3\nFrames: 6 out, 6 in, 0 lost\n"
                                     "Reply: [\\d.]+ [mµ]s, 99 %: [\\d.]+ [mµ]s\n"
                                     "Late: [\\d.]+ [mµ]s, 99 %: [\\d.]+ [mµ]s,\n"
                                     "at most [\\d.]+ [mµ]s");
    QTRY_VERIFY2(figures.match(shownFigures(window)).hasMatch(), qPrintable(shownFigures(window)));
    // They stay until another link is opened.
    window.click("pushButton_OpenCom");
    QVERIFY(shownFigures(window).contains("Passes: 3"));
    window.click("pushButton_OpenCom");
    QVERIFY(!shownFigures(window).contains("Passes"));
}

void TestReplyFigures::theTipOfADescriptionTellsWhatIsExpected()
{
    WindowDriver window;
    window.window().resize(1120, 760);
    CommandRow row = emptyRow();
    row.description = "Read";
    row.expectations = "//@ tarnwick-run 1\n//? 03 0010 ??\n//! 83 **\n";
    window.window().findChild<CommandTable *>()->replaceRows({row});
    QCOMPARE(tipOf(*window.commands(), 0, Column::Description),
             QString("//? 03 0010 ??\n//! 83 **"));
}

void TestReplyFigures::aReplyThatIsNotExpectedIsUnderlined_data()
{
    QTest::addColumn<QString>("expectations");
    QTest::addColumn<QString>("fault");

    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("fits") << "//@ tarnwick-run 1\n//? 03 0001\n"
                          << "";
    QTest::newRow("does not fit") << "//@ tarnwick-run 1\n//? 03 0002\n"
                                  << "expected 03 0002, got 03 00 01 after ";
    QTest::newRow("forbidden") << "//@ tarnwick-run 1\n//! 03 **\n"
                               << "03 ** is forbidden, got 03 00 01 after ";
}

void TestReplyFigures::aReplyThatIsNotExpectedIsUnderlined()
{
    QFETCH(QString, expectations);
    QFETCH(QString, fault);
    constexpr int cmdColumn = 3;
    constexpr int dataColumn = 5;
    WindowDriver window;
    const TestPort port;
    window.window().resize(1120, 760);
    window.open(port);
    CommandRow row = emptyRow();
    row.cmd = "03";
    row.addr = "0000";
    row.data = "00 01";
    row.expectations = expectations;
    window.window().findChild<CommandTable *>()->replaceRows({row});
    window.clickSend(0);
    QTRY_COMPARE(window.messageCount(), 1);
    port.send(replyToAll);
    QTRY_COMPARE(window.messageCount(), 2);
    QVERIFY(!showsRed(pictureOf(*window.messages(), 0, dataColumn)));
    for (const int column : {cmdColumn, dataColumn}) {
        QCOMPARE(showsRed(pictureOf(*window.messages(), 1, column)), !fault.isEmpty());
        if (!fault.isEmpty()) {
            const QString tip = tipOf(*window.messages(), 1, column);
            QVERIFY2(tip.contains(fault), qPrintable(tip));
        }
    }
}

QTEST_MAIN(TestReplyFigures)
#include "tst_replyfigures.moc"
