#include "runbench.h"

#include <QtTest>

/// When rows go out. The clock is moved by hand.
class TestRunTiming : public QObject
{
    Q_OBJECT

private slots:
    void intervalsDontDrift();
    void aLateRowDoesntMoveThePlan();
    void aVeryLateRowBeginsThePlanAnew();
    void neverABurst();
    void aReplyThatTakesLongerThanTheInterval();
    void pausesComeOnTop();
    void aPauseBeginsWhenTheRowIsDone();
    void cycleDelayPassesBetweenPasses();
    void latenessCountsWhereSomethingWasAwaited();
    void retriesGoOutAtOnce();
};

namespace {

const QByteArray everyTenMs("//@ tarnwick-run 1 interval=10\nOne,select,01 0000\n");

QVector<double> everyStep(double begin, double step, int count)
{
    QVector<double> times;
    for (int i = 0; i < count; ++i) {
        times.append(begin + step * i);
    }
    return times;
}

} // namespace

void TestRunTiming::intervalsDontDrift()
{
    RunBench bench;
    bench.rules.passes = 6;
    bench.start(everyTenMs);
    bench.advance(100);
    QCOMPARE(bench.wire.times, everyStep(0, 10, 6));
}

void TestRunTiming::aLateRowDoesntMoveThePlan()
{
    RunBench bench;
    bench.rules.passes = 4;
    bench.start(everyTenMs);
    bench.clock.advance(5);
    bench.clock.holdUp(8);
    bench.clock.advance(100);
    QCOMPARE(bench.wire.times, QVector<double>({0, 13, 20, 30}));
}

void TestRunTiming::aVeryLateRowBeginsThePlanAnew()
{
    RunBench bench;
    bench.rules.passes = 4;
    bench.start(everyTenMs);
    bench.clock.advance(5);
    bench.clock.holdUp(30);
    bench.clock.advance(100);
    QCOMPARE(bench.wire.times, QVector<double>({0, 35, 45, 55}));
}

void TestRunTiming::neverABurst()
{
    RunBench bench;
    bench.rules.passes = 0;
    bench.start(everyTenMs);
    for (int i = 0; i < 50; ++i) {
        bench.clock.advance(7);
        bench.clock.holdUp(3 + i);
        bench.clock.advance(1);
    }
    // Of two waits in a row at most one can be shortened, by what the row before was late.
    for (int i = 2; i < bench.wire.times.size(); ++i) {
        QVERIFY(bench.wire.times.at(i) - bench.wire.times.at(i - 2) >= 10);
    }
}

void TestRunTiming::aReplyThatTakesLongerThanTheInterval()
{
    RunBench bench;
    bench.rules.passes = 3;
    bench.answers = {{QByteArray::fromHex("010000"), "\x81"}};
    bench.answersAfterMs = 24;
    bench.start("//@ tarnwick-run 1 interval=10\nOne,select,01 0000\n//? 81\n");
    bench.advance(200);
    const QVector<double> &times = bench.wire.times;
    QCOMPARE(times.size(), 3);
    QCOMPARE(times.at(1) - times.at(0), times.at(2) - times.at(1));
    QVERIFY(times.at(1) >= 24 && times.at(1) <= 26);
    QCOMPARE(bench.run->summary().lateness.count(), qint64(0));
}

void TestRunTiming::pausesComeOnTop()
{
    RunBench bench;
    bench.start("//@ tarnwick-run 1 interval=10\nOne,select,01 0000\nPause,select,++ 50\n"
                "Two,select,02 0000\nThree,select,03 0000\n");
    bench.clock.advance(200);
    QCOMPARE(bench.wire.times, QVector<double>({0, 60, 70}));
}

void TestRunTiming::aPauseBeginsWhenTheRowIsDone()
{
    RunBench bench;
    bench.answers = {{QByteArray::fromHex("010000"), "\x81"}};
    bench.answersAfterMs = 29;
    bench.start("//@ tarnwick-run 1\nOne,select,01 0000\n//? 81\nPause,select,++ 50\n"
                "Two,select,02 0000\n");
    bench.advance(200);
    QCOMPARE(bench.wire.times.size(), 2);
    QVERIFY(bench.wire.times.at(1) >= 79 && bench.wire.times.at(1) <= 81);
}

void TestRunTiming::cycleDelayPassesBetweenPasses()
{
    RunBench bench;
    bench.rules.passes = 3;
    bench.start("//@ tarnwick-run 1 cycle-delay=100 interval=10\nOne,select,01 0000\n"
                "Two,select,02 0000\n");
    bench.clock.advance(1000);
    QCOMPARE(bench.wire.times, QVector<double>({0, 10, 120, 130, 240, 250}));
}

void TestRunTiming::latenessCountsWhereSomethingWasAwaited()
{
    RunBench bench;
    bench.rules.passes = 3;
    bench.start(everyTenMs);
    bench.clock.advance(5);
    bench.clock.holdUp(8);
    bench.clock.advance(100);
    const Durations &late = bench.run->summary().lateness;
    QCOMPARE(late.count(), qint64(2));
    QCOMPARE(late.most(), 3 * nsPerMs);
    QCOMPARE(late.least(), qint64(0));
}

void TestRunTiming::retriesGoOutAtOnce()
{
    RunBench bench;
    bench.rules.retries = 1;
    bench.start("//@ tarnwick-run 1 interval=1000\nOne,select,01 0000\n//? 81  within 30\n");
    bench.clock.advance(100);
    QCOMPARE(bench.wire.times, QVector<double>({0, 30}));
}

QTEST_APPLESS_MAIN(TestRunTiming)

#include "tst_runtiming.moc"
