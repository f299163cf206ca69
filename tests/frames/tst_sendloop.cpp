#include "loopbench.h"

#include <QtTest>

class TestSendLoop : public QObject
{
    Q_OBJECT

private slots:
    void nothingRunsByItself();
    void fastModeSendsBlocks();
    void fastModeWithoutPauseEndsAtOnce();
    void intervalModeSendsRowByRow();
    void textsWithoutPauseAreSkipped_data();
    void textsWithoutPauseAreSkipped();
    void passesFollowOneAnother();
    void aPassIsNotEnteredTwice();
    void eachPassAddsToTheSentCount();
    void aBadHeaderIsToldOnceForEachText();
    void aBadHeaderIsToldAgainAfterAStart();

    void anEmptyPlanFindsNothing_data();
    void anEmptyPlanFindsNothing();
    void rowsWithoutFramesAreAPass();
    void aClosedLinkIsPassedOver_data();
    void aClosedLinkIsPassedOver();
};

void TestSendLoop::nothingRunsByItself()
{
    LoopBench bench;
    bench.loop.runPass();
    QVERIFY(!bench.loop.isRunning());
    QVERIFY(bench.foundNothing.isEmpty());
    bench.start({"01"}, {1, 5});
    QVERIFY(bench.loop.isRunning());
    bench.clock.advance(1000);
    QCOMPARE(bench.passDue.size(), 1);
    QVERIFY(bench.link.blocks.isEmpty());
}

void TestSendLoop::fastModeSendsBlocks()
{
    LoopBench bench;
    bench.run({"01", "02", "++30", "03"}, {0, 0});
    bench.clock.advance(40);
    QCOMPARE(bench.timetable(), QString("0102@0 03@30"));
    QCOMPARE(bench.passDue.size(), 1);
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(bench.loop.isRunning());
}

void TestSendLoop::fastModeWithoutPauseEndsAtOnce()
{
    LoopBench bench;
    bench.run({"01", "++", "02"}, {0, 0});
    QCOMPARE(bench.written(), QString("01 02"));
    bench.clock.advance(0);
    QCOMPARE(bench.passDue.size(), 1);
}

void TestSendLoop::intervalModeSendsRowByRow()
{
    LoopBench bench;
    bench.run({"01", "02", "03"}, {20, 0});
    QCOMPARE(bench.timetable(), QString("01@0"));
    bench.clock.advance(59);
    QCOMPARE(bench.timetable(), QString("02@20 03@40"));
    QVERIFY(bench.passDue.isEmpty());
    bench.clock.advance(1);
    QCOMPARE(bench.passDue.size(), 1);
    QVERIFY(bench.loop.isRunning());
}

void TestSendLoop::textsWithoutPauseAreSkipped_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("marker alone") << "++";
    QTest::newRow("no pause") << "++0";
    QTest::newRow("no number") << "++abc";
}

void TestSendLoop::textsWithoutPauseAreSkipped()
{
    QFETCH(QString, text);
    LoopBench bench;
    bench.run({text, text}, {60000, 0});
    bench.clock.advance(0);
    QCOMPARE(bench.passDue.size(), 1);
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.messages.isEmpty());
    QCOMPARE(bench.loop.sentCount(), 0);
}

void TestSendLoop::passesFollowOneAnother()
{
    LoopBench bench;
    bench.keepRunning();
    bench.start({"01", "++2", "02"}, {1, 5});
    bench.clock.advance(22);
    QCOMPARE(bench.timetable(), QString("01@5 02@8 01@14 02@17"));
}

void TestSendLoop::aPassIsNotEnteredTwice()
{
    LoopBench bench;
    bench.run({"01", "02"}, {20, 0});
    bench.clock.advance(5);
    bench.loop.runPass();
    bench.clock.advance(35);
    QCOMPARE(bench.timetable(), QString("01@0 02@20"));
    QCOMPARE(bench.passDue.size(), 1);
}

void TestSendLoop::eachPassAddsToTheSentCount()
{
    LoopBench bench;
    bench.run({"01", "++1", "1", "02"}, {1, 0});
    bench.clock.advance(10);
    QCOMPARE(bench.passDue.size(), 1);
    QCOMPARE(bench.loop.sentCount(), 3);
    bench.loop.runPass();
    bench.clock.advance(10);
    QCOMPARE(bench.loop.sentCount(), 6);
    bench.loop.stop();
    QCOMPARE(bench.loop.sentCount(), 0);
}

void TestSendLoop::aBadHeaderIsToldOnceForEachText()
{
    LoopBench bench;
    bench.start({"01", "02"}, {1, 0});
    const auto run = [&bench] {
        bench.loop.runPass();
        bench.clock.advance(10);
    };
    const auto runWith = [&](const QString &unreadable) {
        bench.settings.unreadable = unreadable;
        run();
    };
    runWith(QString("5A"));
    QCOMPARE(bench.messages.size(), 1);
    QCOMPARE(bench.messages.at(0).at(0).toString(), QString("Startbytes Length error"));
    runWith(QString("5A"));
    QCOMPARE(bench.messages.size(), 1);
    runWith(QString("A5"));
    QCOMPARE(bench.messages.size(), 2);
    bench.settings.unreadable.reset();
    run();
    runWith(QString("A5"));
    QCOMPARE(bench.messages.size(), 3);
    QCOMPARE(bench.link.blocks.size(), 10);
}

void TestSendLoop::aBadHeaderIsToldAgainAfterAStart()
{
    LoopBench bench;
    bench.settings.unreadable = QString();
    for (const int start : {1, 2}) {
        bench.messages.clear();
        bench.run({"01", "02"}, {1, 0});
        bench.clock.advance(10);
        QCOMPARE(bench.link.blocks.size(), 2 * start);
        // Once for the start, once for the loop that runs.
        QCOMPARE(bench.messages.size(), 2);
    }
}

void TestSendLoop::anEmptyPlanFindsNothing_data()
{
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("fast mode") << 0;
    QTest::newRow("interval mode") << 1;
}

void TestSendLoop::anEmptyPlanFindsNothing()
{
    QFETCH(int, intervalMs);
    LoopBench bench;
    bool runningWhenTold = true;
    connect(&bench.loop, &SendLoop::foundNothing, this,
            [&] { runningWhenTold = bench.loop.isRunning(); });
    bench.start({}, {intervalMs, 0});
    QVERIFY(bench.loop.isRunning());
    bench.loop.runPass();
    QCOMPARE(bench.foundNothing.size(), 1);
    QVERIFY(!runningWhenTold);
    QVERIFY(!bench.loop.isRunning());
    bench.clock.advance(1000);
    QVERIFY(bench.passDue.isEmpty());
}

void TestSendLoop::rowsWithoutFramesAreAPass()
{
    LoopBench bench;
    bench.run({"1"}, {0, 0});
    bench.clock.advance(0);
    QCOMPARE(bench.passDue.size(), 1);
    QVERIFY(bench.foundNothing.isEmpty());
    QVERIFY(bench.messages.isEmpty());
    QVERIFY(bench.loop.isRunning());
}

void TestSendLoop::aClosedLinkIsPassedOver_data()
{
    anEmptyPlanFindsNothing_data();
}

void TestSendLoop::aClosedLinkIsPassedOver()
{
    QFETCH(int, intervalMs);
    LoopBench bench;
    bench.link.close();
    bench.run({"01", "++1", "02"}, {intervalMs, 0});
    bench.clock.advance(10);
    QCOMPARE(bench.passDue.size(), 1);
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.messages.isEmpty());
}

QTEST_GUILESS_MAIN(TestSendLoop)
#include "tst_sendloop.moc"
