#include "app/messagepanel.h"
#include "contrast.h"
#include "contrastwindow.h"

#include <QMenu>
#include <QTabBar>
#include <QtTest>

class TestContrast : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theWindowIsReadable_data();
    void theWindowIsReadable();
    void whatALoopDisablesIsReadable();
    void cellsAreReadable();
    void anEditedCellIsReadable();
    void selectedTextIsReadable();
    void buttonsUnderTheMouseAreReadable();
    void aDesktopThatTurnsDarkChangesNothing();
    void edgesAreSeen_data();
    void edgesAreSeen();
};

namespace {

double contrastOfTab(const QTabBar &bar, int tab)
{
    return contrastIn(bar, bar.tabRect(tab).adjusted(4, 4, -8, -4));
}

double contrastOfCell(QTableWidget &table, int row, int column)
{
    const QRect cell = table.visualRect(table.model()->index(row, column));
    // Beside the mark of a selected row, and the frame of the current cell.
    return contrastIn(*table.viewport(), cell.adjusted(6, 2, -2, -3));
}

} // namespace

void TestContrast::init()
{
    makeDesktopDark();
}

void TestContrast::theWindowIsReadable_data()
{
    QTest::addColumn<int>("tab");

    QTest::newRow("Uart") << 0;
    QTest::newRow("HID") << 1;
}

void TestContrast::theWindowIsReadable()
{
    QFETCH(int, tab);
    ContrastWindow window;
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    window.listPorts();
    QCoreApplication::processEvents();
    QCOMPARE(unreadable(window.window()), QStringList());
    const QTabBar &bar = *window.find<QTabWidget>("tabWidget")->tabBar();
    QVERIFY(contrastOfTab(bar, 0) >= readable);
    QVERIFY(contrastOfTab(bar, 1) >= readable);
}

void TestContrast::whatALoopDisablesIsReadable()
{
    ContrastWindow window;
    const TestPort port;
    window.open(port);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    window.click("pushButton_Start_Loop");
    QVERIFY(!window.edit("lineEdit_SBytes")->isEnabled());
    QVERIFY(!window.combo("comboBox_Baudrate")->isEnabled());
    QCOMPARE(unreadable(window.window()), QStringList());
    const QTabBar &bar = *window.find<QTabWidget>("tabWidget")->tabBar();
    QVERIFY(!bar.isEnabled());
    QVERIFY(contrastOfTab(bar, 0) >= readable);
    QVERIFY(contrastOfTab(bar, 1) >= readable);
    window.click("pushButton_Start_Loop");
}

void TestContrast::cellsAreReadable()
{
    ContrastWindow window;
    const TestPort port;
    window.open(port);
    for (const int row : {0, 1}) {
        window.commands()->item(row, CommandColumn::Description)->setText("Register");
        window.setRow(row, "03", "0300", "01 02");
        window.checkRow(row);
    }
    window.click("pushButton_SendAll");
    QTRY_COMPARE(window.messageCount(), 2);
    window.commands()->selectRow(1);
    window.messages()->selectRow(1);
    window.window().findChild<MessagePanel *>()->setShownTime(ShownTime::OfDay);
    QTRY_VERIFY(window.messages()->updatesEnabled());
    for (const int row : {0, 1}) {
        for (const int column : {CommandColumn::Description, CommandColumn::Cmd,
                                 CommandColumn::Addr, CommandColumn::Data, CommandColumn::Crc}) {
            QVERIFY(contrastOfCell(*window.commands(), row, column) >= readable);
        }
        for (const int column : {0, 1, 2, 3, 4, 5, 7}) {
            QVERIFY(contrastOfCell(*window.messages(), row, column) >= readable);
        }
    }
}

void TestContrast::anEditedCellIsReadable()
{
    ContrastWindow window;
    for (const int column : {CommandColumn::Description, CommandColumn::Addr}) {
        QTableWidgetItem *item = window.commands()->item(0, column);
        item->setText("0300");
        window.commands()->editItem(item);
        auto *editor = window.commands()->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor != nullptr);
        QVERIFY(contrastIn(*editor, editor->rect().adjusted(3, 4, -3, -4)) >= readable);
        QTest::keyClick(editor, Qt::Key_Escape);
        QTRY_VERIFY(window.commands()->viewport()->findChild<QLineEdit *>() == nullptr);
    }
}

void TestContrast::selectedTextIsReadable()
{
    ContrastWindow window;
    QLineEdit &field = *window.edit("lineEdit_SBytes");
    field.setFocus();
    field.selectAll();
    QTRY_VERIFY(field.hasFocus());
    const int width = field.fontMetrics().horizontalAdvance(field.text());
    QVERIFY(contrastIn(field, QRect(12, 10, width - 8, field.height() - 20)) >= readable);
}

void TestContrast::buttonsUnderTheMouseAreReadable()
{
    ContrastWindow window;
    QPushButton &button = *window.button("pushButton_SaveMessage");
    // A button is entered from somewhere.
    for (const QPoint place : {QPoint(-9, -9), button.rect().center()}) {
        QTest::mouseMove(window.window().windowHandle(), button.mapTo(&window.window(), place));
    }
    QTRY_VERIFY(button.underMouse());
    QVERIFY(contrastIn(button, textRoom(button)) >= readable);
}

void TestContrast::aDesktopThatTurnsDarkChangesNothing()
{
    ContrastWindow window;
    window.commands()->item(0, CommandColumn::Description)->setText("Register");
    makeDesktopDark();
    QTRY_VERIFY(contrastOfCell(*window.commands(), 0, CommandColumn::Description) >= readable);
    QMenu menu;
    QVERIFY(menu.palette().color(QPalette::Window).lightness() > 200);
}

void TestContrast::edgesAreSeen_data()
{
    QTest::addColumn<int>("tab");

    for (const char *name :
         {"lineEdit_SBytes", "comboBox_Comm", "comboBox_Parity", "pushButton_SendAll",
          "lineEdit_StepValue", "lineEdit_CycleTime", "lineEdit_Repeat", "pushButton_ClearMessage",
          "pushButton_SaveMessage", "pushButton_LoadCommand", "pushButton_SaveCommand",
          "pushButton_ClearCommand"}) {
        QTest::newRow(name) << 0;
    }
    for (const char *name :
         {"lineEdit_RpID", "lineEdit_SBytes_2", "comboBox_Hid_Device", "pushButton_SendAll_2"}) {
        QTest::newRow(name) << 1;
    }
}

void TestContrast::edgesAreSeen()
{
    QFETCH(int, tab);
    ContrastWindow window;
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    QCoreApplication::processEvents();
    auto &widget = *window.find<QWidget>(QTest::currentDataTag());
    QVERIFY(edgeContrast(widget) >= seen);
    widget.setFocus();
    QTRY_VERIFY(widget.hasFocus());
    QVERIFY(edgeContrast(widget) >= seen);
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
