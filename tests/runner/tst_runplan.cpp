#include "runner/runplan.h"

#include <QtTest>

class TestRunPlan : public QObject
{
    Q_OBJECT

private slots:
    void framesAreBuiltBeforehand();
    void optionsGoBeforeTheFile();
    void usualValues();
    void chosenRowsWithoutBytesAreFaults();
    void keepsIntervals_data();
    void keepsIntervals();
};

namespace {

FilePlan planOf(const QByteArray &text, const FileSettings &settings = {},
                const RowChoice &choice = RowChoice::selected())
{
    QVector<FileFault> faults;
    return planFile(readTestFile("f", text), settings, choice, faults);
}

} // namespace

void TestRunPlan::framesAreBuiltBeforehand()
{
    const FilePlan plan = planOf("//@ tarnwick-run 1 crc=on\nRead,select,01 0300 00 00 01\n"
                                 "Pause,select,++ 250\nNot,unselect,02 0000\n");
    QCOMPARE(plan.rows.size(), 2);
    QCOMPARE(plan.rows.at(0).frame, QByteArray::fromHex("5AA508010300000001840A"));
    QCOMPARE(plan.rows.at(0).number, 1);
    QVERIFY(plan.rows.at(1).isPause());
    QCOMPARE(plan.rows.at(1).pauseMs, 250);
    QVERIFY(plan.hasSomethingToSend());
    QVERIFY(!planOf("Pause,select,++ 250\n").hasSomethingToSend());
    QCOMPARE(planOf("A,unselect,01 0000\n", {}, RowChoice::all()).rows.size(), 1);
}

void TestRunPlan::optionsGoBeforeTheFile()
{
    FileSettings options;
    options.withCrc = false;
    options.intervalMs = 7;
    const FilePlan plan =
        planOf("//@ tarnwick-run 1 crc=on start=0102 interval=9 reply-timeout=30\n", options);
    QVERIFY(!plan.layout.withCrc);
    QCOMPARE(plan.intervalMs, 7);
    QCOMPARE(plan.replyTimeoutMs, 30);
    QCOMPARE(bytesOf(plan.layout.startBytes), QByteArray("\x01\x02"));
}

void TestRunPlan::usualValues()
{
    const FilePlan plan = planOf("");
    QCOMPARE(bytesOf(plan.layout.startBytes), QByteArray("\x5A\xA5"));
    QVERIFY(plan.layout.withStartBytes && plan.layout.withLength && !plan.layout.withCrc);
    QCOMPARE(plan.replyTimeoutMs, 500);
    QCOMPARE(plan.intervalMs, 0);
    QCOMPARE(plan.gapMs, 5);
}

void TestRunPlan::chosenRowsWithoutBytesAreFaults()
{
    const TestFile file = readTestFile("f", "Odd,select,01 0000 1\nOdd,unselect,01 0000 1\n");
    QVector<FileFault> faults;
    planFile(file, {}, RowChoice::selected(), faults);
    QCOMPARE(faults.size(), 1);
    QCOMPARE(faultText("f", faults.first()), QString("f:1:1: row 1 holds no whole bytes"));
}

void TestRunPlan::keepsIntervals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("keeps");

    QTest::newRow("as fast as can be") << QByteArray("A,select,01 0000\n") << false;
    QTest::newRow("interval") << QByteArray("//@ tarnwick-run 1 interval=1\n") << true;
    QTest::newRow("cycle delay") << QByteArray("//@ tarnwick-run 1 cycle-delay=1\n") << true;
    QTest::newRow("pause") << QByteArray("A,select,++ 10\n") << true;
}

void TestRunPlan::keepsIntervals()
{
    QFETCH(QByteArray, text);
    const RunPlan plan{{planOf(text)}, {}};
    QTEST(plan.keepsIntervals(), "keeps");
}

QTEST_APPLESS_MAIN(TestRunPlan)

#include "tst_runplan.moc"
