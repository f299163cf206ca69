#include "frames/timeunits.h"
#include "log/replytexts.h"

#include <QtTest>

class TestReplyTexts : public QObject
{
    Q_OBJECT

private slots:
    void aRowThatWasNeverSentSaysNothing();
    void aRowSaysHowItWasAnswered();
    void aLoopSaysHowItGoes();
    void theLinesOfALoopStayWhereTheyAre();
};

void TestReplyTexts::aRowThatWasNeverSentSaysNothing()
{
    QCOMPARE(rowRepliesText(nullptr), QString());
}

void TestReplyTexts::aRowSaysHowItWasAnswered()
{
    Replies replies;
    replies.sent = 3;
    replies.lost = 1;
    QCOMPARE(rowRepliesText(&replies), QString("Sent 3, answered 0, lost 1 (none within 1 s)"));
    replies.times.add(2 * nsPerMs);
    replies.times.add(40 * nsPerMs);
    replies.lastNs = 2 * nsPerMs;
    QCOMPARE(rowRepliesText(&replies),
             QString("Sent 3, answered 2, lost 1 (none within 1 s)\n"
                     "Reply time: last 2.00 ms, median 2.01 ms, 99 % within 40.0 ms"));
}

void TestReplyTexts::aLoopSaysHowItGoes()
{
    LoopFigures figures;
    figures.passes = 12;
    figures.received = 22;
    figures.replies.sent = 24;
    figures.replies.lost = 2;
    figures.replies.times.add(3 * nsPerMs);
    figures.lateness.add(50000);
    figures.lateness.add(1200000);
    QCOMPARE(loopFiguresText(figures), QString("Passes: 12\nFrames: 24 out, 22 in, 2 lost\n"
                                               "Reply: 3.00 ms, 99 %: 3.00 ms\n"
                                               "Late: 50 µs, 99 %: 1.20 ms,\nat most 1.20 ms"));
}

void TestReplyTexts::theLinesOfALoopStayWhereTheyAre()
{
    LoopFigures figures;
    const int lines = loopFiguresText(figures).count('\n');
    QVERIFY(loopFiguresText(figures).contains("Reply: –, 99 %: –"));
    figures.replies.times.add(3 * nsPerMs);
    figures.lateness.add(1200000);
    QCOMPARE(loopFiguresText(figures).count('\n'), lines);
}

QTEST_APPLESS_MAIN(TestReplyTexts)
#include "tst_replytexts.moc"
