#include "frames/timeunits.h"
#include "log/timecolumn.h"
#include "timezone.h"

#include <QtTest>

class TestTimeColumn : public QObject
{
    Q_OBJECT

private slots:
    void theTimeOfARow();
    void theCell_data();
    void theCell();
    void theTip_data();
    void theTip();
    void theClipboard();
};

namespace {

constexpr qint64 twoInTheAfternoon = 1795352607123456;

LogRecord recordAt(qint64 monotonicNs, qint64 begunNs)
{
    LogRecord record;
    record.utcUs = twoInTheAfternoon + monotonicNs / nsPerUs;
    record.monotonicNs = monotonicNs;
    record.begun = {twoInTheAfternoon + begunNs / nsPerUs, begunNs};
    return record;
}

RowTime timeAt(std::optional<qint64> sinceBeforeNs, qint64 takenNs = 0)
{
    RowTime time;
    time.utcUs = twoInTheAfternoon;
    time.sinceBeforeNs = sinceBeforeNs;
    time.begunUtcUs = twoInTheAfternoon - takenNs / nsPerUs;
    time.takenNs = takenNs;
    return time;
}

} // namespace

void TestTimeColumn::theTimeOfARow()
{
    const QVector<LogRecord> records{recordAt(5000, 5000), recordAt(9000, 7000),
                                     recordAt(8000, 8000)};
    QVERIFY(!rowTimeOf(records, 0).sinceBeforeNs);
    QCOMPARE(rowTimeOf(records, 0).takenNs, qint64(0));
    QCOMPARE(rowTimeOf(records, 1).utcUs, twoInTheAfternoon + 9);
    QCOMPARE(*rowTimeOf(records, 1).sinceBeforeNs, qint64(4000));
    QCOMPARE(rowTimeOf(records, 1).begunUtcUs, twoInTheAfternoon + 7);
    QCOMPARE(rowTimeOf(records, 1).takenNs, qint64(2000));
    QCOMPARE(*rowTimeOf(records, 2).sinceBeforeNs, qint64(-1000));
}

void TestTimeColumn::theCell_data()
{
    QTest::addColumn<bool>("isFirst");
    QTest::addColumn<int>("shown");
    QTest::addColumn<QString>("text");

    const auto add = [](const char *name, bool isFirst, ShownTime shown, const char *text) {
        QTest::newRow(name) << isFirst << int(shown) << QString(text);
    };
    add("since", false, ShownTime::SinceRowBefore, "12.3 ms");
    add("the first", true, ShownTime::SinceRowBefore, "");
    add("of the day", false, ShownTime::OfDay, "14:03:27\n.123");
    add("the first of the day", true, ShownTime::OfDay, "14:03:27\n.123");
    add("nothing", false, ShownTime::Nothing, "");
}

void TestTimeColumn::theCell()
{
    QFETCH(bool, isFirst);
    QFETCH(int, shown);
    const TimeZone here("CET-1");
    const RowTime time = timeAt(isFirst ? std::nullopt : std::make_optional<qint64>(12345678));
    QTEST(cellTimeText(time, ShownTime(shown)), "text");
}

void TestTimeColumn::theTip_data()
{
    QTest::addColumn<RowTime>("time");
    QTest::addColumn<QString>("text");

    QTest::newRow("the first") << timeAt({}) << "2026-11-22 14:03:27.123456 +01:00";
    QTest::newRow("since") << timeAt(12345678)
                           << "2026-11-22 14:03:27.123456 +01:00\n12.346 ms after the row before";
    QTest::newRow("in pieces") << timeAt(12345678, 2000000)
                               << "2026-11-22 14:03:27.123456 +01:00\n"
                                  "12.346 ms after the row before\n"
                                  "First byte at 14:03:27.121456, 2.000 ms before";
}

void TestTimeColumn::theTip()
{
    QFETCH(RowTime, time);
    const TimeZone here("CET-1");
    QTEST(tipTimeText(time), "text");
}

void TestTimeColumn::theClipboard()
{
    const TimeZone here("CET-1");
    QCOMPARE(copiedTimeText(timeAt(12345678)),
             QString("\t2026-11-22 14:03:27.123456 +01:00\t12.346 ms"));
    QCOMPARE(copiedTimeText(timeAt({})), QString("\t2026-11-22 14:03:27.123456 +01:00\t"));
}

QTEST_APPLESS_MAIN(TestTimeColumn)
#include "tst_timecolumn.moc"
