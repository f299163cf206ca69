#include "fakeframesettings.h"
#include "fakelink.h"
#include "frames/sender.h"
#include "log/receiver.h"
#include "session/loopcontrol.h"
#include "session/replymeter.h"

#include <QSignalSpy>
#include <QtTest>

class TestReplyMeter : public QObject
{
    Q_OBJECT

private slots:
    void aRowIsMeasured();
    void whatWasHandedUpTogetherAnswersWhatWasSentMeanwhile();
    void whatWasReadBeforeIsNoAnswer();
    void aLoopIsCountedFromItsBeginning();
    void whatGetsNoAnswerIsLostInTime();
    void singleRowsAreNoLoop();
};

namespace {

const QByteArray meteredFrame = QByteArray::fromHex("5AA50101");

/// A sender on a fake link, and what comes in.
struct MeterBench
{
    MeterBench() { sender.setLink(&link); }

    void send(int id) { sender.sendOne(CheckedRow{1, "03", {}, id}); }

    FakeFrameSettings settings;
    FakeLink link;
    Sender sender{settings};
    Receiver receiver{[] { return StartBytes{0x5A, 0xA5}; }};
    LoopControl loop{sender};
    ReplyMeter meter{sender, receiver, loop};
};

} // namespace

void TestReplyMeter::aRowIsMeasured()
{
    MeterBench bench;
    bench.send(4);
    bench.receiver.take(meteredFrame);
    QVERIFY(bench.meter.of(4) != nullptr);
    QCOMPARE(bench.meter.of(4)->times.count(), qint64(1));
    QVERIFY(bench.meter.of(4)->lastNs > 0);
    QCOMPARE(bench.meter.loopFigures().received, qint64(0));
}

void TestReplyMeter::whatWasHandedUpTogetherAnswersWhatWasSentMeanwhile()
{
    MeterBench bench;
    bench.send(1);
    const ArrivalTime readAt = ArrivalTime::now();
    bench.send(2);
    bench.receiver.take(meteredFrame + meteredFrame, readAt);
    QCOMPARE(bench.meter.of(1)->times.count(), qint64(1));
    QCOMPARE(bench.meter.of(2)->times.count(), qint64(1));
}

void TestReplyMeter::whatWasReadBeforeIsNoAnswer()
{
    MeterBench bench;
    const ArrivalTime readAt = ArrivalTime::now();
    bench.send(1);
    bench.receiver.take(meteredFrame, readAt);
    QCOMPARE(bench.meter.of(1)->times.count(), qint64(0));
}

void TestReplyMeter::aLoopIsCountedFromItsBeginning()
{
    MeterBench bench;
    bench.send(1);
    const QSignalSpy stopped(&bench.loop, &LoopControl::stopped);
    const QSignalSpy changed(&bench.meter, &ReplyMeter::loopChanged);
    bench.loop.start({{1, "03", {}, 1}, {2, "04", {}, 2}}, {1, 1, 3});
    QTRY_COMPARE(stopped.count(), 1);
    bench.receiver.take(meteredFrame);
    const LoopFigures figures = bench.meter.loopFigures();
    QCOMPARE(figures.passes, qint64(3));
    QCOMPARE(figures.replies.sent, qint64(6));
    QCOMPARE(figures.received, qint64(1));
    QCOMPARE(figures.replies.times.count(), qint64(1));
    QCOMPARE(figures.lateness.count(), qint64(6));
    QVERIFY(!changed.isEmpty());
    QCOMPARE(bench.meter.of(1)->sent, qint64(4));
}

void TestReplyMeter::whatGetsNoAnswerIsLostInTime()
{
    MeterBench bench;
    bench.send(1);
    QCOMPARE(bench.meter.of(1)->lost, qint64(0));
    QTRY_COMPARE(bench.meter.of(1)->lost, qint64(1));
}

/// Also when it is told, a second later, that one of them got no answer.
void TestReplyMeter::singleRowsAreNoLoop()
{
    MeterBench bench;
    const QSignalSpy changed(&bench.meter, &ReplyMeter::loopChanged);
    bench.send(1);
    bench.receiver.take(meteredFrame);
    bench.send(2);
    QTRY_COMPARE(bench.meter.of(2)->lost, qint64(1));
    QCOMPARE(changed.count(), 0);
}

QTEST_GUILESS_MAIN(TestReplyMeter)
#include "tst_replymeter.moc"
