#include "commands/rowtracker.h"
#include "tablefixture.h"

#include <QSignalSpy>
#include <QtTest>

#include <random>

namespace Column = CommandColumn;

class TestRowTracker : public QObject
{
    Q_OBJECT

private slots:
    void nothingHasChangedAtFirst();
    void aCellIsOneRow();
    void signalsOfTheTableAreNotNeeded();
    void boxesCount();
    void rowsThatComeAndGoAreFound();
    void whatIsWrittenAgainIsNoChange();
    void aClearedTableIsFound();
    void touchingIsToldOnce();
    void anyChangesCanBeTakenBack();
};

void TestRowTracker::nothingHasChangedAtFirst()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    QVERIFY(!tracker.isTouched());
    QVERIFY(!tracker.takeChange());
}

void TestRowTracker::aCellIsOneRow()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    f.table.item(4, Column::Data)->setText("77");
    QVERIFY(tracker.isTouched());
    const std::optional<RowExchange> back = tracker.takeChange();
    QVERIFY(back.has_value());
    QCOMPARE(back->row, 4);
    QCOMPARE(back->removed, 1);
    QCOMPARE(back->rows.size(), 1);
    QVERIFY(back->rows.first() == numberedRow(4));
    QVERIFY(!tracker.isTouched());
    QVERIFY(!tracker.takeChange());
}

void TestRowTracker::signalsOfTheTableAreNotNeeded()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    f.table.blockSignals(true);
    f.table.item(4, Column::Data)->setText("77");
    QCOMPARE(tracker.takeChange()->row, 4);
}

void TestRowTracker::boxesCount()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    f.box(3)->click();
    QCOMPARE(tracker.takeChange()->row, 3);
    f.rows.setSelected(5, true);
    QCOMPARE(tracker.takeChange()->row, 5);
    f.rows.moveDown(5);
    tracker.takeChange();
    f.box(6)->click();
    QCOMPARE(tracker.takeChange()->row, 6);
}

void TestRowTracker::rowsThatComeAndGoAreFound()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    f.rows.insertEmptyRow(2);
    std::optional<RowExchange> back = tracker.takeChange();
    QCOMPARE(back->row, 2);
    QCOMPARE(back->removed, 1);
    QVERIFY(back->rows.isEmpty());
    // Among equal rows, too, the place is known.
    f.rows.clear();
    tracker.takeChange();
    f.rows.insertEmptyRow(2);
    QCOMPARE(tracker.takeChange()->row, 2);
    f.table.removeRow(7);
    back = tracker.takeChange();
    QCOMPARE(back->row, 7);
    QCOMPARE(back->removed, 0);
    QCOMPARE(back->rows.size(), 1);
}

void TestRowTracker::whatIsWrittenAgainIsNoChange()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    f.table.item(4, Column::Data)->setText("77");
    f.table.item(4, Column::Data)->setText(numberedRow(4).data);
    QVERIFY(tracker.isTouched());
    QVERIFY(!tracker.takeChange());
    QVERIFY(!tracker.isTouched());
}

void TestRowTracker::aClearedTableIsFound()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    f.table.clearContents();
    const std::optional<RowExchange> back = tracker.takeChange();
    QCOMPARE(back->row, 0);
    QCOMPARE(back->rows.size(), 9);
    f.table.setRowCount(0);
    QCOMPARE(tracker.takeChange()->rows.size(), 9);
}

void TestRowTracker::touchingIsToldOnce()
{
    TableFixture f(9);
    RowTracker tracker(f.table, f.rows);
    const QSignalSpy touched(&tracker, &RowTracker::touched);
    f.table.item(4, Column::Data)->setText("77");
    f.table.item(5, Column::Data)->setText("77");
    QCOMPARE(touched.size(), 1);
    tracker.takeChange();
    f.table.item(4, Column::Data)->setText("78");
    QCOMPARE(touched.size(), 2);
}

/// Many changes in any order, some of them taken together.
void TestRowTracker::anyChangesCanBeTakenBack()
{
    TableFixture f(12);
    RowTracker tracker(f.table, f.rows);
    std::mt19937 random(1);
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    QVector<QVector<CommandRow>> lists{f.rows.rows()};
    QVector<RowExchange> backs;
    for (int step = 0; step < 300; ++step) {
        const int row = below(f.rows.rowCount());
        switch (below(6)) {
        case 0:
            f.rows.insertEmptyRow(row);
            break;
        case 1:
            f.rows.cloneRow(row);
            break;
        case 2:
            f.rows.moveUp(row);
            break;
        case 3:
            f.rows.exchangeRows({row, below(f.rows.rowCount() - row + 1), {numberedRow(step)}});
            break;
        case 4:
            f.box(row)->click();
            break;
        default:
            f.table.item(row, Column::Data)->setText(QString::number(step));
            break;
        }
        if (below(3) > 0) {
            continue;
        }
        if (const std::optional<RowExchange> back = tracker.takeChange()) {
            backs.append(*back);
            lists.append(f.rows.rows());
        }
    }
    QVERIFY(backs.size() > 50);
    tracker.takeChange();
    f.rows.exchangeRows({0, f.rows.rowCount(), lists.last()});
    tracker.takeChange();
    while (!backs.isEmpty()) {
        lists.removeLast();
        f.rows.exchangeRows(backs.takeLast());
        QVERIFY(f.rows.rows() == lists.last());
    }
}

QTEST_MAIN(TestRowTracker)
#include "tst_rowtracker.moc"
