#include "frames/timeunits.h"
#include "loopbench.h"

#include <QtTest>

/// How late a loop's frames go out, as it tells itself.
class TestLoopLateness : public QObject
{
    Q_OBJECT

private slots:
    void eachIntervalIsTold();
    void latenessCountsFromThePlan();
    void theBeginningOfAPassIsTold();
    void aPassOutOfTurnIsNotLate();
    void whatWasNotWaitedForIsNotTold();
    void pausesCount();
};

namespace {

QVector<qint64> msOf(const QSignalSpy &late)
{
    QVector<qint64> all;
    for (const QList<QVariant> &told : late) {
        all.append(told.first().toLongLong() / nsPerMs);
    }
    return all;
}

} // namespace

void TestLoopLateness::eachIntervalIsTold()
{
    LoopBench bench;
    bench.keepRunning();
    const QSignalSpy late(&bench.loop, &SendLoop::sentLate);
    bench.start({"01", "02"}, {20, 5, 2});
    bench.clock.advance(200);
    QCOMPARE(bench.timetable(), QString("01@5 02@25 01@50 02@70"));
    QCOMPARE(msOf(late), QVector<qint64>({0, 0, 0, 0}));
}

void TestLoopLateness::latenessCountsFromThePlan()
{
    LoopBench bench;
    const QSignalSpy late(&bench.loop, &SendLoop::sentLate);
    bench.run({"01", "02", "03"}, {20, 0});
    // A device that takes nothing makes the second frame late.
    bench.link.unsent = 1;
    bench.clock.advance(27);
    bench.link.unsent = 0;
    bench.clock.advance(100);
    QCOMPARE(msOf(late), QVector<qint64>({10, 0}));
}

void TestLoopLateness::theBeginningOfAPassIsTold()
{
    LoopBench bench;
    const QSignalSpy late(&bench.loop, &SendLoop::sentLate);
    bench.start({"01"}, {20, 30});
    bench.clock.advance(37);
    bench.loop.runPass();
    QCOMPARE(msOf(late), QVector<qint64>({7}));
}

void TestLoopLateness::aPassOutOfTurnIsNotLate()
{
    LoopBench bench;
    const QSignalSpy late(&bench.loop, &SendLoop::sentLate);
    bench.start({"01"}, {20, 30});
    bench.clock.advance(10);
    bench.loop.runPass();
    QCOMPARE(bench.timetable(), QString("01@10"));
    QVERIFY(late.isEmpty());
}

void TestLoopLateness::whatWasNotWaitedForIsNotTold()
{
    LoopBench bench;
    bench.keepRunning();
    const QSignalSpy late(&bench.loop, &SendLoop::sentLate);
    bench.start({"01", "02"}, {0, 0, 50});
    bench.clock.advance(100);
    QVERIFY(late.isEmpty());
}

void TestLoopLateness::pausesCount()
{
    LoopBench bench;
    const QSignalSpy late(&bench.loop, &SendLoop::sentLate);
    bench.run({"01", "++30", "02"}, {0, 0, 1});
    bench.clock.advance(100);
    QCOMPARE(bench.timetable(), QString("01@0 02@30"));
    QCOMPARE(msOf(late), QVector<qint64>({0}));
}

QTEST_GUILESS_MAIN(TestLoopLateness)
#include "tst_looplateness.moc"
