#include "loopbench.h"

#include <QtTest>

/// The loop on a link that is behind.
class TestLoopBehind : public QObject
{
    Q_OBJECT

private slots:
    void aPassWaitsForTheLink_data();
    void aPassWaitsForTheLink();
    void eachFrameWaitsForTheLink();
    void eachBlockWaitsForTheLink();
    void framesDoNotBunchBehindTheWait();
    void pausesRunMeanwhile();
    void stopEndsTheWait();
};

void TestLoopBehind::aPassWaitsForTheLink_data()
{
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("fast mode") << 0;
    QTest::newRow("interval mode") << 20;
}

void TestLoopBehind::aPassWaitsForTheLink()
{
    QFETCH(int, intervalMs);
    LoopBench bench;
    bench.link.unsent = 1;
    bench.run({"01"}, {intervalMs, 0});
    bench.clock.advance(1000);
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.passDue.isEmpty());
    bench.link.unsent = 0;
    bench.clock.advance(30);
    QCOMPARE(bench.written(), QString("01"));
    QCOMPARE(bench.passDue.size(), 1);
}

void TestLoopBehind::eachFrameWaitsForTheLink()
{
    LoopBench bench;
    bench.run({"01", "02", "03"}, {20, 0});
    bench.link.unsent = 9;
    bench.clock.advance(500);
    QCOMPARE(bench.written(), QString("01"));
    bench.link.unsent = 0;
    bench.clock.advance(100);
    QCOMPARE(bench.written(), QString("01 02 03"));
    QVERIFY(bench.messages.isEmpty());
}

void TestLoopBehind::eachBlockWaitsForTheLink()
{
    LoopBench bench;
    bench.link.onWrite = [&] { bench.link.unsent = bench.link.blocks.last().size(); };
    bench.run({"01", "++", "02"}, {0, 0});
    bench.clock.advance(500);
    QCOMPARE(bench.written(), QString("01"));
    bench.link.unsent = 0;
    bench.clock.advance(500);
    QCOMPARE(bench.written(), QString("01 02"));
}

void TestLoopBehind::framesDoNotBunchBehindTheWait()
{
    LoopBench bench;
    bench.run({"01", "02", "03"}, {20, 0});
    bench.link.unsent = 9;
    bench.clock.advance(500);
    bench.link.unsent = 0;
    bench.clock.advance(60);
    const QStringList entries = bench.timetable().split(' ');
    QCOMPARE(entries.size(), 3);
    const auto timeOf = [&](int entry) { return entries.at(entry).section('@', 1).toDouble(); };
    QVERIFY(timeOf(1) >= 500);
    QCOMPARE(timeOf(2) - timeOf(1), 20.0);
}

void TestLoopBehind::pausesRunMeanwhile()
{
    LoopBench bench;
    bench.run({"01", "++100", "02"}, {20, 0});
    bench.link.unsent = 9;
    bench.clock.advance(110);
    bench.link.unsent = 0;
    bench.clock.advance(20);
    QCOMPARE(bench.timetable(), QString("01@0 02@120"));
}

void TestLoopBehind::stopEndsTheWait()
{
    LoopBench bench;
    bench.run({"01", "02"}, {20, 0});
    bench.link.unsent = 9;
    bench.clock.advance(100);
    bench.loop.stop();
    bench.link.unsent = 0;
    bench.clock.advance(100);
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passDue.isEmpty());
}

QTEST_GUILESS_MAIN(TestLoopBehind)
#include "tst_loopbehind.moc"
