#include "loopbench.h"

#include <QEventLoop>
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
    bench.run(texts, intervalMs);
    QCOMPARE(bench.written(), QString("01"));
    bench.loop.stop();
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(runsThrough(texts, intervalMs));
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passEnded.isEmpty());
    QVERIFY(bench.foundNothing.isEmpty());
}

void TestLoopRestart::stopTakesEffectBetweenBlocks()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::sent, &bench.loop, &SendLoop::stop);
    bench.run({"01", "++", "02"}, 0);
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passEnded.isEmpty());
}

void TestLoopRestart::stopTakesEffectDuringAMessage()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::message, &bench.loop, &SendLoop::stop);
    bench.run({"1", "02"}, 1);
    QCOMPARE(bench.messages.size(), 1);
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(runsThrough({"01", "02"}, 1));
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.passEnded.isEmpty());
}

void TestLoopRestart::stopTakesEffectInsideABlockingMessage()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::message, this, [&] {
        QEventLoop box;
        QTimer::singleShot(5, &box, [&] {
            bench.loop.stop();
            box.quit();
        });
        box.exec();
    });
    bench.run({"01", "2", "03"}, 1);
    QTRY_COMPARE(bench.messages.size(), 1);
    QTRY_VERIFY(!bench.loop.isRunning());
    QVERIFY(runsThrough({"01", "02", "03"}, 1));
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
    bench.run({"01", "02", "03"}, 20);
    QTRY_VERIFY(!bench.loop.isRunning());
    disconnect(stopAtSecond);
    bench.run({"04", "05"}, 20);
    QCOMPARE(bench.written(), QString("01 02 04"));
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 02 04 05"));
    QVERIFY(bench.gapBefore(3) >= 20 * nsPerMs);
    QCOMPARE(bench.loop.sentCount(), 2);
}

void TestLoopRestart::startReplacesTheRunningPlan()
{
    LoopBench bench;
    bench.run({"01", "02"}, 5);
    bench.start({"03"}, 0);
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(runsThrough({"01", "02"}, 5));
    QCOMPARE(bench.written(), QString("01"));
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01 03"));
    QCOMPARE(bench.passEnded.size(), 1);
}

void TestLoopRestart::restartDuringAMessageKeepsItsPauses()
{
    LoopBench bench;
    qint64 restartedAtNs = 0;
    connect(&bench.sender, &Sender::message, this, [&] {
        bench.loop.stop();
        restartedAtNs = bench.link.clock.nsecsElapsed();
        bench.run({"++60", "03"}, 5);
    });
    bench.run({"1", "02"}, 5);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("03"));
    QVERIFY(bench.link.writtenAtNs.at(0) - restartedAtNs >= 60 * nsPerMs);
    QCOMPARE(bench.loop.sentCount(), 1);
}

void TestLoopRestart::restartDuringABlockKeepsItsIntervals()
{
    LoopBench bench;
    connect(&bench.sender, &Sender::sent, this, [&](const QString &text) {
        if (text == QLatin1String("01 ")) {
            bench.loop.stop();
            bench.run({"03", "04"}, 30);
        }
    });
    bench.run({"01", "++", "02"}, 0);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 03 04"));
    QVERIFY(bench.gapBefore(2) >= 30 * nsPerMs);
}

QTEST_GUILESS_MAIN(TestLoopRestart)
#include "tst_looprestart.moc"
