#include "shownlog.h"

#include <QHeaderView>

class TestLogFinding : public QObject
{
    Q_OBJECT

private slots:
    void rowsThatDoNotMatchAreHidden();
    void rowsWithoutARecordAreHidden();
    void newRowsAreFiltered();
    void aLogThatIsClearedOrFullStaysFiltered_data();
    void aLogThatIsClearedOrFullStaysFiltered();
    void aFilteredLogFollowsItsEnd();
    void aFilteredLogThatIsHeldStays();
    void aSelectedRowStaysInView();
    void aSelectedRowOutOfViewIsLeftAlone();
    void hidingLaysOutTheRowsThatAreLeft_data();
    void hidingLaysOutTheRowsThatAreLeft();
};

namespace {

constexpr int blankRows = 9;
constexpr int rowHeight = 36;

QVector<int> shownRowsOf(const LogOnScreen &shown)
{
    QVector<int> rows;
    for (int row = 0; row < shown.table.rowCount(); ++row) {
        if (!shown.table.isRowHidden(row)) {
            rows.append(row);
        }
    }
    return rows;
}

/// Appends frames that were sent and received by turns, the first one sent.
void appendPairs(LogOnScreen &shown, int pairs)
{
    for (int pair = 0; pair < pairs; ++pair) {
        shown.records.appendSent("\x5A\xA5\x01\x01", false);
        shown.records.appendReceived("\x5A\xA5\x01\x02", false);
    }
    shown.log.bringIn();
}

} // namespace

void TestLogFinding::rowsThatDoNotMatchAreHidden()
{
    LogOnScreen shown;
    appendPairs(shown, 6);
    QVERIFY(!shown.log.isFiltered());
    QCOMPARE(shown.log.matching(), 12);
    shown.log.setFilter(LogFilter("rx"));
    QVERIFY(shown.log.isFiltered());
    QCOMPARE(shownRowsOf(shown), (QVector<int>{1, 3, 5, 7, 9, 11}));
    QCOMPARE(shown.log.matching(), 6);
    QCOMPARE(shown.log.count(), 12);
    shown.log.setFilter(LogFilter("tx"));
    QCOMPARE(shownRowsOf(shown), (QVector<int>{0, 2, 4, 6, 8, 10}));
    shown.log.setFilter(LogFilter("nowhere"));
    QCOMPARE(shownRowsOf(shown), QVector<int>());
    QCOMPARE(shown.log.matching(), 0);
    shown.log.setFilter({});
    QCOMPARE(shown.shownRows(), 12);
    QCOMPARE(shown.table.item(11, 0)->text(), QString("12"));
}

void TestLogFinding::rowsWithoutARecordAreHidden()
{
    LogOnScreen shown;
    appendPairs(shown, 1);
    shown.log.setFilter(LogFilter("rx"));
    QCOMPARE(shownRowsOf(shown), QVector<int>{1});
    shown.log.setFilter({});
    QCOMPARE(shown.shownRows(), blankRows);
    QCOMPARE(shown.bar().value(), 0);
}

void TestLogFinding::newRowsAreFiltered()
{
    constexpr int pairs = 150;
    LogOnScreen shown;
    shown.log.setFilter(LogFilter("rx"));
    QCOMPARE(shown.shownRows(), 0);
    appendPairs(shown, 3);
    QCOMPARE(shownRowsOf(shown), (QVector<int>{1, 3, 5}));
    appendPairs(shown, pairs - 3);
    QTRY_COMPARE(shown.log.count(), 2 * pairs);
    QCOMPARE(shown.shownRows(), pairs);
    QCOMPARE(shown.log.matching(), pairs);
}

void TestLogFinding::aLogThatIsClearedOrFullStaysFiltered_data()
{
    QTest::addColumn<bool>("isCleared");

    QTest::newRow("cleared") << true;
    QTest::newRow("full") << false;
}

void TestLogFinding::aLogThatIsClearedOrFullStaysFiltered()
{
    QFETCH(bool, isCleared);
    LogOnScreen shown;
    shown.log.setFilter(LogFilter("rx"));
    appendPairs(shown, 512);
    shown.records.appendSent("x", false);
    shown.log.bringIn();
    QCOMPARE(shown.shownRows(), 512);
    if (isCleared) {
        shown.records.clear();
        QCOMPARE(shown.shownRows(), 0);
        QCOMPARE(shown.log.matching(), 0);
    }
    appendPairs(shown, 2);
    QCOMPARE(shown.table.rowCount(), blankRows);
    QCOMPARE(shownRowsOf(shown), (QVector<int>{1, 3}));
    QCOMPARE(shown.log.matching(), 2);
    shown.log.setFilter({});
    QCOMPARE(shown.shownRows(), blankRows);
}

void TestLogFinding::aFilteredLogFollowsItsEnd()
{
    LogOnScreen shown;
    appendPairs(shown, 100);
    QTRY_VERIFY(shown.showsEnd());
    shown.log.setFilter(LogFilter("rx"));
    QVERIFY(shown.showsEnd());
    for (const int pairs : {1, 2, 7, 40, 1}) {
        appendPairs(shown, pairs);
        shown.records.appendSent("x", false);
        QTRY_COMPARE(shown.log.count(), shown.records.count());
        QTRY_VERIFY(shown.showsEnd());
        const int inView = shown.table.viewport()->height() / rowHeight;
        QTRY_COMPARE(shown.bar().maximum(), shown.log.matching() - inView);
    }
    shown.log.setFilter({});
    QVERIFY(shown.showsEnd());
}

void TestLogFinding::aFilteredLogThatIsHeldStays()
{
    LogOnScreen shown;
    appendPairs(shown, 100);
    QTRY_VERIFY(shown.showsEnd());
    shown.log.setFilter(LogFilter("rx"));
    shown.bar().setValue(10);
    QCOMPARE(shown.firstInView(), 21);
    const int before = shown.bar().maximum();
    appendPairs(shown, 30);
    QTRY_COMPARE(shown.bar().maximum(), before + 30);
    QCOMPARE(shown.firstInView(), 21);
}

void TestLogFinding::aSelectedRowStaysInView()
{
    LogOnScreen shown;
    appendPairs(shown, 100);
    shown.records.appendEvent("HID", "Insert x");
    appendPairs(shown, 100);
    QTRY_VERIFY(shown.showsEnd());
    shown.log.setFilter(LogFilter("insert"));
    QCOMPARE(shownRowsOf(shown), QVector<int>{200});
    QVERIFY(shown.log.isFollowing());
    shown.table.selectRow(200);
    shown.log.setFilter({});
    QVERIFY(!shown.log.isFollowing());
    const QRect place = shown.table.visualRect(shown.table.model()->index(200, 0));
    QVERIFY(shown.table.viewport()->rect().contains(place));
    appendPairs(shown, 10);
    QTRY_COMPARE(shown.log.count(), shown.records.count());
    QCOMPARE(shown.table.visualRect(shown.table.model()->index(200, 0)), place);
}

void TestLogFinding::aSelectedRowOutOfViewIsLeftAlone()
{
    LogOnScreen shown;
    appendPairs(shown, 1);
    shown.table.selectRow(0);
    appendPairs(shown, 100);
    QTRY_VERIFY(shown.showsEnd());
    shown.log.setFilter(LogFilter("tx"));
    QVERIFY(shown.showsEnd());
    shown.log.setFilter({});
    QVERIFY(shown.showsEnd());
    QVERIFY(shown.log.isFollowing());
}

void TestLogFinding::hidingLaysOutTheRowsThatAreLeft_data()
{
    QTest::addColumn<int>("value");

    QTest::newRow("top") << 0;
    QTest::newRow("middle") << 37;
    QTest::newRow("end") << 1000;
}

void TestLogFinding::hidingLaysOutTheRowsThatAreLeft()
{
    QFETCH(int, value);
    LogOnScreen shown;
    appendPairs(shown, 100);
    QTRY_VERIFY(shown.showsEnd());
    shown.bar().setValue(value);
    shown.log.setFilter(LogFilter("rx"));
    const QVector<int> rows = shownRowsOf(shown);
    const int first = rows.indexOf(shown.firstInView());
    QVERIFY(first >= 0);
    const int top = shown.table.rowViewportPosition(rows.at(first));
    QVERIFY(top <= 0 && top > -rowHeight);
    for (int i = first; i < rows.size(); ++i) {
        QCOMPARE(shown.table.rowViewportPosition(rows.at(i)), top + (i - first) * rowHeight);
    }
    QCOMPARE(shown.table.verticalHeader()->length(), rows.size() * rowHeight);
}

QTEST_MAIN(TestLogFinding)
#include "tst_logfinding.moc"
