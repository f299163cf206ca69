#include "loopbench.h"

#include <QEventLoop>
#include <QTimer>
#include <QtTest>

class TestLoopRestart : public QObject
{
    Q_OBJECT

private slots:
    void stopEndsAWait_data();
    void stopEndsAWait();
    void stopTakesEffectBetweenBlocks();
    void stopTakesEffectDuringAMessage();
    void stopTakesEffectInsideABlockingMessage();

    void theLoopStartsAgainAfterAStop();
    void startReplacesTheRunningPlan();
    void restartDuringAMessageKeepsItsPauses();
    void restartDuringABlockKeepsItsIntervals();
};

void TestLoopRestart::stopEndsAWait_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("interval") << QStringList{"01", "02"} << 20;
    QTest::newRow("pause in fast mode") << QStringList{"01", "++20", "02"} << 0;
    QTest::newRow("pause in interval mode") << QStringList{"01", "++20", "02"} << 1;
}

void TestLoopRestart::stopEndsAWait()
{
    QFETCH(QStringList, texts);
    QFETCH(int, intervalMs);
    LoopBench bench;
    bench.run(texts, {intervalMs, 0});
    QCOMPARE(bench.written(), QString("01"));
    bench.loop.stop();
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.loop.sentCount(), 0);
    bench.clock.advance(1000);
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passDue.isEmpty());
    QVERIFY(bench.foundNothing.isEmpty());
}

void TestLoopRestart::stopTakesEffectBetweenBlocks()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::sent, &bench.loop, &SendLoop::stop);
    bench.run({"01", "++", "02"}, {0, 0});
    bench.clock.advance(1000);
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passDue.isEmpty());
}

void TestLoopRestart::stopTakesEffectDuringAMessage()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::notice, &bench.loop, &SendLoop::stop);
    bench.run({"1", "02"}, {1, 0});
    QCOMPARE(bench.messages.size(), 1);
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.loop.sentCount(), 0);
    bench.clock.advance(1000);
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.passDue.isEmpty());
}

void TestLoopRestart::stopTakesEffectInsideABlockingMessage()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::notice, this, [&] {
        QEventLoop box;
        QTimer::singleShot(5, &box, [&] {
            bench.loop.stop();
            box.quit();
        });
        box.exec();
    });
    bench.run({"01", "2", "03"}, {1, 0});
    bench.clock.advance(1000);
    QCOMPARE(bench.messages.size(), 1);
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.written(), QString("01"));
    QCOMPARE(bench.loop.sentCount(), 0);
}

void TestLoopRestart::theLoopStartsAgainAfterAStop()
{
    LoopBench bench;
    const auto stopAtSecond = connect(&bench.sender, &Sender::sent, this, [&] {
        if (bench.link.blocks.size() == 2) {
            bench.loop.stop();
        }
    });
    bench.run({"01", "02", "03"}, {20, 0});
    bench.clock.advance(100);
    QVERIFY(!bench.loop.isRunning());
    disconnect(stopAtSecond);
    bench.run({"04", "05"}, {20, 0});
    bench.clock.advance(100);
    QCOMPARE(bench.timetable(), QString("01@0 02@20 04@100 05@120"));
    QCOMPARE(bench.passDue.size(), 1);
    QCOMPARE(bench.loop.sentCount(), 2);
}

void TestLoopRestart::startReplacesTheRunningPlan()
{
    LoopBench bench;
    bench.run({"01", "02"}, {5, 0});
    bench.start({"03"}, {0, 1000});
    QCOMPARE(bench.loop.sentCount(), 0);
    bench.clock.advance(500);
    QCOMPARE(bench.written(), QString("01"));
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01 03"));
}

void TestLoopRestart::restartDuringAMessageKeepsItsPauses()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::notice, this, [&] {
        bench.loop.stop();
        bench.run({"++60", "03"}, {5, 0});
    });
    bench.run({"1", "02"}, {5, 0});
    bench.clock.advance(100);
    QCOMPARE(bench.passDue.size(), 1);
    QCOMPARE(bench.timetable(), QString("03@60"));
    QCOMPARE(bench.loop.sentCount(), 1);
}

void TestLoopRestart::restartDuringABlockKeepsItsIntervals()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::sent, this, [&](const QByteArray &frame) {
        if (frame == QByteArray::fromHex("01")) {
            bench.loop.stop();
            bench.run({"03", "04"}, {30, 0});
        }
    });
    bench.run({"01", "++", "02"}, {0, 0});
    bench.clock.advance(100);
    QCOMPARE(bench.passDue.size(), 1);
    QCOMPARE(bench.timetable(), QString("01@0 03@0 04@30"));
}

QTEST_GUILESS_MAIN(TestLoopRestart)
#include "tst_looprestart.moc"
