#include "tablefixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

class TestCellsInView : public QObject
{
    Q_OBJECT

private slots:
    void rowsOutOfViewRest();
    void scrollingWakesRowsAndLetsOthersRest();
    void theButtonWithTheFocusStays();
    void aTallerTableShowsMoreRows();
    void rowsThatMoveUpAreShown();
    void aTableFilledBeforeItIsShownShowsItsRows();
    void aRestingBoxIsReadAndChecked();
    void aWokenBoxTakesClicks();
    void insertedRowsShowAtOnce();
    void whatIsShownStandsInItsCell_data();
    void whatIsShownStandsInItsCell();
    void anOpenEditorMovesAlong();
};

namespace {

constexpr int manyRows = 100;

/// A shown table that has room for some ten rows.
struct ShownTable : TableFixture
{
    ShownTable()
        : TableFixture(manyRows)
    {
        table.resize(800, 400);
        table.show();
        table.setFocus();
        QCoreApplication::processEvents();
    }

    QWidget *button(int row) const { return table.cellWidget(row, CommandColumn::Send); }
    bool isShown(int row) const { return box(row)->isVisible() && button(row)->isVisible(); }
    bool rests(int row) const { return !box(row)->isVisible() && !button(row)->isVisible(); }
    int lastRowInView() const { return table.rowAt(table.viewport()->height() - 1); }
};

} // namespace

void TestCellsInView::rowsOutOfViewRest()
{
    const ShownTable shown;
    const int last = shown.lastRowInView();
    QVERIFY(last > 0 && last < manyRows - 1);
    for (int row = 0; row < manyRows; ++row) {
        QVERIFY2(row <= last ? shown.isShown(row) : shown.rests(row),
                 qPrintable(QString::number(row)));
    }
}

void TestCellsInView::scrollingWakesRowsAndLetsOthersRest()
{
    ShownTable shown;
    shown.table.verticalScrollBar()->setValue(50);
    QVERIFY(shown.rests(0));
    QVERIFY(shown.rests(49));
    QVERIFY(shown.isShown(50));
    QVERIFY(shown.isShown(shown.lastRowInView()));
    QVERIFY(shown.rests(shown.lastRowInView() + 1));
    shown.table.verticalScrollBar()->setValue(0);
    QVERIFY(shown.isShown(0));
    QVERIFY(shown.rests(50));
}

void TestCellsInView::theButtonWithTheFocusStays()
{
    ShownTable shown;
    shown.table.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.table));
    shown.button(1)->setFocus();
    shown.table.verticalScrollBar()->setValue(50);
    QVERIFY(shown.button(1)->hasFocus());
    QVERIFY(shown.rests(0));
    shown.button(50)->setFocus();
    shown.table.verticalScrollBar()->setValue(52);
    QVERIFY(shown.rests(1));
}

void TestCellsInView::aTallerTableShowsMoreRows()
{
    ShownTable shown;
    const int last = shown.lastRowInView();
    shown.table.resize(800, 800);
    QTRY_VERIFY(shown.isShown(last + 5));
}

void TestCellsInView::rowsThatMoveUpAreShown()
{
    ShownTable shown;
    const int last = shown.lastRowInView();
    QWidget *next = shown.button(last + 2);
    shown.table.removeRow(0);
    shown.table.removeRow(0);
    QTRY_VERIFY(next->isVisible());
}

void TestCellsInView::aTableFilledBeforeItIsShownShowsItsRows()
{
    TableFixture fixture(3);
    fixture.table.resize(800, 400);
    fixture.table.show();
    QVERIFY(fixture.box(0)->isVisible());
    QVERIFY(fixture.box(8)->isVisible());
}

void TestCellsInView::aRestingBoxIsReadAndChecked()
{
    ShownTable shown;
    QVERIFY(shown.rests(90));
    QCOMPARE(shown.rows.row(90).selected, true);
    shown.box(90)->setChecked(false);
    QCOMPARE(shown.rows.row(90).selected, false);
}

void TestCellsInView::aWokenBoxTakesClicks()
{
    ShownTable shown;
    shown.table.scrollToItem(shown.table.item(91, CommandColumn::Cmd));
    QTest::mouseClick(shown.box(91), Qt::LeftButton);
    QCOMPARE(shown.rows.row(91).selected, true);
}

void TestCellsInView::insertedRowsShowAtOnce()
{
    ShownTable shown;
    shown.rows.insertEmptyRow(2);
    QVERIFY(shown.isShown(2));
    shown.rows.setSelected(3, true);
    QVERIFY(shown.isShown(3));
}

void TestCellsInView::whatIsShownStandsInItsCell_data()
{
    QTest::addColumn<QVector<int>>("places");

    QTest::newRow("a row further") << QVector<int>{1};
    QTest::newRow("there and back") << QVector<int>{50, 0};
    QTest::newRow("to the end") << QVector<int>{3, manyRows};
    QTest::newRow("back from the end") << QVector<int>{manyRows, manyRows / 2};
}

void TestCellsInView::whatIsShownStandsInItsCell()
{
    QFETCH(QVector<int>, places);
    ShownTable shown;
    for (const int place : places) {
        shown.table.verticalScrollBar()->setValue(place);
    }
    QVERIFY(shown.table.rowAt(0) >= 0);
    for (int row = shown.table.rowAt(0); row <= shown.lastRowInView() && row >= 0; ++row) {
        const QModelIndex cell = shown.table.model()->index(row, CommandColumn::Send);
        QVERIFY(shown.isShown(row));
        QCOMPARE(shown.button(row)->geometry(), shown.table.visualRect(cell));
    }
}

void TestCellsInView::anOpenEditorMovesAlong()
{
    ShownTable shown;
    QTableWidgetItem *item = shown.table.item(5, CommandColumn::Description);
    shown.table.editItem(item);
    const auto *editor = shown.table.viewport()->findChild<QLineEdit *>();
    QVERIFY(editor != nullptr);
    const int top = editor->y();
    shown.table.verticalScrollBar()->setValue(2);
    QCOMPARE(editor->y() - top, -2 * shown.table.rowHeight(0));
    QCOMPARE(editor->y(), shown.table.visualItemRect(item).y());
}

QTEST_MAIN(TestCellsInView)
#include "tst_cellsinview.moc"
