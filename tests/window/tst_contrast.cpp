#include "app/messagepanel.h"
#include "codec/directeditor.h"
#include "commands/unitlineedit.h"
#include "contrast.h"
#include "filedialoguser.h"
#include "menuuser.h"
#include "windowdriver.h"

#include <QGroupBox>
#include <QLabel>
#include <QTabBar>
#include <QToolTip>
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
    void listsAreReadable_data();
    void listsAreReadable();
    void boxesAreReadable();
    void menusAreReadable();
    void tipsAreReadable();
    void theEditorIsReadable();
    void fileDialogsAreReadable();
    void aDesktopThatTurnsDarkChangesNothing();

    void edgesAreSeen_data();
    void edgesAreSeen();
    void edgesOfBoxesAreSeen();
};

namespace {

constexpr double readable = 4.5;
constexpr double seen = 3;
constexpr QSize usualSize(1120, 760);

void makeDesktopDark()
{
    QPalette dark(QColor(0x31, 0x36, 0x3B), QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    dark.setColor(QPalette::ToolTipBase, QColor(0x31, 0x36, 0x3B));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::HighlightedText}) {
        dark.setColor(role, QColor(0xFC, 0xFC, 0xFC));
        dark.setColor(QPalette::Disabled, role, QColor(0x65, 0x68, 0x6A));
    }
    QApplication::setPalette(dark);
    for (const char *kind :
         {"QMenu", "QTipLabel", "QComboBox", "QAbstractItemView", "QMessageBox"}) {
        QApplication::setPalette(dark, kind);
    }
}

/// Both colours of these are fixed where they are disabled, busy or under the mouse.
bool isLinkOrLoopButton(const QWidget &widget)
{
    const QStringList names{"pushButton_OpenCom", "pushButton_ConnectHID", "pushButton_Start_Loop"};
    return names.contains(widget.objectName());
}

QString textOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return label->text();
    }
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        return isLinkOrLoopButton(widget) ? QString() : button->text();
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        return edit->text();
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        return box->currentIndex() < 0 ? box->placeholderText() : box->currentText();
    }
    return {};
}

/// Where the text is: without frames, an arrow, the unit.
QRect textRoom(const QWidget &widget)
{
    constexpr int frame = 4;
    constexpr int arrow = 34;
    QRect room = widget.rect();
    if (qobject_cast<const QLabel *>(&widget) == nullptr) {
        room.adjust(frame, frame, -frame, -frame);
    }
    if (qobject_cast<const QComboBox *>(&widget) != nullptr) {
        room.setRight(widget.width() - arrow);
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        room.setRight(room.right() - edit->textMargins().right());
    }
    return room;
}

/// As it is seen: a widget alone would be grabbed without the ground that it stands on.
double contrastIn(const QWidget &widget, const QRect &room)
{
    QWidget &window = *widget.window();
    return textContrast(
        window.grab({widget.mapTo(&window, room.topLeft()), room.size()}).toImage());
}

QString nameOf(const QWidget &widget)
{
    return widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
}

/// The widgets of a window whose texts can't be read, each with its contrast.
QStringList unreadable(const QWidget &window)
{
    QStringList names;
    int texts = 0;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || !widget->isVisible() || textOf(*widget).isEmpty() ||
            qobject_cast<const UnitLineEdit *>(widget->parentWidget()) != nullptr) {
            continue;
        }
        ++texts;
        const double found = contrastIn(*widget, textRoom(*widget));
        if (found < readable) {
            names.append(nameOf(*widget) + ' ' + QString::number(found));
        }
    }
    return texts > 0 ? names : QStringList("no texts");
}

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

class ContrastWindow : public WindowDriver
{
public:
    ContrastWindow()
    {
        window().resize(usualSize);
        // A blinking cursor would count as text.
        find<QTabWidget>("tabWidget")->tabBar()->setFocus();
    }

    DirectEditor &editor() { return *window().findChild<DirectEditor *>(); }
};

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

void TestContrast::listsAreReadable_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name : {"comboBox_Baudrate", "comboBox_DataBit", "comboBox_StopBit",
                             "comboBox_Parity", "comboBox_dataType", "comboBox_encode"}) {
        QTest::newRow(name) << name;
    }
}

void TestContrast::listsAreReadable()
{
    QFETCH(QString, name);
    ContrastWindow window;
    auto &box = *window.window().findChild<QComboBox *>(name);
    box.setEnabled(true);
    box.window()->show();
    box.setCurrentIndex(0);
    box.showPopup();
    const QAbstractItemView &list = *box.view();
    QTRY_VERIFY(list.isVisible());
    for (const int row : {0, 1}) {
        const QRect item = list.visualRect(list.model()->index(row, 0));
        const QRect shown = item.adjusted(2, 2, -2, -2) & list.viewport()->rect();
        QVERIFY(contrastIn(*list.viewport(), shown) >= readable);
    }
    box.hidePopup();
}

void TestContrast::boxesAreReadable()
{
    ContrastWindow window;
    MessageBoxes boxes;
    QStringList found;
    int shown = 0;
    connect(&boxes, &MessageBoxes::shown, this, [&] {
        const QWidget &box = *QApplication::activeModalWidget();
        found.append(unreadable(box));
        QVERIFY(!box.windowIcon().isNull());
        ++shown;
    });
    boxes.answerWith(QMessageBox::No);
    window.click("pushButton_SendAll");
    window.click("pushButton_OpenCom");
    window.setRow(0, "01", "0300", "01");
    window.window().close();
    QCOMPARE(shown, 3);
    QCOMPARE(boxes.titles(), QStringList({"Message", "UART", "Message"}));
    QCOMPARE(found, QStringList());
}

void TestContrast::menusAreReadable()
{
    ContrastWindow window;
    MenuUser menus;
    int entries = 0;
    connect(&menus, &MenuUser::shown, this, [&](QMenu *menu) {
        menu->actions().constLast()->setEnabled(false);
        menu->setActiveAction(menu->actions().constFirst());
        for (QAction *action : menu->actions()) {
            QVERIFY(contrastIn(*menu, menu->actionGeometry(action)) >= readable);
            ++entries;
        }
    });
    QTableWidget &table = *window.commands();
    emit table.customContextMenuRequested(table.visualRect(table.model()->index(0, 0)).center());
    QTRY_VERIFY(entries > 2);
}

void TestContrast::tipsAreReadable()
{
    const ContrastWindow window;
    QToolTip::showText(QPoint(100, 100), "01 02 03");
    QVERIFY(QToolTip::isVisible());
    const QWidget *tip = nullptr;
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        tip = widget->inherits("QTipLabel") && widget->isVisible() ? widget : tip;
    }
    QVERIFY(tip != nullptr);
    QVERIFY(contrastIn(*tip, tip->rect().adjusted(2, 2, -2, -2)) >= readable);
    QToolTip::hideText();
}

void TestContrast::theEditorIsReadable()
{
    ContrastWindow window;
    DirectEditor &editor = window.editor();
    editor.editCmd = "03";
    editor.editAddr = "0300";
    editor.editData = "00010002";
    editor.editType = "short";
    editor.loadFromMembers();
    editor.show();
    editor.findChild<QPushButton *>("pushButton_cancel")->setFocus();
    QVERIFY(!editor.findChild<QLineEdit *>("lineEdit_Data")->isEnabled());
    QVERIFY(!editor.findChild<QComboBox *>("comboBox_encode")->isEnabled());
    QCOMPARE(unreadable(editor), QStringList());
    for (const QGroupBox *group : editor.findChildren<QGroupBox *>()) {
        QVERIFY(contrastIn(*group, QRect(10, 0, 40, 14)) >= readable);
    }
    editor.activateWindow();
    for (const char *name : {"comboBox_dataType", "lineEdit_originalData", "lineEdit_Od"}) {
        auto &field = *editor.findChild<QWidget *>(name);
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        QVERIFY(edgeContrast(field) >= seen);
    }
}

void TestContrast::fileDialogsAreReadable()
{
    ContrastWindow window;
    FileDialogUser user{QString()};
    QStringList found{"not shown"};
    connect(&user, &FileDialogUser::shown, this,
            [&](QFileDialog *dialog) { found = unreadable(*dialog); });
    window.click("pushButton_LoadCommand");
    QCOMPARE(found, QStringList());
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

void TestContrast::edgesOfBoxesAreSeen()
{
    ContrastWindow window;
    MessageBoxes boxes;
    double least = 0;
    connect(&boxes, &MessageBoxes::shown, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        least = edgeContrast(*box->button(QMessageBox::Ok));
    });
    for (const char *button : {"pushButton_SendAll", "pushButton_OpenCom"}) {
        least = 0;
        window.click(button);
        QVERIFY(least >= seen);
    }
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
