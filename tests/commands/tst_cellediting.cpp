#include "cellbench.h"
#include "commands/commandtable.h"
#include "widgets/tableitems.h"

#include <QToolTip>
#include <QtTest>

namespace Column = CommandColumn;

class TestCellEditing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void leavingAnAddressNormalisesIt_data();
    void leavingAnAddressNormalisesIt();
    void enterInAddrGoesOnToData_data();
    void enterInAddrGoesOnToData();
    void walkDownTheTableProposesAddresses();
    void addressIsProposedUnderAnother_data();
    void addressIsProposedUnderAnother();
    void enterInTheLastRowsDataEndsTheWalk();
    void enterInOtherColumnsDoesNothing_data();
    void enterInOtherColumnsDoesNothing();
    void onlyAddressesAreNormalised_data();
    void onlyAddressesAreNormalised();
    void aFifthDigitAndOtherSignsAreRefused();
    void eachKeyIsCommitted();
    void crcOfTheCurrentRowIsComputed();
    void aDelayRowShowsNoCrc();
    void rowsMayChangeUnderAnEditor_data();
    void rowsMayChangeUnderAnEditor();
    void anEditorGoesAlongWithItsRow();
    void theTipShowsTheFifthColumn_data();
    void theTipShowsTheFifthColumn();

private:
    QTableWidget *table() const { return m_bench->table(); }
    QString text(int row, int column) const { return m_bench->text(row, column); }
    QTableWidgetItem *editedItem() const { return m_bench->editedItem(); }
    QLineEdit *edit(int row, int column) const { return m_bench->edit(row, column); }
    static void press(Qt::Key key) { CellBench::press(key); }
    static void type(const char *keys) { CellBench::type(keys); }

    std::unique_ptr<CellBench> m_bench;
};

void TestCellEditing::init()
{
    m_bench = std::make_unique<CellBench>();
}

void TestCellEditing::cleanup()
{
    m_bench.reset();
}

void TestCellEditing::leavingAnAddressNormalisesIt_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"focus", "click", "tab", "backtab", "current cell"}) {
        QTest::newRow(way) << way;
    }
}

void TestCellEditing::leavingAnAddressNormalisesIt()
{
    QFETCH(QString, way);
    QVERIFY(edit(1, Column::Addr) != nullptr);
    type("1a");
    if (way == "focus") {
        m_bench->window.edit("lineEdit_SBytes")->setFocus();
    } else if (way == "click") {
        const QRect other = table()->visualItemRect(table()->item(0, Column::Description));
        QTest::mouseClick(m_bench->window.window().windowHandle(), Qt::LeftButton, {},
                          table()->viewport()->mapTo(&m_bench->window.window(), other.center()));
    } else if (way == "tab") {
        press(Qt::Key_Tab);
    } else if (way == "backtab") {
        press(Qt::Key_Backtab);
    } else {
        table()->viewport()->setFocus();
        table()->setCurrentCell(0, 0);
    }
    QCOMPARE(text(1, Column::Addr), QString("001A"));
    QVERIFY(!table()->isPersistentEditorOpen(table()->item(1, Column::Addr)));
    QCOMPARE(table()->item(1, Column::Addr)->textAlignment(), 132);
}

void TestCellEditing::enterInAddrGoesOnToData_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestCellEditing::enterInAddrGoesOnToData()
{
    QFETCH(int, key);
    edit(1, Column::Addr);
    type("12");
    press(static_cast<Qt::Key>(key));
    QCOMPARE(text(1, Column::Addr), QString("0012"));
    QVERIFY(!table()->isPersistentEditorOpen(table()->item(1, Column::Addr)));
    QCOMPARE(editedItem(), table()->item(1, Column::Data));
}

void TestCellEditing::walkDownTheTableProposesAddresses()
{
    table()->item(0, Column::Cmd)->setText("01");
    edit(0, Column::Addr);
    type("fe");
    press(Qt::Key_Return);
    type("00 00 01");
    press(Qt::Key_Return);
    QCOMPARE(editedItem(), table()->item(1, Column::Addr));
    press(Qt::Key_Enter);
    type("02");
    press(Qt::Key_Enter);
    QCOMPARE(editedItem(), table()->item(2, Column::Addr));
    press(Qt::Key_Return);
    QCOMPARE(editedItem(), table()->item(2, Column::Data));
    QCOMPARE(QStringList({text(0, Column::Addr), text(1, Column::Addr), text(2, Column::Addr)}),
             QStringList({"00FE", "00FF", "0100"}));
    QCOMPARE(QStringList({text(0, Column::Data), text(1, Column::Data), text(2, Column::Data)}),
             QStringList({"00 00 01", "02", ""}));
    QCOMPARE(text(1, Column::Crc), crcCellText("00FF02"));
}

void TestCellEditing::addressIsProposedUnderAnother_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("above");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("address");

    QTest::newRow("next one") << 5 << "0010"
                              << ""
                              << "0011";
    QTest::newRow("carry") << 5 << "00FF"
                           << ""
                           << "0100";
    QTest::newRow("past four digits") << 5 << "FFFF"
                                      << ""
                                      << "10000";
    QTest::newRow("nothing above") << 5 << ""
                                   << ""
                                   << "";
    QTest::newRow("first row") << 0 << ""
                               << ""
                               << "";
    QTest::newRow("typed one stays") << 5 << "0010"
                                     << "7"
                                     << "0007";
}

void TestCellEditing::addressIsProposedUnderAnother()
{
    QFETCH(int, row);
    QFETCH(QString, above);
    QFETCH(QString, typed);
    QFETCH(QString, address);
    if (row > 0) {
        table()->item(row - 1, Column::Addr)->setText(above);
    }
    edit(row, Column::Addr);
    type(qPrintable(typed));
    press(Qt::Key_Return);
    QCOMPARE(text(row, Column::Addr), address);
    QCOMPARE(editedItem(), table()->item(row, Column::Data));
}

void TestCellEditing::enterInTheLastRowsDataEndsTheWalk()
{
    edit(8, Column::Data);
    type("01");
    press(Qt::Key_Return);
    QCOMPARE(text(8, Column::Data), QString("01"));
    QCOMPARE(table()->rowCount(), 9);
    QVERIFY(editedItem() == nullptr);
    QCOMPARE(table()->currentRow(), 8);
}

void TestCellEditing::enterInOtherColumnsDoesNothing_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("Description") << int(Column::Description);
    QTest::newRow("CMD") << int(Column::Cmd);
    QTest::newRow("CRC") << int(Column::Crc);
}

void TestCellEditing::enterInOtherColumnsDoesNothing()
{
    QFETCH(int, column);
    table()->setCurrentCell(1, column);
    m_bench->window.call("on_DataEnter");
    QCOMPARE(table()->currentRow(), 1);
    QCOMPARE(table()->currentColumn(), column);
    QVERIFY(editedItem() == nullptr);
}

void TestCellEditing::onlyAddressesAreNormalised_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("after");

    QTest::newRow("Description") << int(Column::Description) << "a";
    QTest::newRow("CMD") << int(Column::Cmd) << "a";
    QTest::newRow("Addr") << int(Column::Addr) << "000A";
    QTest::newRow("Data") << int(Column::Data) << "a";
}

void TestCellEditing::onlyAddressesAreNormalised()
{
    QFETCH(int, column);
    table()->setCurrentCell(1, column);
    table()->item(1, column)->setText("a");
    m_bench->window.call("on_DataEdited");
    QTEST(text(1, column), "after");
}

void TestCellEditing::aFifthDigitAndOtherSignsAreRefused()
{
    const QLineEdit *editor = edit(0, Column::Addr);
    type("g1x2 aF5");
    QCOMPARE(editor->text(), QString("12aF"));
    press(Qt::Key_Return);
    QCOMPARE(text(0, Column::Addr), QString("12AF"));
}

void TestCellEditing::eachKeyIsCommitted()
{
    const QLineEdit *editor = edit(0, Column::Addr);
    type("12");
    QCOMPARE(text(0, Column::Addr), QString("12"));
    QCOMPARE(editor->property("cursorPos"), QVariant(2));
    QCOMPARE(text(0, Column::Crc), crcCellText("12"));
    press(Qt::Key_Left);
    QCOMPARE(editor->property("cursorPos"), QVariant(1));
}

void TestCellEditing::crcOfTheCurrentRowIsComputed()
{
    m_bench->window.setRow(1, "01", "0300", "00 00 01");
    QCOMPARE(text(1, Column::Crc), QString("0A 84"));
    {
        const QSignalBlocker blocker(table());
        table()->item(1, Column::Crc)->setText("old");
    }
    table()->item(0, Column::Cmd)->setText("05");
    QCOMPARE(text(0, Column::Crc), QString());
    QCOMPARE(text(1, Column::Crc), QString("0A 84"));
    QVERIFY(!table()->signalsBlocked());
}

void TestCellEditing::aDelayRowShowsNoCrc()
{
    m_bench->window.setRow(1, "01", "0300", "00 00 01");
    QCOMPARE(text(1, Column::Crc), QString("0A 84"));
    table()->item(1, Column::Cmd)->setText("++");
    QCOMPARE(text(1, Column::Crc), QString());
}

void TestCellEditing::rowsMayChangeUnderAnEditor_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("rest");

    for (const int column : {int(Column::Addr), int(Column::Data)}) {
        QTest::addRow("removed, %d", column) << "remove" << column << QStringList{"0", "1", "3"};
        QTest::addRow("moved up, %d", column) << "up" << column << QStringList{"0", "*", "1", "3"};
        QTest::addRow("moved down, %d", column)
            << "down" << column << QStringList{"0", "1", "3", "*"};
        QTest::addRow("cleared, %d", column) << "clear" << column << QStringList{"", "", ""};
        QTest::addRow("reloaded, %d", column) << "reload" << column << QStringList{"A", "B", "C"};
    }
}

void TestCellEditing::rowsMayChangeUnderAnEditor()
{
    QFETCH(QString, change);
    QFETCH(int, column);
    QFETCH(QStringList, rest);
    auto *rows = m_bench->window.window().findChild<CommandTable *>();
    for (int row = 0; row < 4; ++row) {
        table()->item(row, column)->setText(QString::number(row));
    }
    edit(2, column);
    type("77");
    const QString edited = column == Column::Addr ? "77" : text(2, column);
    if (change == "remove") {
        table()->removeRow(2);
    } else if (change == "up") {
        rows->moveUp(2);
    } else if (change == "down") {
        rows->moveDown(2);
    } else if (change == "clear") {
        m_bench->window.click("pushButton_ClearCommand");
    } else {
        CommandRow content = emptyRow();
        QVector<CommandRow> contents;
        for (const char *name : {"A", "B", "C"}) {
            content.addr = content.data = name;
            contents.append(content);
        }
        rows->replaceRows(contents);
    }
    QCoreApplication::processEvents();
    m_bench->window.edit("lineEdit_SBytes")->setFocus();
    for (int row = 0; row < rest.size(); ++row) {
        const QString expected = rest.at(row) == "*" ? edited : rest.at(row);
        QVERIFY2(text(row, column) == expected, qPrintable(text(row, column)));
    }
    QVERIFY(edit(0, column) != nullptr);
    QCOMPARE(editedItem(), table()->item(0, column));
}

void TestCellEditing::anEditorGoesAlongWithItsRow()
{
    edit(2, Column::Addr);
    type("7");
    m_bench->window.window().findChild<CommandTable *>()->insertEmptyRow(1);
    type("8");
    press(Qt::Key_Return);
    QCOMPARE(text(2, Column::Addr), QString());
    QCOMPARE(text(3, Column::Addr), QString("0078"));
    QCOMPARE(editedItem(), table()->item(3, Column::Data));
}

void TestCellEditing::theTipShowsTheFifthColumn_data()
{
    QTest::addColumn<QString>("table");

    QTest::newRow("CRC of a command") << "tableWidget_Register";
    QTest::newRow("Data of a message") << "tableWidget_Message";
}

void TestCellEditing::theTipShowsTheFifthColumn()
{
    QFETCH(QString, table);
    auto *widget = m_bench->window.find<QTableWidget>(qPrintable(table));
    m_bench->window.window().resize(1120, 760);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    {
        const QSignalBlocker blocker(widget);
        setCentredItem(*widget, 0, 4, "no tip");
        setCentredItem(*widget, 0, 5, table);
    }
    QVERIFY(widget->hasMouseTracking());
    QTest::mouseMove(widget->viewport(), widget->visualItemRect(widget->item(0, 4)).center());
    QVERIFY(!QToolTip::isVisible());
    QTest::mouseMove(widget->viewport(), widget->visualItemRect(widget->item(0, 5)).center());
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), table);
}

QTEST_MAIN(TestCellEditing)
#include "tst_cellediting.moc"
