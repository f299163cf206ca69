#include "loopwindow.h"
#include "statustext.h"

#include <QLabel>
#include <QtTest>

namespace Column = CommandColumn;

/// Taking back what was done to the list, while a loop sends from it.
class TestLoopUndo : public QObject
{
    Q_OBJECT

private slots:
    void editsAreTakenBackAndTheLoopGoesOn();
    void anotherListWaitsForTheEnd();
};

namespace {

void pressUndo(WindowDriver &window)
{
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    window.commands()->setFocus();
    QTest::keyClick(window.commands(), Qt::Key_Z, Qt::ControlModifier);
}

} // namespace

void TestLoopUndo::editsAreTakenBackAndTheLoopGoesOn()
{
    LoopWindow window("5", "5", "1");
    QCoreApplication::processEvents();
    window.commands()->item(0, Column::Data)->setText("0A");
    QCoreApplication::processEvents();
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.port.received().contains(QByteArray::fromHex("5AA5040300000A")));
    window.commands()->removeRow(2);
    QCoreApplication::processEvents();
    pressUndo(window);
    QCOMPARE(window.commands()->item(2, Column::Cmd)->text(), QString("42"));
    pressUndo(window);
    QCOMPARE(window.commands()->item(0, Column::Data)->text(), QString("0001"));
    const int count = window.port.received().count(secondFrame);
    QTRY_VERIFY(window.port.received().count(secondFrame) > count + 1);
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    window.click("pushButton_Start_Loop");
}

void TestLoopUndo::anotherListWaitsForTheEnd()
{
    LoopWindow window("5", "5", "1");
    window.click("pushButton_ClearCommand");
    for (const int row : {3, 4}) {
        window.setRow(row, "03", "0000", "0001");
        window.checkRow(row);
    }
    window.commands()->item(3, Column::Description)->setText("new");
    QCoreApplication::processEvents();
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.port.received().contains(firstFrame));
    for (int step = 0; step < 10; ++step) {
        pressUndo(window);
    }
    QVERIFY2(statusText(window).contains("exchanged"), qPrintable(statusText(window)));
    QCOMPARE(window.commands()->item(0, Column::Cmd)->text(), QString());
    window.click("pushButton_Start_Loop");
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    pressUndo(window);
    QCOMPARE(window.commands()->item(2, Column::Cmd)->text(), QString("42"));
    QVERIFY2(statusText(window).contains("another list"), qPrintable(statusText(window)));
}

QTEST_MAIN(TestLoopUndo)
#include "tst_loopundo.moc"
