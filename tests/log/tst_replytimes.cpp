#include "frames/timeunits.h"
#include "log/replytimes.h"

#include <QtTest>

class TestReplyTimes : public QObject
{
    Q_OBJECT

private slots:
    void aRowIsAnsweredByWhatFollows();
    void whatWasReadBeforeIsNoAnswer();
    void anAnswerCountsOnce();
    void theLastRowIsAnsweredFirst();
    void rowsSentTogetherAreAnsweredInOrder();
    void aRowWithoutAnswersLeavesOthersAlone();
    void whatIsNotAnsweredWithinASecondIsLost();
    void anUnknownRowTakesItsAnswer();
    void theMeanIsRightWhoeverIsAnswered();
    void theTotalCountsWhatIsSentInIt();
    void aTotalBeginsFromNothing();
    void rowsThatAreTooManyGo();
    void daysOfLoopingTakeNoMemory();
};

namespace {

qint64 lastMs(const ReplyTimes &times, int rowId)
{
    return times.of(rowId)->lastNs / nsPerMs;
}

} // namespace

void TestReplyTimes::aRowIsAnsweredByWhatFollows()
{
    ReplyTimes times;
    QVERIFY(times.of(7) == nullptr);
    times.noteSent(7, 10 * nsPerMs);
    QVERIFY(times.isWaiting());
    QCOMPARE(times.of(7)->sent, qint64(1));
    QCOMPARE(times.of(7)->times.count(), qint64(0));
    times.noteReceived(13 * nsPerMs);
    QVERIFY(!times.isWaiting());
    times.noteSent(7, 20 * nsPerMs);
    times.noteReceived(25 * nsPerMs);
    const Replies &replies = *times.of(7);
    QCOMPARE(replies.sent, qint64(2));
    QCOMPARE(replies.lastNs, 5 * nsPerMs);
    QCOMPARE(replies.times.count(), qint64(2));
    QCOMPARE(replies.times.least(), 3 * nsPerMs);
    QCOMPARE(replies.times.most(), 5 * nsPerMs);
    QCOMPARE(replies.lost, qint64(0));
}

void TestReplyTimes::whatWasReadBeforeIsNoAnswer()
{
    ReplyTimes times;
    times.noteReceived(5 * nsPerMs);
    times.noteSent(1, 10 * nsPerMs);
    QVERIFY(!times.noteReceived(9 * nsPerMs));
    QVERIFY(times.isWaiting());
    times.noteSent(2, 12 * nsPerMs);
    QVERIFY(times.noteReceived(11 * nsPerMs));
    QCOMPARE(lastMs(times, 1), qint64(1));
    times.noteReceived(12 * nsPerMs);
    QCOMPARE(times.of(2)->times.count(), qint64(1));
    QCOMPARE(lastMs(times, 2), qint64(0));
}

void TestReplyTimes::anAnswerCountsOnce()
{
    ReplyTimes times;
    times.noteSent(1, 0);
    times.noteReceived(nsPerMs);
    times.noteReceived(2 * nsPerMs);
    QCOMPARE(times.of(1)->times.count(), qint64(1));
    QCOMPARE(lastMs(times, 1), qint64(1));
}

void TestReplyTimes::theLastRowIsAnsweredFirst()
{
    ReplyTimes times;
    times.noteSent(1, 0);
    times.noteSent(2, 10 * nsPerMs);
    times.noteReceived(12 * nsPerMs);
    times.noteReceived(13 * nsPerMs);
    QCOMPARE(lastMs(times, 2), qint64(2));
    QCOMPARE(lastMs(times, 1), qint64(13));
}

void TestReplyTimes::rowsSentTogetherAreAnsweredInOrder()
{
    ReplyTimes times;
    times.noteSent(9, 0);
    for (const int id : {1, 2, 3}) {
        times.noteSent(id, 10 * nsPerMs);
    }
    for (const int ms : {11, 12, 13, 14}) {
        times.noteReceived(ms * nsPerMs);
    }
    QCOMPARE(lastMs(times, 1), qint64(1));
    QCOMPARE(lastMs(times, 2), qint64(2));
    QCOMPARE(lastMs(times, 3), qint64(3));
    QCOMPARE(lastMs(times, 9), qint64(14));
}

void TestReplyTimes::aRowWithoutAnswersLeavesOthersAlone()
{
    constexpr qint64 passes = 100;
    ReplyTimes times;
    for (qint64 pass = 0; pass < passes; ++pass) {
        const qint64 begin = pass * 200 * nsPerMs;
        times.noteSent(1, begin);
        times.noteSent(2, begin + 100 * nsPerMs);
        times.noteReceived(begin + 104 * nsPerMs);
    }
    times.passTime(passes * 200 * nsPerMs + 2 * nsPerSecond);
    QCOMPARE(times.of(1)->lost, passes);
    QCOMPARE(times.of(1)->times.count(), qint64(0));
    QCOMPARE(times.of(2)->lost, qint64(0));
    QCOMPARE(times.of(2)->times.most(), 4 * nsPerMs);
}

void TestReplyTimes::whatIsNotAnsweredWithinASecondIsLost()
{
    ReplyTimes times;
    times.noteSent(1, 0);
    times.passTime(nsPerSecond);
    QCOMPARE(times.of(1)->lost, qint64(0));
    times.noteReceived(nsPerSecond);
    QCOMPARE(times.of(1)->times.count(), qint64(1));
    times.noteSent(1, 2 * nsPerSecond);
    times.passTime(3 * nsPerSecond + 1);
    QCOMPARE(times.of(1)->lost, qint64(1));
    QVERIFY(!times.isWaiting());
    times.noteReceived(3 * nsPerSecond + 2);
    QCOMPARE(times.of(1)->times.count(), qint64(1));
    // Whatever happens next tells that time has passed.
    times.noteSent(1, 5 * nsPerSecond);
    times.noteReceived(7 * nsPerSecond);
    times.noteSent(1, 8 * nsPerSecond);
    times.noteSent(1, 10 * nsPerSecond);
    QCOMPARE(times.of(1)->lost, qint64(3));
}

void TestReplyTimes::anUnknownRowTakesItsAnswer()
{
    ReplyTimes times;
    times.noteSent(1, 0);
    times.noteSent(0, 10 * nsPerMs);
    times.noteReceived(11 * nsPerMs);
    QCOMPARE(times.of(1)->times.count(), qint64(0));
    QVERIFY(times.of(0) == nullptr);
}

/// Frames that go out each ms, whose answers come 5 ms later, sixteen at a time.
void TestReplyTimes::theMeanIsRightWhoeverIsAnswered()
{
    constexpr int frames = 1600;
    constexpr int together = 16;
    ReplyTimes times;
    times.beginTotal();
    qint64 sum = 0;
    for (int frame = 0; frame < frames; ++frame) {
        times.noteSent(1, frame * nsPerMs);
        if (frame % together == together - 1) {
            for (int answer = 0; answer < together; ++answer) {
                times.noteReceived((frame + 5) * nsPerMs);
                sum += times.total().lastNs;
            }
        }
    }
    QCOMPARE(times.total().times.count(), qint64(frames));
    QCOMPARE(times.total().lost, qint64(0));
    QCOMPARE(sum / frames, 12 * nsPerMs + nsPerMs / 2);
}

void TestReplyTimes::theTotalCountsWhatIsSentInIt()
{
    ReplyTimes times;
    times.noteSent(1, 0);
    times.beginTotal();
    times.noteSent(1, 10 * nsPerMs);
    times.noteSent(2, 20 * nsPerMs);
    times.noteSent(0, 30 * nsPerMs);
    times.endTotal();
    times.noteSent(3, 40 * nsPerMs);
    for (int frame = 0; frame < 4; ++frame) {
        times.noteReceived(50 * nsPerMs);
    }
    times.passTime(3 * nsPerSecond);
    QCOMPARE(times.total().sent, qint64(3));
    QCOMPARE(times.total().times.count(), qint64(3));
    QCOMPARE(times.total().lastNs, 40 * nsPerMs);
    QCOMPARE(times.total().lost, qint64(0));
    QCOMPARE(times.of(1)->lost, qint64(1));
}

void TestReplyTimes::aTotalBeginsFromNothing()
{
    ReplyTimes times;
    times.beginTotal();
    times.noteSent(1, 0);
    times.beginTotal();
    QCOMPARE(times.total().sent, qint64(0));
    times.noteReceived(nsPerMs);
    QCOMPARE(times.total().times.count(), qint64(0));
    times.noteSent(1, 2 * nsPerMs);
    times.passTime(5 * nsPerSecond);
    QCOMPARE(times.total().lost, qint64(1));
}

void TestReplyTimes::rowsThatAreTooManyGo()
{
    ReplyTimes times;
    const int most = ReplyTimes::mostRows;
    for (int id = 1; id <= most; ++id) {
        times.noteSent(id, id * nsPerMs);
    }
    times.noteSent(1, (most + 1) * nsPerMs);
    QVERIFY(times.of(2) != nullptr);
    times.noteSent(most + 1, (most + 2) * nsPerMs);
    QVERIFY(times.of(1) != nullptr);
    QVERIFY(times.of(2) == nullptr);
    QVERIFY(times.of(3) != nullptr);
    QVERIFY(times.of(most + 1) != nullptr);
}

void TestReplyTimes::daysOfLoopingTakeNoMemory()
{
    constexpr int frames = 2000000;
    ReplyTimes times;
    for (int frame = 0; frame < frames; ++frame) {
        times.noteSent(1 + frame % 5, frame * nsPerMs);
    }
    qint64 accounted = 0;
    for (int id = 1; id <= 5; ++id) {
        accounted += times.of(id)->lost;
    }
    // What is not lost yet waits.
    QCOMPARE(frames - accounted, qint64(1001));
}

QTEST_APPLESS_MAIN(TestReplyTimes)
#include "tst_replytimes.moc"
