#include "loopbench.h"

#include <QThread>
#include <QtTest>

class TestLoopTiming : public QObject
{
    Q_OBJECT

private slots:
    void manyShortIntervalsAreWhole();
    void intervalModeAddsPauses();
    void pausesAddUp_data();
    void pausesAddUp();
    void intervalCountsFromTheHandOver();
    void intervalFollowsARowWithNothingToSend();
};

namespace {

/// Keeps the sender busy, as a slow device or a message that waits for an answer does.
void takeAWhile()
{
    QThread::msleep(15);
}

} // namespace

void TestLoopTiming::manyShortIntervalsAreWhole()
{
    constexpr int rows = 40;
    constexpr int intervalMs = 2;
    QStringList texts;
    for (int i = 0; i < rows; ++i) {
        texts.append(QStringLiteral("01"));
    }
    LoopBench bench;
    bench.run(texts, intervalMs);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.link.blocks.size(), rows);
    for (int block = 1; block < rows; ++block) {
        QVERIFY(bench.gapBefore(block) >= intervalMs * nsPerMs);
    }
}

void TestLoopTiming::intervalModeAddsPauses()
{
    LoopBench bench;
    bench.run({"01", "++40", "02"}, 20);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 02"));
    QVERIFY(bench.gapBefore(1) >= 60 * nsPerMs);
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
    QElapsedTimer sinceStart;
    sinceStart.start();
    bench.run({"++20", "++30", "01"}, intervalMs);
    QVERIFY(bench.link.blocks.isEmpty());
    QTRY_COMPARE(bench.link.blocks.size(), 1);
    QVERIFY(sinceStart.nsecsElapsed() >= 50 * nsPerMs);
}

void TestLoopTiming::intervalCountsFromTheHandOver()
{
    LoopBench bench;
    bench.link.whileWaiting = takeAWhile;
    qint64 handedOverAtNs = 0;
    connect(&bench.sender, &Sender::handedOver, this, [&] {
        if (bench.link.blocks.size() == 1) {
            handedOverAtNs = bench.link.clock.nsecsElapsed();
        }
    });
    bench.run({"01", "02"}, 20);
    QTRY_COMPARE(bench.link.blocks.size(), 2);
    QVERIFY(bench.link.writtenAtNs.at(1) - handedOverAtNs >= 20 * nsPerMs);
}

void TestLoopTiming::intervalFollowsARowWithNothingToSend()
{
    LoopBench bench;
    qint64 dismissedAtNs = 0;
    connect(&bench.sender, &Sender::message, this, [&] {
        takeAWhile();
        dismissedAtNs = bench.link.clock.nsecsElapsed();
    });
    bench.run({"1", "02"}, 20);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.messages.size(), 1);
    QCOMPARE(bench.messages.at(0).at(0).toString(), QString("No thing to send!"));
    QCOMPARE(bench.written(), QString("02"));
    QVERIFY(bench.link.writtenAtNs.at(0) - dismissedAtNs >= 20 * nsPerMs);
}

QTEST_GUILESS_MAIN(TestLoopTiming)
#include "tst_looptiming.moc"
