#include "commands/cellwidgets.h"
#include "tablefixture.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

#include <functional>
#include <utility>

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
    void widgetsInViewStandInTheirCells_data();
    void widgetsInViewStandInTheirCells();
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
    int firstRowInView() const { return table.rowAt(0); }
    int lastRowInView() const
    {
        const int last = table.rowAt(table.viewport()->height() - 1);
        return last < 0 ? table.rowCount() - 1 : last;
    }
    QScrollBar &bar() const { return *table.verticalScrollBar(); }

    /// The first cell in view whose widget isn't shown at its place; empty where there is none.
    QString misplacedCell() const
    {
        for (int row = firstRowInView(); row >= 0 && row <= lastRowInView(); ++row) {
            for (const int column : {CommandColumn::Select, CommandColumn::Send}) {
                const QRect place = table.visualRect(table.model()->index(row, column));
                const QWidget *widget = table.cellWidget(row, column);
                if (!place.isEmpty() && (!widget->isVisible() || widget->geometry() != place)) {
                    return QString("row %1, column %2").arg(row).arg(column);
                }
            }
        }
        return {};
    }
};

void turnWheel(const ShownTable &shown, int delta)
{
    const QPoint middle = shown.table.viewport()->rect().center();
    QWheelEvent event(middle, shown.table.viewport()->mapToGlobal(middle), {}, {0, delta},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(shown.table.viewport(), &event);
}

/// What a model does that somebody else changes.
void insertRowIntoModel(ShownTable &shown, int row)
{
    shown.table.model()->insertRows(row, 1);
    setSelectCell(shown.table, row, CommandColumn::Select, true, nullptr);
    setSendCell(shown.table, row, CommandColumn::Send, {});
}

using TableStep = std::function<void(ShownTable &)>;

const std::pair<const char *, void (*)(ShownTable &)> tableSteps[] = {
    {"row inserted", [](ShownTable &s) { s.rows.insertEmptyRow(s.firstRowInView() + 1); }},
    {"row inserted above", [](ShownTable &s) { s.rows.insertEmptyRow(0); }},
    {"row inserted below", [](ShownTable &s) { s.rows.insertEmptyRow(s.table.rowCount()); }},
    {"delay row", [](ShownTable &s) { s.rows.insertDelayRow(s.lastRowInView()); }},
    {"clone", [](ShownTable &s) { s.rows.cloneRow(s.firstRowInView()); }},
    {"moved up", [](ShownTable &s) { s.rows.moveUp(s.firstRowInView()); }},
    {"moved down", [](ShownTable &s) { s.rows.moveDown(s.lastRowInView()); }},
    {"cleared", [](ShownTable &s) { s.rows.clear(); }},
    {"replaced", [](ShownTable &s) { s.rows.replaceRows(QVector<CommandRow>(300)); }},
    {"replaced by fewer", [](ShownTable &s) { s.rows.replaceRows(QVector<CommandRow>(12)); }},
    {"new box", [](ShownTable &s) { s.rows.setSelected(s.lastRowInView(), true); }},
    {"new box out of view", [](ShownTable &s) { s.rows.setSelected(30, true); }},
    {"row removed", [](ShownTable &s) { s.table.removeRow(s.firstRowInView()); }},
    {"rows removed above", [](ShownTable &s) { s.table.model()->removeRows(0, 20); }},
    {"rows removed at the end", [](ShownTable &s) { s.table.setRowCount(40); }},
    {"row inserted into the model", [](ShownTable &s) { insertRowIntoModel(s, 52); }},
    {"row put in place of a removed one",
     [](ShownTable &s) {
         s.table.model()->removeRows(s.firstRowInView(), 1);
         insertRowIntoModel(s, s.lastRowInView());
     }},
    {"row hidden", [](ShownTable &s) { s.table.hideRow(s.firstRowInView()); }},
    {"row shown again",
     [](ShownTable &s) {
         s.table.hideRow(s.firstRowInView() + 1);
         QCoreApplication::processEvents();
         s.table.showRow(s.firstRowInView() + 1);
     }},
    {"taller row", [](ShownTable &s) { s.table.setRowHeight(s.firstRowInView(), 100); }},
    {"wider column", [](ShownTable &s) { s.table.setColumnWidth(0, 250); }},
    {"column hidden", [](ShownTable &s) { s.table.hideColumn(0); }},
    {"columns exchanged", [](ShownTable &s) { s.table.horizontalHeader()->moveSection(1, 6); }},
    {"wheel down", [](ShownTable &s) { turnWheel(s, -360); }},
    {"wheel up", [](ShownTable &s) { turnWheel(s, 360); }},
    {"page down", [](ShownTable &s) { QTest::keyClick(&s.table, Qt::Key_PageDown); }},
    {"page up", [](ShownTable &s) { QTest::keyClick(&s.table, Qt::Key_PageUp); }},
    {"to the end", [](ShownTable &s) { s.table.scrollToBottom(); }},
    {"to the top", [](ShownTable &s) { s.table.scrollToTop(); }},
    {"to an item", [](ShownTable &s) { s.table.scrollToItem(s.table.item(70, 0)); }},
    {"cell by cell", [](ShownTable &s) { s.table.setCurrentCell(77, CommandColumn::Send); }},
    {"slider", [](ShownTable &s) { s.bar().setSliderPosition(33); }},
    {"sideways",
     [](ShownTable &s) {
         s.table.resize(420, 400);
         QCoreApplication::processEvents();
         s.table.horizontalScrollBar()->setValue(s.table.horizontalScrollBar()->maximum());
     }},
    {"scrolled by pixels",
     [](ShownTable &s) {
         s.table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
         QCoreApplication::processEvents();
         s.bar().setValue(1234);
     }},
    {"taller", [](ShownTable &s) { s.table.resize(800, 800); }},
    {"lower", [](ShownTable &s) { s.table.resize(800, 200); }},
    {"narrower", [](ShownTable &s) { s.table.resize(600, 400); }},
    {"other font", [](ShownTable &s) { s.table.setFont(QFont("Sans", 30)); }},
    {"font of the header",
     [](ShownTable &s) { s.table.horizontalHeader()->setFont(QFont("Sans", 30)); }},
    {"style sheet", [](ShownTable &s) { s.table.setStyleSheet("QTableWidget{border:9px solid}"); }},
    {"hidden and shown",
     [](ShownTable &s) {
         s.table.hide();
         s.bar().setValue(44);
         s.table.show();
     }},
    {"scrolled while rows are replaced",
     [](ShownTable &s) {
         s.rows.replaceRows(QVector<CommandRow>(200));
         s.bar().setValue(150);
     }},
    {"inserted and scrolled at once",
     [](ShownTable &s) {
         s.rows.insertEmptyRow(s.firstRowInView());
         s.bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
         s.table.removeRow(s.firstRowInView());
     }},
};

} // namespace

Q_DECLARE_METATYPE(TableStep)

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

void TestCellsInView::widgetsInViewStandInTheirCells_data()
{
    QTest::addColumn<TableStep>("step");

    for (const auto &[name, step] : tableSteps) {
        QTest::newRow(name) << TableStep(step);
    }
}

/// Each step at the top of the table, in the middle and at its end, and after it a row further.
void TestCellsInView::widgetsInViewStandInTheirCells()
{
    QFETCH(TableStep, step);
    for (const int top : {0, manyRows / 2, manyRows}) {
        ShownTable shown;
        shown.bar().setValue(top);
        QCOMPARE(shown.misplacedCell(), QString());
        step(shown);
        QTRY_COMPARE(shown.misplacedCell(), QString());
        shown.bar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(shown.misplacedCell(), QString());
        shown.bar().triggerAction(QAbstractSlider::SliderPageStepSub);
        QCOMPARE(shown.misplacedCell(), QString());
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
