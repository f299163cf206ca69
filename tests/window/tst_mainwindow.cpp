#include "unitlineedit.h"
#include "windowdriver.h"

#include <QIntValidator>
#include <QLabel>
#include <QSignalSpy>
#include <QSplitter>
#include <QTabBar>
#include <QtTest>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void titleAndFlags();
    void widgetsCarryTheirNames_data();
    void widgetsCarryTheirNames();
    void tabsCarryTheirNames();
    void fileButtonsHavePicturesAndTips_data();
    void fileButtonsHavePicturesAndTips();
    void headerAndReportFieldsHaveDefaults();
    void timesTakeZeroToTenThousandMs_data();
    void timesTakeZeroToTenThousandMs();
    void linkAndLoopButtonsBeginIdle_data();
    void linkAndLoopButtonsBeginIdle();
    void openPortLooksBusy();
    void areasShareTheHeightTenToEight();
    void picturesAreThereInTwoSizes_data();
    void picturesAreThereInTwoSizes();
    void commandTableHasItsOwnMenus();
    void enterInAFieldPressesNoButton_data();
    void enterInAFieldPressesNoButton();
    void escapeLeavesTheWindowOpen();
    void tabKeyGoesFromTopToBottom();
    void nothingIsClipped_data();
    void nothingIsClipped();
};

namespace {

const QString idleStyle =
    "QPushButton{background: #FFFFFF;border: 2px solid #d9dfe7;border-radius: 4px;color: "
    "#333333;}QPushButton:hover{background: #0090ff;border-radius: 4px;color: "
    "#fefefe;}QPushButton:disabled{background: #cccccc;color:#666666}";
const QString busyStyle =
    "QPushButton{background: #0090ff;border: 2px solid #d9dfe7;border-radius: 4px;color: "
    "#fefefe;}QPushButton:hover{background: #0090ff;border-radius: 4px;color: "
    "#fefefe;}QPushButton:disabled{background: #cccccc;color:#666666}";

QString caption(const QWidget *widget)
{
    return widget->property("text").toString();
}

/// Widgets of the form itself, without those that Qt or a table puts into others.
bool isOfTheForm(const QWidget *widget)
{
    return !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_");
}

bool showsItsWholeText(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        const int room = edit->width() - edit->textMargins().left() - edit->textMargins().right();
        return edit->fontMetrics().horizontalAdvance(edit->text()) < room &&
               edit->height() >= edit->minimumSizeHint().height();
    }
    if (qobject_cast<const QComboBox *>(widget) != nullptr) {
        return widget->height() >= widget->minimumSizeHint().height();
    }
    return widget->width() >= widget->sizeHint().width() &&
           widget->height() >= widget->sizeHint().height();
}

struct NamedWidget
{
    const char *name;
    const char *kind;
    const char *text;
};

const NamedWidget namedWidgets[] = {
    {"label_Comm", "QLabel", "Com Port:"},
    {"label_Baudrate", "QLabel", "Baudrate:"},
    {"label_DataBit", "QLabel", "dataBit:"},
    {"label_StopBit", "QLabel", "stopBit:"},
    {"label_Parity", "QLabel", "Parity:"},
    {"label_SBytes", "QLabel", "CMD Header:"},
    {"label_CRC_EN", "QLabel", "CRC Enable:"},
    {"label_Hid_Device", "QLabel", "Device:"},
    {"label_RpID", "QLabel", "Report ID:"},
    {"label_SBytes_2", "QLabel", "CMD Header:"},
    {"label_CRC_EN_2", "QLabel", "CRC Enable:"},
    {"label", "QLabel", "  Command"},
    {"label_11", "QLabel", "  Message"},
    {"label_StepValue", "QLabel", "Interval Time:"},
    {"label_CycleTime", "QLabel", "Cycle Delay:"},
    {"pushButton_OpenCom", "QPushButton", "Open Com Port"},
    {"pushButton_SendAll", "QPushButton", "Send selected items"},
    {"pushButton_ConnectHID", "QPushButton", "Open HID Device"},
    {"pushButton_SendAll_2", "QPushButton", "Send selected items"},
    {"pushButton_Start_Loop", "QPushButton", "Auto Send"},
    {"pushButton_ClearMessage", "QPushButton", "Clear Message"},
    {"pushButton_SaveMessage", "QPushButton", "Save Message"},
    {"lineEdit_SBytes", "QLineEdit", "0x5A,0xA5"},
    {"lineEdit_SBytes_2", "QLineEdit", "0x5A,0xA5"},
    {"lineEdit_RpID", "QLineEdit", "0x00"},
    {"lineEdit_StepValue", "UnitLineEdit", "1000"},
    {"lineEdit_CycleTime", "UnitLineEdit", "1000"},
    {"checkBox_CRC_EN", "QCheckBox", ""},
    {"checkBox_CRC_EN_2", "QCheckBox", ""},
    {"tableWidget_Register", "QTableWidget", ""},
    {"tableWidget_Message", "QTableWidget", ""},
    {"splitter", "QSplitter", ""},
    {"tabWidget", "QTabWidget", ""},
    {"comboBox_Comm", "QComboBox", ""},
    {"comboBox_Baudrate", "QComboBox", ""},
    {"comboBox_DataBit", "QComboBox", ""},
    {"comboBox_StopBit", "QComboBox", ""},
    {"comboBox_Parity", "QComboBox", ""},
    {"comboBox_Hid_Device", "QComboBox", ""},
};

} // namespace

void TestMainWindow::titleAndFlags()
{
    WindowDriver window;
    QCOMPARE(window.window().windowTitle(), QString("Tarnwick_V1.00"));
    // Qt completes what was asked for, so the same is asked for another window.
    QWidget other;
    other.setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    QCOMPARE(window.window().windowFlags(), other.windowFlags());
    QVERIFY(window.window().parent() == nullptr);
}

void TestMainWindow::widgetsCarryTheirNames_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    for (const NamedWidget &widget : namedWidgets) {
        QTest::newRow(widget.name) << widget.kind << widget.text;
    }
}

void TestMainWindow::widgetsCarryTheirNames()
{
    QFETCH(QString, kind);
    const WindowDriver window;
    const auto *widget = window.find<QWidget>(QTest::currentDataTag());
    if (widget == nullptr) {
        QFAIL("there is no such widget");
    }
    QVERIFY(widget->inherits(qPrintable(kind)));
    QTEST(caption(widget), "text");
}

void TestMainWindow::tabsCarryTheirNames()
{
    const WindowDriver window;
    const auto *tabs = window.find<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), QString("Uart"));
    QCOMPARE(tabs->tabText(1), QString("HID"));
    QCOMPARE(tabs->widget(0)->objectName(), QString("tab"));
    QCOMPARE(tabs->widget(1)->objectName(), QString("tab_2"));
}

void TestMainWindow::fileButtonsHavePicturesAndTips_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("picture");

    QTest::newRow("pushButton_LoadCommand") << "Load Command"
                                            << ":/Image/Input.png";
    QTest::newRow("pushButton_SaveCommand") << "Save Command"
                                            << ":/Image/save.png";
    QTest::newRow("pushButton_ClearCommand") << "Clear Command"
                                             << ":/Image/Delete.png";
}

void TestMainWindow::fileButtonsHavePicturesAndTips()
{
    QFETCH(QString, picture);
    const WindowDriver window;
    const QPushButton *button = window.button(QTest::currentDataTag());
    QTEST(button->toolTip(), "tip");
    QCOMPARE(button->text(), QString());
    const QSize size = button->iconSize();
    QVERIFY(!button->icon().isNull());
    QCOMPARE(button->icon().pixmap(size).toImage(), QIcon(picture).pixmap(size).toImage());
}

void TestMainWindow::headerAndReportFieldsHaveDefaults()
{
    const WindowDriver window;
    QVERIFY(!window.check("checkBox_CRC_EN")->isChecked());
    QVERIFY(!window.check("checkBox_CRC_EN_2")->isChecked());
    QVERIFY(window.find<QSplitter>("splitter")->isAncestorOf(window.commands()));
    QVERIFY(window.find<QSplitter>("splitter")->isAncestorOf(window.messages()));
}

void TestMainWindow::timesTakeZeroToTenThousandMs_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    QTest::newRow("zero") << "0"
                          << "0";
    QTest::newRow("highest") << "10000"
                             << "10000";
    QTest::newRow("too many digits") << "100000"
                                     << "10000";
    QTest::newRow("negative") << "-5"
                              << "5";
    QTest::newRow("no number") << "1x.2"
                               << "12";
}

void TestMainWindow::timesTakeZeroToTenThousandMs()
{
    QFETCH(QString, typed);
    const WindowDriver window;
    const QValidator *shared = window.edit("lineEdit_StepValue")->validator();
    for (const char *name : {"lineEdit_StepValue", "lineEdit_CycleTime"}) {
        auto *edit = window.find<UnitLineEdit>(name);
        QCOMPARE(edit->unit(), QString("ms"));
        const auto *validator = qobject_cast<const QIntValidator *>(edit->validator());
        QCOMPARE(validator, shared);
        QCOMPARE(validator->bottom(), 0);
        QCOMPARE(validator->top(), 10000);
        edit->clear();
        QTest::keyClicks(edit, typed);
        QTEST(edit->text(), "text");
        QVERIFY(edit->hasAcceptableInput());
        edit->setText("10001");
        QVERIFY(!edit->hasAcceptableInput());
    }
}

void TestMainWindow::linkAndLoopButtonsBeginIdle_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("pushButton_OpenCom") << "Open Com Port";
    QTest::newRow("pushButton_ConnectHID") << "Open HID Device";
    QTest::newRow("pushButton_Start_Loop") << "Auto Send";
}

void TestMainWindow::linkAndLoopButtonsBeginIdle()
{
    const WindowDriver window;
    const QPushButton *button = window.button(QTest::currentDataTag());
    QTEST(button->text(), "text");
    QCOMPARE(button->styleSheet(), idleStyle);
}

void TestMainWindow::openPortLooksBusy()
{
    WindowDriver window;
    const TestPort port;
    const QPushButton *link = window.button("pushButton_OpenCom");
    const QPushButton *loop = window.button("pushButton_Start_Loop");
    window.open(port);
    QCOMPARE(link->text(), QString("Linking..."));
    QCOMPARE(link->styleSheet(), busyStyle);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    window.click("pushButton_Start_Loop");
    QCOMPARE(loop->text(), QString("Sending..."));
    QCOMPARE(loop->styleSheet(), busyStyle);
    window.click("pushButton_Start_Loop");
    QCOMPARE(loop->text(), QString("Auto Send"));
    QCOMPARE(loop->styleSheet(), idleStyle);
    window.click("pushButton_OpenCom");
    QCOMPARE(link->text(), QString("Open Com Port"));
    QCOMPARE(link->styleSheet(), idleStyle);
}

void TestMainWindow::areasShareTheHeightTenToEight()
{
    const WindowDriver window;
    const auto *splitter = window.find<QSplitter>("splitter");
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->orientation(), Qt::Vertical);
    QCOMPARE(splitter->widget(0)->sizePolicy().verticalStretch(), 10);
    QCOMPARE(splitter->widget(1)->sizePolicy().verticalStretch(), 8);
    QVERIFY(splitter->widget(0)->isAncestorOf(window.commands()));
}

void TestMainWindow::picturesAreThereInTwoSizes_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name :
         {"Input", "save", "Delete", "Send", "ComboBox-downArrow", "Checkbox_uncheck",
          "Checkbox_uncheck_hover", "Checkbox_check", "Checkbox_check_hover",
          "Checkbox_point_uncheck", "Checkbox_point_check"}) {
        QTest::newRow(name) << name;
    }
}

void TestMainWindow::picturesAreThereInTwoSizes()
{
    QFETCH(QString, name);
    const WindowDriver window;
    const QImage plain(":/Image/" + name + ".png");
    const QImage large(":/Image/" + name + "@2x.png");
    QVERIFY(!plain.isNull());
    QCOMPARE(large.size(), plain.size() * 2);
}

void TestMainWindow::commandTableHasItsOwnMenus()
{
    const WindowDriver window;
    QCOMPARE(window.commands()->contextMenuPolicy(), Qt::CustomContextMenu);
}

void TestMainWindow::enterInAFieldPressesNoButton_data()
{
    QTest::addColumn<int>("tab");

    QTest::newRow("lineEdit_SBytes") << 0;
    QTest::newRow("lineEdit_RpID") << 1;
    QTest::newRow("lineEdit_SBytes_2") << 1;
    QTest::newRow("lineEdit_StepValue") << 0;
    QTest::newRow("lineEdit_CycleTime") << 0;
}

void TestMainWindow::enterInAFieldPressesNoButton()
{
    QFETCH(int, tab);
    MessageBoxes boxes;
    WindowDriver window;
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    int clicks = 0;
    for (const QPushButton *button : window.window().findChildren<QPushButton *>()) {
        if (button->window() != &window.window()) {
            continue;
        }
        QVERIFY2(!button->autoDefault(), qPrintable(button->objectName() + button->text()));
        QVERIFY(!button->isDefault());
        connect(button, &QPushButton::clicked, this, [&] { ++clicks; });
    }
    QLineEdit *edit = window.edit(QTest::currentDataTag());
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCOMPARE(clicks, 0);
    QCOMPARE(boxes.texts(), QStringList());
    QVERIFY(window.window().isVisible());
}

void TestMainWindow::escapeLeavesTheWindowOpen()
{
    WindowDriver window;
    QTest::keyClick(&window.window(), Qt::Key_Escape);
    QTest::keyClick(window.edit("lineEdit_SBytes"), Qt::Key_Escape);
    QVERIFY(window.window().isVisible());
}

void TestMainWindow::tabKeyGoesFromTopToBottom()
{
    const WindowDriver window;
    QWidget *first = window.combo("comboBox_Comm");
    QStringList names;
    QWidget *widget = first;
    do {
        const bool isStop = isOfTheForm(widget) && widget->isVisible() &&
                            (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                            widget->focusProxy() == nullptr;
        if (isStop) {
            names.append(widget->objectName());
        }
        widget = widget->nextInFocusChain();
    } while (widget != first);
    QCOMPARE(
        names,
        QStringList({"comboBox_Comm", "comboBox_Baudrate", "comboBox_DataBit", "comboBox_StopBit",
                     "comboBox_Parity", "lineEdit_SBytes", "checkBox_CRC_EN", "pushButton_OpenCom",
                     "pushButton_SendAll", "pushButton_LoadCommand", "pushButton_SaveCommand",
                     "pushButton_ClearCommand", "tableWidget_Register", "tableWidget_Message",
                     "lineEdit_StepValue", "lineEdit_CycleTime", "pushButton_Start_Loop",
                     "pushButton_ClearMessage", "pushButton_SaveMessage"}));
}

void TestMainWindow::nothingIsClipped_data()
{
    QTest::addColumn<int>("tab");

    QTest::newRow("Uart") << 0;
    QTest::newRow("HID") << 1;
}

void TestMainWindow::nothingIsClipped()
{
    QFETCH(int, tab);
    WindowDriver window;
    window.window().resize(1024, 700);
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    QCoreApplication::processEvents();
    QCOMPARE(window.window().size(), QSize(1024, 700));
    int checked = 0;
    for (const QWidget *widget : window.window().findChildren<QWidget *>()) {
        const bool hasText = widget->inherits("QLabel") || widget->inherits("QPushButton") ||
                             widget->inherits("QLineEdit") || widget->inherits("QComboBox");
        if (!hasText || !isOfTheForm(widget) || !widget->isVisible()) {
            continue;
        }
        const QByteArray name = widget->objectName().toLatin1();
        QVERIFY2(showsItsWholeText(widget), name.constData());
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), name.constData());
        ++checked;
    }
    QVERIFY(checked > 15);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
