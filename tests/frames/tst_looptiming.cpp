#include "loopbench.h"

#include <QtTest>

class TestLoopTiming : public QObject
{
    Q_OBJECT

private slots:
    void intervalModeAddsPauses();
    void pausesAddUp_data();
    void pausesAddUp();
    void theFirstPassComesACycleDelayAfterTheStart();
    void theNextPassComesACycleDelayAfterTheLastWait();
    void aPassRunByHandStartsThePlanAnew();

    void aLittleLatenessDoesNotAddUp();
    void latenessOfAPassDoesNotAddUp();
    void aLateFrameStartsThePlanAnew();
    void framesNeverBunch();
    void aWriteThatTakesTimeIsFollowedByTheWholeInterval();
    void intervalFollowsARowWithNothingToSend();
    void timeTakenByTheLogCountsForTheInterval();
    void otherFramesLeaveTheDeadlinesAlone();
    void isDueWithin();
};

void TestLoopTiming::intervalModeAddsPauses()
{
    LoopBench bench;
    bench.run({"01", "++40", "02"}, {20, 0});
    bench.clock.advance(100);
    QCOMPARE(bench.timetable(), QString("01@0 02@60"));
}

void TestLoopTiming::pausesAddUp_data()
{
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("fast mode") << 0;
    QTest::newRow("interval mode") << 1;
}

void TestLoopTiming::pausesAddUp()
{
    QFETCH(int, intervalMs);
    LoopBench bench;
    bench.run({"++20", "++30", "01"}, {intervalMs, 0});
    bench.clock.advance(100);
    QCOMPARE(bench.timetable(), QString("01@50"));
}

void TestLoopTiming::theFirstPassComesACycleDelayAfterTheStart()
{
    LoopBench bench;
    bench.keepRunning();
    bench.start({"01"}, {20, 70});
    bench.clock.advance(71);
    QCOMPARE(bench.timetable(), QString("01@70"));
}

void TestLoopTiming::theNextPassComesACycleDelayAfterTheLastWait()
{
    LoopBench bench;
    bench.keepRunning();
    bench.start({"01", "02", "++5"}, {20, 100});
    bench.clock.advance(400);
    QCOMPARE(bench.timetable(), QString("01@100 02@120 01@245 02@265 01@390"));
}

void TestLoopTiming::aPassRunByHandStartsThePlanAnew()
{
    LoopBench bench;
    bench.start({"01", "02"}, {20, 100});
    bench.clock.advance(33);
    bench.loop.runPass();
    bench.clock.advance(100);
    QCOMPARE(bench.timetable(), QString("01@33 02@53"));
}

void TestLoopTiming::aLittleLatenessDoesNotAddUp()
{
    LoopBench bench;
    bench.run({"01", "02", "03", "04"}, {10, 0});
    bench.clock.holdUpNs(900000);
    for (int step = 1; step <= 3; ++step) {
        bench.clock.holdUp(10);
        bench.clock.advance(0);
    }
    QCOMPARE(bench.timetable(), QString("01@0 02@10.9 03@20.9 04@30.9"));
    // What is late is made up for.
    bench.keepRunning();
    bench.clock.advanceNs(9100000);
    QCOMPARE(bench.timetable(), QString("01@40"));
}

void TestLoopTiming::latenessOfAPassDoesNotAddUp()
{
    LoopBench bench;
    bench.keepRunning();
    bench.start({"01"}, {10, 40});
    bench.clock.advance(30);
    bench.clock.holdUpNs(10500000);
    bench.clock.advance(60);
    QCOMPARE(bench.timetable(), QString("01@40.5 01@90"));
}

void TestLoopTiming::aLateFrameStartsThePlanAnew()
{
    LoopBench bench;
    bench.run({"01", "02", "03"}, {10, 0});
    bench.clock.holdUp(13);
    bench.clock.advance(20);
    QCOMPARE(bench.timetable(), QString("01@0 02@13 03@23"));
}

void TestLoopTiming::framesNeverBunch()
{
    LoopBench bench;
    bench.keepRunning();
    bench.run({"01", "02", "03"}, {10, 0});
    bench.clock.holdUp(200);
    bench.clock.advance(35);
    QCOMPARE(bench.timetable(), QString("01@0 02@200 03@210 01@220 02@230"));
}

void TestLoopTiming::aWriteThatTakesTimeIsFollowedByTheWholeInterval()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::notice, this, [&] { bench.clock.holdUp(500); });
    bench.settings.unreadable = QString();
    bench.run({"01", "02"}, {20, 0});
    bench.clock.advance(25);
    // Told once for the start and once before the first frame.
    QCOMPARE(bench.timetable(), QString("01@1000 02@1020"));
}

void TestLoopTiming::intervalFollowsARowWithNothingToSend()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::notice, this, [&] { bench.clock.holdUp(15); });
    bench.run({"1", "02"}, {20, 0});
    bench.clock.advance(50);
    QCOMPARE(bench.messages.size(), 1);
    QCOMPARE(bench.messages.at(0).at(0).toString(), QString("No thing to send!"));
    QCOMPARE(bench.timetable(), QString("02@35"));
}

void TestLoopTiming::timeTakenByTheLogCountsForTheInterval()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::sent, this, [&] { bench.clock.holdUp(7); });
    bench.run({"01", "02"}, {20, 0});
    bench.clock.advance(50);
    QCOMPARE(bench.timetable(), QString("01@0 02@20"));
}

void TestLoopTiming::otherFramesLeaveTheDeadlinesAlone()
{
    LoopBench bench;
    bench.run({"01", "02"}, {3000, 0});
    bench.clock.advance(2700);
    bench.sender.sendOne("AA");
    bench.sender.sendAll({{1, "BB"}});
    bench.clock.advance(400);
    QCOMPARE(bench.timetable(), QString("01@0 aa@2700 bb@2700 02@3000"));
}

void TestLoopTiming::isDueWithin()
{
    LoopBench bench;
    QVERIFY(!bench.loop.isDueWithin(1000000));
    bench.start({"01", "02"}, {20, 100});
    QVERIFY(!bench.loop.isDueWithin(99));
    QVERIFY(bench.loop.isDueWithin(100));
    bench.loop.runPass();
    QVERIFY(!bench.loop.isDueWithin(19));
    QVERIFY(bench.loop.isDueWithin(20));
    bench.clock.holdUp(30);
    QVERIFY(bench.loop.isDueWithin(0));
    bench.loop.stop();
    QVERIFY(!bench.loop.isDueWithin(1000000));
}

QTEST_GUILESS_MAIN(TestLoopTiming)
#include "tst_looptiming.moc"
