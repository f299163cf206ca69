#include "expectations/rowexpectation.h"
#include "expectations/rowtrial.h"
#include "frames/timeunits.h"

#include <QtTest>

/// A row, its expectations, and what comes in. Times are in ms here; the row goes out at 1000.
class TestRowTrial : public QObject
{
    Q_OBJECT

private slots:
    void nothingExpectedIsOverAtOnce();
    void verdicts_data();
    void verdicts();
    void aBadCrcFails();
    void framesFromBeforeAreNone();
    void replyTimeIsThatOfTheFirstFrame();
    void dueIsWhenTheWaitEnds_data();
    void dueIsWhenTheWaitEnds();
    void strayBytesFailOnlyAStrictTrial();
};

namespace {

constexpr qint64 sentAt = nsPerSecond;

Expectation expectationOf(const QString &lines)
{
    return rowExpectationOf("//@ tarnwick-run 1\n" + QString(lines).replace('|', '\n')).expectation;
}

ReceivedFrame frameAt(qint64 ms, const char *payload)
{
    const QByteArray bytes = QByteArray::fromHex(payload);
    return {bytes, bytes, ReceivedFrame::Crc::None, sentAt + ms * nsPerMs};
}

/// Lets what is written like "10:83 02;500" happen: frames at their times, and the time at the end.
void play(RowTrial &trial, const QString &story)
{
    trial.begin(sentAt);
    for (const QString &part : story.split(';')) {
        const qint64 ms = part.section(':', 0, 0).toInt();
        if (part.contains(':')) {
            trial.take(frameAt(ms, part.section(':', 1).toLatin1()));
        } else {
            trial.passTime(sentAt + ms * nsPerMs);
        }
    }
}

} // namespace

void TestRowTrial::nothingExpectedIsOverAtOnce()
{
    RowTrial trial({}, 500, false);
    trial.begin(sentAt);
    QVERIFY(trial.isOver());
    QVERIFY(!trial.hasFailed());
}

void TestRowTrial::verdicts_data()
{
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("isStrict");
    QTest::addColumn<QString>("story");
    QTest::addColumn<bool>("isOver");
    QTest::addColumn<QString>("failure");

    const auto row = [](const char *name, const char *expected, const char *story, bool isOver,
                        const char *failure, bool isStrict = false) {
        QTest::newRow(name) << QString(expected) << isStrict << QString(story) << isOver
                            << QString(failure);
    };
    row("as expected", "//? 03 ??", "10:03 07", true, "");
    row("not yet", "//? 03 ??", "499", false, "");
    row("none in time", "//? 03 ??", "500", true, "expected 03 ??, got nothing within 500.0 ms");
    row("none within its own time", "//? 03  within 20", "20", true,
        "expected 03, got nothing within 20.0 ms");
    row("other bytes", "//? 03 ??", "10:83 02", true, "expected 03 ??, got 83 02 after 10.0 ms");
    row("the second alternative", "//? 03 ??|//? 83 **", "10:83 02", true, "");
    row("neither alternative", "//? 03|//? 04", "10:05", true,
        "expected 03 or 04, got 05 after 10.0 ms");
    row("too late", "//? 03  within 20", "30:03", true,
        "expected 03, got 03 after 30.0 ms, too late");
    row("each alternative has its time", "//? 03  within 20|//? 04", "30:03", true,
        "expected 03 or 04, got 03 after 30.0 ms, too late");
    row("the longest time of the alternatives counts", "//? 03  within 20|//? 04", "30", false, "");
    row("in time to the ms", "//? 03  within 20", "20:03", true, "");
    row("further frame", "//? 03|//+ 10", "10:03;20:10", true, "");
    row("further frame not yet", "//? 03|//+ 10", "10:03", false, "");
    row("further frame counts from the one before", "//? 03|//+ 10  within 30", "100:03;129", false,
        "");
    row("further frame missing", "//? 03|//+ 10  within 30", "100:03;130", true,
        "expected 10, got nothing within 30.0 ms");
    row("alternatives of a further frame", "//? 03|//+ 10|//? 11", "10:03;20:11", true, "");
    row("in order", "//? 03|//+ 10", "10:10;20:03", true, "expected 03, got 10 after 10.0 ms");
    row("what is wrong first is told", "//? 03|//+ 10", "10:04;20:11", true,
        "expected 03, got 04 after 10.0 ms");
    row("a wrong frame doesn't end the row", "//? 03|//+ 10", "10:04", false,
        "expected 03, got 04 after 10.0 ms");
    row("forbidden", "//! 8?", "10:83", false, "8? is forbidden, got 83 after 10.0 ms");
    row("nothing forbidden came", "//! 8?", "10:03;500", true, "");
    row("forbidden for a time", "//! 8?  within 20", "20", true, "");
    row("forbidden, but later", "//? 03|//! 8?  within 20|//? 83", "30:83", true, "");
    row("forbidden as a reply", "//? ??|//! 8?", "10:83", true,
        "8? is forbidden, got 83 after 10.0 ms");
    row("the reply ends the wait for what is forbidden", "//? 03|//! 8?", "10:03", true, "");
    row("unless that has a time of its own", "//? 03|//! 8?  within 50", "10:03", false, "");
    row("and then it is over", "//? 03|//! 8?  within 50", "10:03;50", true, "");
    row("forbidden behind the reply", "//? 03|//! 8?  within 50", "10:03;20:83", false,
        "8? is forbidden, got 83 after 20.0 ms");
    row("more frames than expected", "//? 03|//! 8?  within 50", "10:03;20:04;50", true, "");
    row("more than expected, strictly", "//? 03|//! 8?  within 50", "10:03;20:04;50", true,
        "nothing more expected, got 04 after 20.0 ms", true);
}

void TestRowTrial::verdicts()
{
    QFETCH(QString, expected);
    QFETCH(bool, isStrict);
    QFETCH(QString, story);
    const Expectation expectation = expectationOf(expected);
    QVERIFY(!expectation.isEmpty());
    RowTrial trial(expectation, 500, isStrict);
    play(trial, story);
    QTEST(trial.isOver(), "isOver");
    QTEST(trial.failure(), "failure");
    QCOMPARE(trial.hasFailed(), !trial.failure().isEmpty());
}

void TestRowTrial::aBadCrcFails()
{
    RowTrial trial(expectationOf("//? 03"), 500, false);
    trial.begin(sentAt);
    ReceivedFrame frame = frameAt(10, "03");
    frame.crc = ReceivedFrame::Crc::Bad;
    QVERIFY(trial.take(frame));
    QCOMPARE(trial.failure(), QString("expected 03, got 03 with a bad CRC after 10.0 ms"));
}

void TestRowTrial::framesFromBeforeAreNone()
{
    RowTrial trial(expectationOf("//? 03"), 500, false);
    trial.begin(sentAt);
    QVERIFY(!trial.take(frameAt(-1, "04")));
    QVERIFY(!trial.isOver());
    QVERIFY(trial.take(frameAt(1, "03")));
    QVERIFY(!trial.hasFailed());
    QVERIFY(!trial.take(frameAt(2, "04")));
    QCOMPARE(trial.replies(), QVector<QByteArray>{"\x03"});
}

void TestRowTrial::replyTimeIsThatOfTheFirstFrame()
{
    RowTrial trial(expectationOf("//? 03|//+ 04"), 500, false);
    play(trial, "10:03;30:04");
    QCOMPARE(trial.replyTimeNs(), std::optional(10 * nsPerMs));
}

void TestRowTrial::dueIsWhenTheWaitEnds_data()
{
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("dueMs");

    QTest::newRow("the usual time") << "//? 03" << 500;
    QTest::newRow("its own time") << "//? 03  within 20" << 20;
    QTest::newRow("the longest") << "//? 03  within 20|//? 04  within 70" << 70;
    QTest::newRow("only something forbidden") << "//! 03" << 500;
    QTest::newRow("only something forbidden for a time") << "//! 03  within 90" << 90;
}

void TestRowTrial::dueIsWhenTheWaitEnds()
{
    QFETCH(QString, expected);
    QFETCH(int, dueMs);
    RowTrial trial(expectationOf(expected), 500, false);
    trial.begin(sentAt);
    QCOMPARE(trial.dueNs(), sentAt + dueMs * nsPerMs);
    trial.passTime(trial.dueNs() - 1);
    QVERIFY(!trial.isOver());
    trial.passTime(trial.dueNs());
    QVERIFY(trial.isOver());
}

void TestRowTrial::strayBytesFailOnlyAStrictTrial()
{
    for (const bool isStrict : {false, true}) {
        RowTrial trial(expectationOf("//? 03"), 500, isStrict);
        trial.begin(sentAt);
        trial.takeStray("\xFF", sentAt + 10 * nsPerMs);
        QCOMPARE(trial.failure(), isStrict ? QString("no frame: FF after 10.0 ms") : QString());
        QVERIFY(!trial.isOver());
    }
}

QTEST_APPLESS_MAIN(TestRowTrial)

#include "tst_rowtrial.moc"
