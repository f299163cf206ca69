#include "expectations/replycheck.h"
#include "frames/timeunits.h"
#include "hexbytes.h"

#include <QtTest>

class TestReplyCheck : public QObject
{
    Q_OBJECT

private slots:
    void withoutExpectationsNothingIsJudged();
    void aReplyThatFitsIsGood();
    void anotherReplyIsNot();
    void aFrameThatComesUncalledIsNotJudged();
    void aLateReplyIsToldSo();
    void aForbiddenFrameIsTold();
    void aBadCrcIsTold();
    void furtherFramesAreAwaited();
    void aLostReplyBlamesNoOther();
    void rowsThatOutrunTheirAnswersAreJudgedByWhatFits();
    void rowsSentTogetherAreAnsweredInOrder();
    void aRowWithoutExpectationsTakesOneFrame();
    void whatIsHandedUpTogetherMayAnswerWhatWasSentMeanwhile();
    void theFirstOfWhatIsHandedUpAnswersNothingLater();
    void whatIsOldIsForgotten();
};

namespace {

BlockPart partExpecting(const char *lines)
{
    BlockPart part;
    part.expectations = QString("//@ tarnwick-run 1\n") + lines;
    return part;
}

BlockPart freePart()
{
    return {};
}

ReceivedFrame payloadAt(int ms, const char *digits)
{
    return {hex(digits), hex(digits), ReceivedFrame::Crc::None, ms * nsPerMs};
}

/// What is handed up as soon as it is read.
QString judged(ReplyCheck &check, const ReceivedFrame &frame)
{
    return check.judge(frame, frame.timeNs);
}

} // namespace

void TestReplyCheck::withoutExpectationsNothingIsJudged()
{
    ReplyCheck check;
    QCOMPARE(judged(check, payloadAt(1, "01")), QString());
    check.noteSent({freePart()}, 0);
    QVERIFY(!check.isWaiting());
    QCOMPARE(judged(check, payloadAt(1, "01")), QString());
}

void TestReplyCheck::aReplyThatFitsIsGood()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 03 ??\n")}, 0);
    QVERIFY(check.isWaiting());
    QCOMPARE(judged(check, payloadAt(3, "0377")), QString());
    QVERIFY(!check.isWaiting());
}

void TestReplyCheck::anotherReplyIsNot()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 03 ??\n")}, 0);
    QCOMPARE(judged(check, payloadAt(3, "8302")),
             QString("expected 03 ??, got 83 02 after 3.0 ms"));
    // It was the answer, whatever it was.
    QCOMPARE(judged(check, payloadAt(4, "8302")), QString());
}

void TestReplyCheck::aFrameThatComesUncalledIsNotJudged()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 03\n")}, 10 * nsPerMs);
    QCOMPARE(judged(check, payloadAt(9, "53")), QString());
    QCOMPARE(judged(check, payloadAt(11, "03")), QString());
    QCOMPARE(judged(check, payloadAt(12, "53")), QString());
}

void TestReplyCheck::aLateReplyIsToldSo()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 03  within 200\n")}, 0);
    QCOMPARE(judged(check, payloadAt(300, "03")),
             QString("expected 03, got 03 after 300.0 ms, too late"));
}

void TestReplyCheck::aForbiddenFrameIsTold()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//! 83 **\n")}, 0);
    QCOMPARE(judged(check, payloadAt(1, "03")), QString());
    QCOMPARE(judged(check, payloadAt(2, "8301")),
             QString("83 ** is forbidden, got 83 01 after 2.0 ms"));
}

void TestReplyCheck::aBadCrcIsTold()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 03\n")}, 0);
    ReceivedFrame frame = payloadAt(1, "03");
    frame.crc = ReceivedFrame::Crc::Bad;
    QVERIFY(judged(check, frame).contains("bad CRC"));
}

void TestReplyCheck::furtherFramesAreAwaited()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 03\n//+ 10 **\n")}, 0);
    QCOMPARE(judged(check, payloadAt(1, "03")), QString());
    QVERIFY(check.isWaiting());
    QVERIFY(judged(check, payloadAt(2, "11")).startsWith("expected 10 **, got 11"));
    QVERIFY(!check.isWaiting());
}

void TestReplyCheck::aLostReplyBlamesNoOther()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 01\n")}, 0);
    check.noteSent({partExpecting("//? 02\n")}, 100 * nsPerMs);
    QCOMPARE(judged(check, payloadAt(105, "02")), QString());
    check.noteSent({partExpecting("//? 03\n")}, 200 * nsPerMs);
    QCOMPARE(judged(check, payloadAt(205, "04")), QString("expected 03, got 04 after 5.0 ms"));
}

void TestReplyCheck::rowsThatOutrunTheirAnswersAreJudgedByWhatFits()
{
    ReplyCheck check;
    for (int row = 0; row < 16; ++row) {
        check.noteSent({partExpecting(row % 2 == 0 ? "//? 01\n" : "//? 02\n")}, row * nsPerMs);
    }
    for (int row = 0; row < 16; ++row) {
        QCOMPARE(judged(check, payloadAt(16, row % 2 == 0 ? "01" : "02")), QString());
    }
    QVERIFY(!check.isWaiting());
}

void TestReplyCheck::rowsSentTogetherAreAnsweredInOrder()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 01\n"), freePart(), partExpecting("//? 03\n")}, 0);
    QVERIFY(judged(check, payloadAt(1, "11")).startsWith("expected 01, got 11"));
    QCOMPARE(judged(check, payloadAt(2, "12")), QString());
    QVERIFY(judged(check, payloadAt(3, "13")).startsWith("expected 03, got 13"));
    QVERIFY(!check.isWaiting());
}

void TestReplyCheck::aRowWithoutExpectationsTakesOneFrame()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 01\n")}, 0);
    check.noteSent({freePart()}, 10 * nsPerMs);
    QCOMPARE(judged(check, payloadAt(11, "77")), QString());
    QVERIFY(judged(check, payloadAt(12, "78")).startsWith("expected 01, got 78"));
}

void TestReplyCheck::whatIsHandedUpTogetherMayAnswerWhatWasSentMeanwhile()
{
    ReplyCheck check;
    const auto judgedLater = [&check](const char *payload) {
        return check.judge(payloadAt(3, payload), 9 * nsPerMs);
    };
    check.noteSent({partExpecting("//? 01\n")}, 0);
    check.noteSent({partExpecting("//? 02  within 2\n")}, 4 * nsPerMs);
    check.noteSent({partExpecting("//? 03\n")}, 5 * nsPerMs);
    QCOMPARE(judgedLater("01"), QString());
    QCOMPARE(judgedLater("02"), QString());
    QCOMPARE(judgedLater("83"), QString("expected 03, got 83 after 4.0 ms"));
    QVERIFY(!check.isWaiting());
}

void TestReplyCheck::theFirstOfWhatIsHandedUpAnswersNothingLater()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 02\n")}, 4 * nsPerMs);
    QCOMPARE(check.judge(payloadAt(3, "83"), 9 * nsPerMs), QString());
    QVERIFY(check.isWaiting());
}

void TestReplyCheck::whatIsOldIsForgotten()
{
    ReplyCheck check;
    check.noteSent({partExpecting("//? 01\n")}, 0);
    check.noteSent({partExpecting("//? 01  within 5000\n")}, 0);
    QCOMPARE(judged(check, payloadAt(4000, "01")), QString());
    check.noteSent({partExpecting("//? 01\n")}, 5000 * nsPerMs);
    check.noteSent({freePart()}, 7000 * nsPerMs);
    QVERIFY(!check.isWaiting());
    for (int row = 0; row < 100000; ++row) {
        check.noteSent({partExpecting("//? 01  within 86400000\n")}, row);
    }
    QVERIFY(check.isWaiting());
}

QTEST_APPLESS_MAIN(TestReplyCheck)
#include "tst_replycheck.moc"
