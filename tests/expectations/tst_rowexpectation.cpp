#include "expectations/rowexpectation.h"

#include <QtTest>

class TestRowExpectation : public QObject
{
    Q_OBJECT

private slots:
    void nothingExpectsNothing();
    void theRunLineAloneExpectsNothing();
    void linesAreTakenInOrder();
    void whatCannotBeReadExpectsNothing();
    void lineEndsAreNoMatter();
};

void TestRowExpectation::nothingExpectsNothing()
{
    const RowExpectation row = rowExpectationOf({});
    QVERIFY(row.expectation.isEmpty());
    QVERIFY(!row.settings.replyTimeoutMs);
}

void TestRowExpectation::theRunLineAloneExpectsNothing()
{
    const RowExpectation row = rowExpectationOf("//@ tarnwick-run 1 reply-timeout=20\n");
    QVERIFY(row.expectation.isEmpty());
    QCOMPARE(*row.settings.replyTimeoutMs, 20);
}

void TestRowExpectation::linesAreTakenInOrder()
{
    const Expectation expected = rowExpectationOf("//@ tarnwick-run 1\n"
                                                  "//? 03 01  within 200\n"
                                                  "//? 03 02\n"
                                                  "//+ 10 **\n"
                                                  "//! 83 **\n")
                                     .expectation;
    QCOMPARE(expected.replies.size(), 2);
    QCOMPARE(expected.replies.first().size(), 2);
    QCOMPARE(*expected.replies.first().first().withinMs, 200);
    QCOMPARE(expected.replies.first().last().pattern.text(), QString("03 02"));
    QCOMPARE(expected.replies.last().first().pattern.text(), QString("10 **"));
    QCOMPARE(expected.forbidden.size(), 1);
}

void TestRowExpectation::whatCannotBeReadExpectsNothing()
{
    QVERIFY(rowExpectationOf("//@ tarnwick-run 1\n//? 0\n//? x\n//+ 10\nrubbish\n")
                .expectation.isEmpty());
    QCOMPARE(rowExpectationOf("//@ tarnwick-run 9\n//? 01\n").expectation.replies.size(), 1);
}

void TestRowExpectation::lineEndsAreNoMatter()
{
    QCOMPARE(rowExpectationOf("//@ tarnwick-run 1\r\n//? 01\r\n").expectation.replies.size(), 1);
}

QTEST_APPLESS_MAIN(TestRowExpectation)
#include "tst_rowexpectation.moc"
