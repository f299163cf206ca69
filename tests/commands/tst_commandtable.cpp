#include "tablefixture.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

namespace Column = CommandColumn;

class TestCommandTable : public QObject
{
    Q_OBJECT

private slots:
    void tableLooksAsBothTablesDo();
    void columnsAreSetUp_data();
    void columnsAreSetUp();
    void startsWithNineEmptyRows();
    void itemsHaveTheirRoles_data();
    void itemsHaveTheirRoles();
    void selectCellHoldsACenteredBox();
    void newSelectCellReplacesTheOldOne();
    void sendCellIsAFlatButton();
};

void TestCommandTable::tableLooksAsBothTablesDo()
{
    const TableFixture f;
    QCOMPARE(f.table.verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(f.table.verticalHeader()->defaultSectionSize(), 36);
    QVERIFY(f.table.verticalHeader()->isHidden());
    QCOMPARE(
        f.table.verticalScrollBar()->styleSheet(),
        QString(
            "QScrollBar:vertical{background:transparent;width:18px;margin-left:8px;}"
            "QScrollBar::handle:vertical{ background: #c0c0c0;width:10px;border-radius: 5px; "
            "min-height:91px; border-style:flat;}QScrollBar::handle:vertical::hover{ background: "
            "#c0c0c0;border-radius: 5px;width:10px; }QScrollBar::handle:vertical::pressed{ "
            "background: #c0c0c0;border-radius:5px;width:10px; }QScrollBar::sub-page:vertical "
            "{background: transparent; border-style:flat;}QScrollBar::add-page:vertical "
            "{background: transparent;border-style:flat;}QScrollBar::add-line:vertical{background: "
            "transparent;}QScrollBar::sub-line:vertical {background: transparent;}"));
    QCOMPARE(f.table.horizontalHeader()->styleSheet(),
             QString("QHeaderView::section{border:0px solid rgb(255,255,255);color: "
                     "#001560;background: #d9dfe7;height: 36px;font-size: 16px;min-width:60px;}"));
    QCOMPARE(f.table.styleSheet(),
             QString("QTableWidget{border:none;background: #ffffff;border-radius: "
                     "4px;}QTableWidget::Item{border:0px solid "
                     "rgb(255,255,255);height:36px;background: #ffffff;border-bottom:1px solid "
                     "#f3f3f3;}QTableWidget::Item::selected{color:#333333;background: #f5f5f5}"));
    QVERIFY(!f.table.showGrid());
    QCOMPARE(f.table.selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(f.table.selectionBehavior(), QAbstractItemView::SelectRows);
}

void TestCommandTable::columnsAreSetUp_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("hidden");

    QTest::newRow("Description") << 0 << 200 << int(QHeaderView::Fixed) << false;
    QTest::newRow("Select") << 1 << 75 << int(QHeaderView::Fixed) << false;
    QTest::newRow("CMD") << 2 << 50 << int(QHeaderView::Fixed) << false;
    QTest::newRow("Addr") << 3 << 90 << int(QHeaderView::Fixed) << false;
    QTest::newRow("Data") << 4 << 90 << int(QHeaderView::Stretch) << false;
    QTest::newRow("CRC") << 5 << 63 << int(QHeaderView::Fixed) << false;
    QTest::newRow("Send") << 6 << 63 << int(QHeaderView::Fixed) << false;
    QTest::newRow("DataType") << 7 << 63 << int(QHeaderView::Fixed) << true;
    QTest::newRow("OriginalData") << 8 << 150 << int(QHeaderView::Stretch) << true;
}

void TestCommandTable::columnsAreSetUp()
{
    QFETCH(int, column);
    QFETCH(int, width);
    QFETCH(int, mode);
    QFETCH(bool, hidden);
    TableFixture f;
    QCOMPARE(f.table.columnCount(), 9);
    const QTableWidgetItem *header = f.table.horizontalHeaderItem(column);
    QCOMPARE(header->text(), QString(QTest::currentDataTag()));
    const bool left = column == 4 || column == 8;
    QCOMPARE(header->textAlignment(), left ? int(Qt::AlignLeft | Qt::AlignVCenter) : 0);
    QCOMPARE(int(f.table.horizontalHeader()->sectionResizeMode(column)), mode);
    QCOMPARE(f.table.isColumnHidden(column), hidden);
    f.table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    f.table.setColumnHidden(column, false);
    QCOMPARE(f.table.columnWidth(column), width);
}

void TestCommandTable::startsWithNineEmptyRows()
{
    const TableFixture f;
    QCOMPARE(f.rows.rowCount(), 9);
    for (int row = 0; row < 9; ++row) {
        QCOMPARE(texts(f.rows.row(row)), emptyTexts());
        QVERIFY(f.box(row) != nullptr);
        QVERIFY(f.table.cellWidget(row, Column::Send) != nullptr);
    }
    QVERIFY(!f.table.signalsBlocked());
}

void TestCommandTable::itemsHaveTheirRoles_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("alignment");

    QTest::newRow("Description") << 0 << 132;
    QTest::newRow("CMD") << 2 << 132;
    QTest::newRow("Addr") << 3 << 132;
    QTest::newRow("Data") << 4 << 129;
    QTest::newRow("CRC") << 5 << 132;
    QTest::newRow("DataType") << 7 << 132;
    QTest::newRow("OriginalData") << 8 << 129;
}

void TestCommandTable::itemsHaveTheirRoles()
{
    QFETCH(int, column);
    QFETCH(int, alignment);
    TableFixture f;
    f.rows.insertDelayRow(1);
    f.rows.insertEmptyRow(2);
    for (int row = 0; row < 3; ++row) {
        const QTableWidgetItem *item = f.table.item(row, column);
        QCOMPARE(item->type(), 0);
        QCOMPARE(item->data(Qt::TextAlignmentRole), QVariant(alignment));
        QCOMPARE(item->font().weight(), 50);
        QCOMPARE(item->font().style(), QFont::StyleNormal);
        QVERIFY(item->data(Qt::FontRole).isValid());
        QCOMPARE(item->flags(), QTableWidgetItem().flags());
        QVERIFY(!item->data(Qt::UserRole).isValid());
    }
}

void TestCommandTable::selectCellHoldsACenteredBox()
{
    /// Remembers which objects' events it was shown.
    class Watcher : public QObject
    {
    public:
        bool eventFilter(QObject *object, QEvent * /*event*/) override
        {
            seen.insert(object);
            return false;
        }
        QSet<QObject *> seen;
    };
    QTableWidget table;
    Watcher watcher;
    const CommandTable rows(table, &watcher);
    QWidget *container = table.cellWidget(0, Column::Select);
    QCOMPARE(container->metaObject()->className(), "QWidget");
    auto *layout = qobject_cast<QHBoxLayout *>(container->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    const auto *box = qobject_cast<QCheckBox *>(layout->itemAt(0)->widget());
    QCOMPARE(box->checkState(), Qt::Unchecked);
    QCOMPARE(box->styleSheet(),
             QString("QCheckBox::indicator {width :  18px ;height :  18px ;}"
                     "QCheckBox::indicator:unchecked "
                     "{image:url(:/Image/Checkbox_point_uncheck.png);}"
                     "QCheckBox::indicator:unchecked:hover "
                     "{image:url(:/Image/Checkbox_point_uncheck.png);}"
                     "QCheckBox::indicator:checked{image:url(:/Image/Checkbox_point_check.png);}"
                     "QCheckBox::indicator:checked:hover"
                     "{image:url(:/Image/Checkbox_point_check.png);}"
                     ".QCheckBox{margin-left:7px;}"));
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(container, &event);
    QVERIFY(watcher.seen.contains(container));
}

void TestCommandTable::newSelectCellReplacesTheOldOne()
{
    TableFixture f;
    const QPointer<QCheckBox> former = f.box(2);
    f.rows.setSelected(2, true);
    QVERIFY(f.box(2) != former);
    QCOMPARE(f.box(2)->checkState(), Qt::Checked);
    f.rows.setSelected(2, false);
    QCOMPARE(f.box(2)->checkState(), Qt::Unchecked);
}

void TestCommandTable::sendCellIsAFlatButton()
{
    TableFixture f;
    auto *button = qobject_cast<QPushButton *>(f.table.cellWidget(3, Column::Send));
    QCOMPARE(button->text(), QString());
    QVERIFY(button->isFlat());
    QVERIFY(!button->isDefault());
    QVERIFY(!button->autoDefault());
    QCOMPARE(button->styleSheet(), QString("background:transparent;Color:#00A2FF;font-family:Arial;"
                                           "font-size: 23px;font-weight: bold;"));
    QSignalSpy requested(&f.rows, &CommandTable::sendRequested);
    button->click();
    QCOMPARE(requested.count(), 1);
}

QTEST_MAIN(TestCommandTable)
#include "tst_commandtable.moc"
