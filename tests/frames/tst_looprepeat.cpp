#include "loopbench.h"

#include <QtTest>

/// A loop that makes so many passes and no more.
class TestLoopRepeat : public QObject
{
    Q_OBJECT

private slots:
    void itEndsWithItsLastPass_data();
    void itEndsWithItsLastPass();
    void itEndsWithItsLastPause();
    void itIsEndlessWithoutANumber();
    void passesAreToldAsTheyBegin();
    void aPassThatEndsAtOnceIsNotToldBehindTheEnd();
    void aPassOutOfTurnCounts();
    void aStopForgetsThePasses();
    void aNewLoopMayBeginWhenItEnds();
};

void TestLoopRepeat::itEndsWithItsLastPass_data()
{
    QTest::addColumn<int>("intervalMs");
    QTest::addColumn<int>("passes");
    QTest::addColumn<QString>("timetable");
    QTest::addColumn<int>("endMs");

    QTest::newRow("one pass") << 20 << 1 << "01@5 02@25" << 45;
    QTest::newRow("three passes") << 20 << 3 << "01@5 02@25 01@50 02@70 01@95 02@115" << 135;
    QTest::newRow("in blocks") << 0 << 2 << "0102@5 0102@10" << 10;
}

void TestLoopRepeat::itEndsWithItsLastPass()
{
    QFETCH(int, intervalMs);
    QFETCH(int, passes);
    QFETCH(int, endMs);
    LoopBench bench;
    bench.keepRunning();
    const QSignalSpy finished(&bench.loop, &SendLoop::finished);
    bool ranWhenTold = true;
    connect(&bench.loop, &SendLoop::finished, this, [&] { ranWhenTold = bench.loop.isRunning(); });
    bench.start({"01", "02"}, {intervalMs, 5, passes});
    bench.clock.advance(endMs - 1);
    QVERIFY(bench.loop.isRunning());
    QVERIFY(finished.isEmpty());
    bench.clock.advance(1);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!ranWhenTold);
    bench.clock.advance(1000);
    QTEST(bench.timetable(), "timetable");
    QCOMPARE(finished.size(), 1);
}

void TestLoopRepeat::itEndsWithItsLastPause()
{
    LoopBench bench;
    const QSignalSpy finished(&bench.loop, &SendLoop::finished);
    bench.run({"01", "++30"}, {0, 0, 1});
    bench.clock.advance(29);
    QVERIFY(bench.loop.isRunning());
    bench.clock.advance(1);
    QCOMPARE(finished.size(), 1);
}

void TestLoopRepeat::itIsEndlessWithoutANumber()
{
    LoopBench bench;
    bench.keepRunning();
    const QSignalSpy finished(&bench.loop, &SendLoop::finished);
    bench.start({"01"}, {1, 0, PassCount::endless});
    bench.clock.advance(5000);
    QCOMPARE(bench.link.blocks.size(), 5001);
    QVERIFY(finished.isEmpty());
    QVERIFY(bench.loop.isRunning());
}

void TestLoopRepeat::passesAreToldAsTheyBegin()
{
    LoopBench bench;
    bench.keepRunning();
    QStringList told;
    connect(&bench.loop, &SendLoop::passBegan, this, [&](qint64 pass) {
        told.append(QString("%1 of %2").arg(pass).arg(bench.link.blocks.size()));
    });
    bench.start({"01", "02"}, {10, 100, 2});
    QCOMPARE(told, QStringList());
    bench.clock.advance(1000);
    // Each was told behind the first of its two frames.
    QCOMPARE(told, (QStringList{"1 of 1", "2 of 3"}));
}

void TestLoopRepeat::aPassThatEndsAtOnceIsNotToldBehindTheEnd()
{
    LoopBench bench;
    const QSignalSpy passes(&bench.loop, &SendLoop::passBegan);
    const QSignalSpy finished(&bench.loop, &SendLoop::finished);
    bench.run({"01"}, {0, 0, 1});
    QCOMPARE(finished.size(), 1);
    QVERIFY(passes.isEmpty());
    QVERIFY(!bench.loop.isRunning());
}

void TestLoopRepeat::aPassOutOfTurnCounts()
{
    LoopBench bench;
    bench.keepRunning();
    bench.start({"01"}, {1, 1000, 2});
    bench.loop.runPass();
    bench.clock.advance(5000);
    QCOMPARE(bench.timetable(), QString("01@0 01@1001"));
    QVERIFY(!bench.loop.isRunning());
}

void TestLoopRepeat::aStopForgetsThePasses()
{
    LoopBench bench;
    bench.keepRunning();
    bench.start({"01"}, {1, 10, 3});
    bench.clock.advance(25);
    bench.loop.stop();
    QCOMPARE(bench.timetable(), QString("01@10 01@21"));
    bench.start({"02"}, {1, 10, 3});
    bench.clock.advance(1000);
    QCOMPARE(bench.link.blocks.size(), 5);
}

void TestLoopRepeat::aNewLoopMayBeginWhenItEnds()
{
    LoopBench bench;
    bench.keepRunning();
    const auto again = connect(&bench.loop, &SendLoop::finished, this, [&] {
        bench.start({"02"}, {1, 10, 1});
    });
    bench.start({"01"}, {1, 10, 1});
    bench.clock.advance(15);
    disconnect(again);
    bench.clock.advance(1000);
    QCOMPARE(bench.timetable(), QString("01@10 02@21"));
    QVERIFY(!bench.loop.isRunning());
}

QTEST_GUILESS_MAIN(TestLoopRepeat)
#include "tst_looprepeat.moc"
