#include "frames/sendloop.h"
#include "loopwindow.h"

#include <QElapsedTimer>
#include <QtTest>

class TestLoop : public QObject
{
    Q_OBJECT

private slots:
    void whatRestsWhileTheLoopRuns();
    void intervalModeSendsRowByRow();
    void fastModeSendsBlocksAndPauses();
    void passesFollowEachOther();
    void aStopClickEndsThePass();
    void rowSendButtonsWorkMeanwhile();
    void changesOfTheTableHaveNoEffect();
    void aBadHeaderIsToldOnceUntilItChanges();
    void tooManyEntriesAreRefused();
    void aPassThatFindsNothing();
    void aRowSentMeanwhileDelaysNothing();
    void aLostPortEndsTheLoop();
    void closingTheWindowEndsTheLoop();
};

namespace {

const QStringList restingWidgets{
    "pushButton_LoadCommand", "pushButton_ClearCommand", "pushButton_SaveCommand",
    "pushButton_SaveMessage", "pushButton_OpenCom",      "pushButton_SendAll",
    "checkBox_CRC_EN",        "lineEdit_SBytes",         "lineEdit_StepValue",
    "lineEdit_CycleTime",     "lineEdit_Repeat",         "tabWidget"};

/// Of the widgets, those that are enabled.
QStringList enabledOf(const WindowDriver &window, const QStringList &names)
{
    QStringList enabled;
    for (const QString &name : names) {
        if (window.find<QWidget>(qPrintable(name))->isEnabled()) {
            enabled.append(name);
        }
    }
    return enabled;
}

} // namespace

void TestLoop::whatRestsWhileTheLoopRuns()
{
    LoopWindow window("10", "10", "1");
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    window.click("pushButton_Start_Loop");
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    QVERIFY(window.button("pushButton_Start_Loop")
                ->styleSheet()
                .startsWith("QPushButton{background: #0090ff;"));
    QCOMPARE(enabledOf(window, restingWidgets), QStringList());
    QVERIFY(window.button("pushButton_ClearMessage")->isEnabled());
    QVERIFY(window.button("pushButton_ConnectHID")->isEnabledTo(window.find<QWidget>("tab_2")));

    window.click("pushButton_Start_Loop");
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    QVERIFY(window.button("pushButton_Start_Loop")
                ->styleSheet()
                .startsWith("QPushButton{background: #FFFFFF;"));
    QCOMPARE(enabledOf(window, restingWidgets), restingWidgets);
}

void TestLoop::intervalModeSendsRowByRow()
{
    LoopWindow window("60", "10000", "80");
    QElapsedTimer elapsed;
    window.click("pushButton_Start_Loop");
    elapsed.start();
    QMetaObject::invokeMethod(&window.window(), "Timer2_Out_Event");
    QCOMPARE(window.messageCount(), 1);
    QTRY_COMPARE(window.messageCount(), 2);
    QVERIFY(elapsed.elapsed() >= 60 + 80);
    QTRY_COMPARE(window.port.received(), firstFrame + secondFrame);
}

void TestLoop::fastModeSendsBlocksAndPauses()
{
    LoopWindow window("0", "10000", "80");
    window.setRow(3, "42", "0002", "0202");
    window.checkRow(3);
    QElapsedTimer elapsed;
    window.click("pushButton_Start_Loop");
    elapsed.start();
    QMetaObject::invokeMethod(&window.window(), "Timer2_Out_Event");
    QCOMPARE(window.messageCount(), 1);
    QTRY_COMPARE(window.messageCount(), 3);
    QVERIFY(elapsed.elapsed() >= 80);
    QTRY_COMPARE(window.port.received(), firstFrame + secondFrame + secondFrame);
}

void TestLoop::passesFollowEachOther()
{
    LoopWindow window("5", "30", "1");
    window.checkRow(1, false);
    QElapsedTimer elapsed;
    elapsed.start();
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 6);
    QVERIFY(elapsed.elapsed() >= 3 * 30 + 5 * 5);
    QVERIFY(window.port.received().startsWith(firstFrame + secondFrame + firstFrame));
}

void TestLoop::aStopClickEndsThePass()
{
    LoopWindow window("20", "0", "150");
    window.click("pushButton_Start_Loop");
    QTRY_COMPARE(window.messageCount(), 1);
    window.click("pushButton_Start_Loop");
    QElapsedTimer elapsed;
    elapsed.start();
    QTRY_VERIFY(elapsed.hasExpired(400));
    QCOMPARE(window.messageCount(), 1);
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
}

void TestLoop::rowSendButtonsWorkMeanwhile()
{
    LoopWindow window("10000", "10", "1");
    window.setRow(5, "42", "0005", "0505");
    window.click("pushButton_Start_Loop");
    QTRY_COMPARE(window.messageCount(), 1);
    window.clickSend(5);
    QCOMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(1).at(4), QString("0005"));
}

void TestLoop::changesOfTheTableHaveNoEffect()
{
    LoopWindow window("10", "10", "1");
    window.click("pushButton_Start_Loop");
    window.setRow(0, "77", "7777", "7777");
    window.checkRow(2, false);
    QTRY_VERIFY(window.messageCount() >= 4);
    QVERIFY(window.port.received().startsWith(firstFrame + secondFrame));
}

void TestLoop::aBadHeaderIsToldOnceUntilItChanges()
{
    const QString told = "Startbytes Length error";
    MessageBoxes boxes;
    LoopWindow window("5", "30", "1");
    window.edit("lineEdit_SBytes")->setText("5A");
    window.click("pushButton_Start_Loop");
    QCOMPARE(boxes.takeTexts(), QStringList{told});
    QTRY_VERIFY(window.messageCount() >= 6);
    QCOMPARE(boxes.takeTexts(), QStringList{told});
    QVERIFY(window.port.received().startsWith(QByteArray::fromHex("A55A050300000001")));

    window.edit("lineEdit_SBytes")->setText("5A,A5");
    const int before = window.messageCount();
    QTRY_VERIFY(window.messageCount() >= before + 6);
    QCOMPARE(boxes.takeTexts(), QStringList{told});
    window.click("pushButton_Start_Loop");
    QCOMPARE(boxes.texts(), QStringList());
}

void TestLoop::tooManyEntriesAreRefused()
{
    MessageBoxes boxes;
    LoopWindow window("10", "10000", "1");
    CommandRow frame;
    frame.selected = true;
    frame.cmd = "42";
    CommandRow pause = delayRow();
    pause.selected = true;
    QVector<CommandRow> rows;
    for (int i = 0; i < 63; ++i) {
        rows << frame << pause;
    }
    rows << frame;
    auto *table = window.window().findChild<CommandTable *>();
    table->replaceRows(rows);
    window.click("pushButton_Start_Loop");
    QCOMPARE(boxes.texts(), QStringList());
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    window.click("pushButton_Start_Loop");

    table->replaceRows(rows << pause);
    window.click("pushButton_Start_Loop");
    QCOMPARE(boxes.texts(), QStringList{"Too many order!"});
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    QCOMPARE(enabledOf(window, restingWidgets), restingWidgets);
}

void TestLoop::aPassThatFindsNothing()
{
    MessageBoxes boxes;
    LoopWindow window("10", "10000", "1");
    window.click("pushButton_Start_Loop");
    auto *loop = window.window().findChild<SendLoop *>();
    QVERIFY(loop != nullptr);
    loop->start({}, {10, 10000});
    window.call("Timer2_Out_Event");
    QCOMPARE(boxes.texts(), QStringList{"No thing to send"});
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    QVERIFY(!loop->isRunning());
    // The tabs stay disabled, and with them what stands on them.
    QVERIFY(!window.find<QWidget>("tabWidget")->isEnabled());
    for (const char *name :
         {"pushButton_OpenCom", "lineEdit_SBytes", "pushButton_SendAll", "checkBox_CRC_EN"}) {
        QVERIFY2(window.find<QWidget>(name)->isEnabledTo(window.find<QWidget>("tabWidget")), name);
    }
    QCOMPARE(enabledOf(window, {"pushButton_LoadCommand", "pushButton_ClearCommand",
                                "pushButton_SaveCommand", "pushButton_SaveMessage",
                                "lineEdit_StepValue", "lineEdit_CycleTime"})
                 .size(),
             6);
}

void TestLoop::aRowSentMeanwhileDelaysNothing()
{
    constexpr int intervalMs = 1000;
    LoopWindow window(QString::number(intervalMs), "0", "1");
    window.setRow(5, "42", "0005", "0505");
    QTimer heartbeat;
    int beats = 0;
    connect(&heartbeat, &QTimer::timeout, this, [&] { ++beats; });
    window.click("pushButton_Start_Loop");
    QTRY_COMPARE(window.messageCount(), 1);
    QTest::qWait(intervalMs * 3 / 4);
    window.clickSend(5);
    QCOMPARE(window.messageCount(), 2);
    QElapsedTimer sinceClick;
    sinceClick.start();
    heartbeat.start(5);
    QTRY_COMPARE(window.messageCount(), 3);
    QVERIFY(sinceClick.elapsed() < intervalMs);
    QVERIFY(beats > 5);
    QTRY_COMPARE(window.port.received(),
                 firstFrame + QByteArray::fromHex("5AA5054200050505") + secondFrame);
}

void TestLoop::aLostPortEndsTheLoop()
{
    MessageBoxes boxes;
    LoopWindow window("5", "5", "1");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 2);
    window.port.unplug();
    QTRY_COMPARE(window.loopCaption(), QString("Auto Send"));
    QCOMPARE(window.button("pushButton_OpenCom")->text(), QString("Open Com Port"));
    QCOMPARE(enabledOf(window, restingWidgets), restingWidgets);
    QTRY_COMPARE(boxes.texts().size(), 1);
    QVERIFY(boxes.texts().first().contains(window.port.path()));
    window.sendCurrentRow();
    QCOMPARE(boxes.texts().last(), QString("Please open the Com Port!"));
}

void TestLoop::closingTheWindowEndsTheLoop()
{
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    LoopWindow window("5", "5", "1");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 2);
    window.window().close();
    QVERIFY(!window.window().isVisible());
    const int sent = window.port.received().size();
    QElapsedTimer elapsed;
    elapsed.start();
    QTRY_VERIFY(elapsed.hasExpired(100));
    QCOMPARE(window.port.received().size(), sent);
}

QTEST_MAIN(TestLoop)
#include "tst_loop.moc"
