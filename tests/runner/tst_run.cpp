#include "runbench.h"

#include <QtTest>

/// What a run sends, and how it judges what comes; its times are in tst_runtiming.
class TestRun : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreSentInOrderAndJudged();
    void theNextRowWaitsForTheVerdict();
    void rowsWithoutExpectationDontWait();
    void passesAreRepeated();
    void repeatsWithoutEnd();
    void filesFollowEachOther();
    void failFastEndsAtTheFirst();
    void aFailedRowIsSentAgain();
    void aRowThatPassesIsNotSentAgain();
    void aLostLinkIsNoFailure();
    void aLinkLostWhileNothingIsOnItsWay();
    void anEndLeavesTheRowWithoutVerdict();
    void unexpectedFramesFailOnlyAStrictRun_data();
    void unexpectedFramesFailOnlyAStrictRun();
    void strayBytesBelongToTheRowThatWaits();
    void repliesToARowThatExpectsNothingAreFree();
    void aLinkThatTakesNothingIsWaitedFor();
    void theEndWaitsForWhatIsNotSentYet();
    void theLastRowIsGivenTimeToBeAnswered();
    void nothingToSendEndsAtOnce();
    void countsAndTimes();
};

namespace {

const QByteArray twoChecked("//@ tarnwick-run 1\n"
                            "First,select,01 0000\n"
                            "//? 81\n"
                            "Second,select,02 0000\n"
                            "//? 82\n");

const QByteArray first = QByteArray::fromHex("010000");
const QByteArray second = QByteArray::fromHex("020000");

} // namespace

void TestRun::rowsAreSentInOrderAndJudged()
{
    RunBench bench;
    bench.answers = {{first, "\x81"}, {second, "\x83"}};
    bench.start(twoChecked);
    bench.advance(10);
    QCOMPARE(bench.wire.sent, QVector<QByteArray>({first, second}));
    QCOMPARE(bench.verdicts(), QStringList({"1 pass", "2 fail"}));
    QCOMPARE(bench.results.at(0).description, QString("First"));
    QCOMPARE(bench.results.at(0).sent, first);
    QCOMPARE(bench.results.at(0).replies, QVector<QByteArray>{"\x81"});
    QVERIFY(bench.results.at(1).why.startsWith("expected 82, got 83"));
    QVERIFY(bench.end == RunEnd::Done);
    QCOMPARE(bench.files, QStringList{"list.txt/1"});
    QCOMPARE(bench.wire.formats, 1);
}

void TestRun::theNextRowWaitsForTheVerdict()
{
    RunBench bench;
    bench.start(twoChecked);
    bench.advance(499);
    QCOMPARE(bench.wire.sent.size(), 1);
    bench.advance(1);
    QCOMPARE(bench.verdicts(), QStringList{"1 fail"});
    QCOMPARE(bench.wire.sent.size(), 2);
}

void TestRun::rowsWithoutExpectationDontWait()
{
    RunBench bench;
    bench.start("One,select,01 0000\nTwo,select,02 0000\nThree,unselect,03 0000\n");
    bench.advance(1);
    QCOMPARE(bench.wire.sent.size(), 2);
    QCOMPARE(bench.verdicts(), QStringList({"1 sent", "2 sent"}));
}

void TestRun::passesAreRepeated()
{
    RunBench bench;
    bench.rules.passes = 3;
    bench.start("One,select,01 0000\n");
    bench.advance(100);
    QCOMPARE(bench.wire.sent.size(), 3);
    QCOMPARE(bench.results.last().pass, 3);
    QCOMPARE(bench.files, QStringList({"list.txt/1", "list.txt/2", "list.txt/3"}));
    QVERIFY(bench.end == RunEnd::Done);
}

void TestRun::repeatsWithoutEnd()
{
    RunBench bench;
    bench.rules.passes = 0;
    bench.start("//@ tarnwick-run 1 interval=1\nOne,select,01 0000\n");
    bench.advance(1000);
    QVERIFY(bench.wire.sent.size() >= 1000);
    QVERIFY(!bench.end);
    bench.run->end(RunEnd::Interrupted);
    QVERIFY(bench.end == RunEnd::Interrupted);
}

void TestRun::filesFollowEachOther()
{
    RunBench bench;
    bench.rules.passes = 2;
    bench.start({bench.plan("One,select,01 0000\n", "a"), bench.plan("// Nothing.\n", "b"),
                 bench.plan("Two,select,02 0000\n", "c")});
    bench.advance(100);
    QCOMPARE(bench.wire.sent, QVector<QByteArray>({first, second, first, second}));
    QCOMPARE(bench.files, QStringList({"a/1", "c/1", "a/2", "c/2"}));
}

void TestRun::failFastEndsAtTheFirst()
{
    RunBench bench;
    bench.rules.failsFast = true;
    bench.answers = {{first, "\x99"}};
    bench.start(twoChecked);
    bench.advance(1000);
    QCOMPARE(bench.verdicts(), QStringList{"1 fail"});
    QCOMPARE(bench.wire.sent.size(), 1);
    QVERIFY(bench.end == RunEnd::FailedFast);
}

void TestRun::aFailedRowIsSentAgain()
{
    RunBench bench;
    bench.rules.retries = 2;
    bench.answers = {{second, "\x82"}};
    bench.start(twoChecked);
    bench.advance(2000);
    QCOMPARE(bench.wire.sent, QVector<QByteArray>({first, first, first, second}));
    QCOMPARE(bench.verdicts(), QStringList({"1 fail", "2 pass"}));
    QCOMPARE(bench.results.at(0).attempts, 3);
    QCOMPARE(bench.results.at(1).attempts, 1);
    QCOMPARE(bench.run->summary().failures, qint64(1));
}

void TestRun::aRowThatPassesIsNotSentAgain()
{
    RunBench bench;
    bench.rules.retries = 5;
    bench.start(twoChecked);
    bench.advance(500);
    bench.wire.receive("\x81");
    QCOMPARE(bench.verdicts(), QStringList{"1 pass"});
    QCOMPARE(bench.results.at(0).attempts, 2);
}

void TestRun::aLostLinkIsNoFailure()
{
    RunBench bench;
    bench.start(twoChecked);
    bench.advance(10);
    emit bench.wire.lost("the device is gone");
    QCOMPARE(bench.verdicts(), QStringList{"1 lost"});
    QCOMPARE(bench.results.at(0).why, QString("the device is gone"));
    QVERIFY(bench.end == RunEnd::LinkLost);
    bench.advance(1000);
    QCOMPARE(bench.wire.sent.size(), 1);
}

void TestRun::aLinkLostWhileNothingIsOnItsWay()
{
    RunBench bench;
    bench.start("//@ tarnwick-run 1 interval=100\nOne,select,01 0000\nTwo,select,02 0000\n");
    bench.advance(10);
    emit bench.wire.lost("gone");
    QCOMPARE(bench.verdicts(), QStringList({"1 sent", "2 lost"}));
    emit bench.wire.lost("gone once more");
    QCOMPARE(bench.results.size(), 2);
}

void TestRun::anEndLeavesTheRowWithoutVerdict()
{
    RunBench bench;
    bench.start(twoChecked);
    bench.advance(10);
    bench.run->end(RunEnd::TimedOut);
    bench.advance(1000);
    QVERIFY(bench.results.isEmpty());
    QVERIFY(bench.end == RunEnd::TimedOut);
}

void TestRun::unexpectedFramesFailOnlyAStrictRun_data()
{
    QTest::addColumn<bool>("isStrict");
    QTest::newRow("lenient") << false;
    QTest::newRow("strict") << true;
}

void TestRun::unexpectedFramesFailOnlyAStrictRun()
{
    QFETCH(bool, isStrict);
    RunBench bench;
    bench.rules.isStrict = isStrict;
    bench.start("//@ tarnwick-run 1 interval=100\nFirst,select,01 0000\n//? 81\n"
                "Second,select,02 0000\n//? 82\n");
    bench.advance(5);
    bench.wire.receive("\x81");
    bench.advance(5);
    bench.wire.receive("\x53\x01");
    emit bench.wire.strayArrived("\xFF", bench.clock.now());
    bench.advance(95);
    bench.wire.receive("\x82");
    bench.advance(100);
    QStringList expected{"1 pass", "2 pass"};
    if (isStrict) {
        expected.append("0 fail");
        QCOMPARE(bench.results.last().why, QString("expected nothing, got 53 01 (2 in all)"));
    }
    QCOMPARE(bench.verdicts(), expected);
}

void TestRun::strayBytesBelongToTheRowThatWaits()
{
    RunBench bench;
    bench.rules.retries = 1;
    bench.start("//@ tarnwick-run 1 interval=1000 reply-timeout=100\n"
                "First,select,01 0000\n//? 81\nSecond,select,02 0000\n//? 82\n");
    bench.advance(5);
    emit bench.wire.strayArrived("abc", bench.clock.now());
    bench.advance(100);
    emit bench.wire.strayArrived("d", bench.clock.now());
    bench.wire.receive("\x81");
    emit bench.wire.strayArrived("between", bench.clock.now());
    bench.advance(1000);
    bench.wire.receive("\x82");
    QCOMPARE(bench.verdicts(), (QStringList{"1 pass", "2 pass"}));
    QCOMPARE(bench.results.at(0).attempts, 2);
    QCOMPARE(bench.results.at(0).strayBytes, 4);
    QCOMPARE(bench.results.at(1).strayBytes, 0);
    QCOMPARE(bench.run->summary().strayBytes, 11);
}

void TestRun::repliesToARowThatExpectsNothingAreFree()
{
    RunBench bench;
    bench.rules.isStrict = true;
    bench.start("//@ tarnwick-run 1 interval=100\nOne,select,01 0000\nTwo,select,02 0000\n");
    bench.advance(10);
    bench.wire.receive("\x81");
    bench.advance(200);
    QCOMPARE(bench.verdicts(), QStringList({"1 sent", "2 sent"}));
    QCOMPARE(bench.run->summary().replies, qint64(1));
}

void TestRun::aLinkThatTakesNothingIsWaitedFor()
{
    RunBench bench;
    bench.wire.behind = true;
    bench.start(twoChecked);
    bench.advance(100);
    QVERIFY(bench.wire.sent.isEmpty());
    bench.wire.behind = false;
    bench.advance(1);
    QCOMPARE(bench.wire.sent.size(), 1);
}

void TestRun::theEndWaitsForWhatIsNotSentYet()
{
    RunBench bench;
    bench.wire.drained = false;
    bench.start("One,select,01 0000\n");
    bench.advance(1000);
    QVERIFY(!bench.end);
    bench.wire.drained = true;
    bench.advance(1);
    QVERIFY(bench.end == RunEnd::Done);
}

void TestRun::theLastRowIsGivenTimeToBeAnswered()
{
    RunBench bench;
    bench.start("One,select,01 0000\n");
    bench.advance(19);
    QVERIFY(!bench.end);
    bench.advance(2);
    QVERIFY(bench.end == RunEnd::Done);

    RunBench answered;
    answered.start("One,select,01 0000\n");
    answered.advance(3);
    answered.wire.receive("\x81");
    QVERIFY(answered.end == RunEnd::Done);
    QCOMPARE(answered.run->summary().replies, qint64(1));
}

void TestRun::nothingToSendEndsAtOnce()
{
    RunBench bench;
    bench.rules.passes = 0;
    bench.start("Pause,select,++ 100\n");
    QVERIFY(bench.end == RunEnd::Done);
}

void TestRun::countsAndTimes()
{
    RunBench bench;
    bench.answers = {{first, "\x81"}};
    bench.start(twoChecked);
    bench.advance(1000);
    const RunSummary &summary = bench.run->summary();
    QCOMPARE(summary.rows, qint64(2));
    QCOMPARE(summary.sent, qint64(2));
    QCOMPARE(summary.replies, qint64(1));
    QCOMPARE(summary.failures, qint64(1));
    QCOMPARE(summary.replyTimes.count(), qint64(1));
}

QTEST_APPLESS_MAIN(TestRun)

#include "tst_run.moc"
