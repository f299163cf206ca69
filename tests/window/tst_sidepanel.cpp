#include "fakehid.h"
#include "hidwindow.h"
#include "serialwindow.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QtTest>

/// Typing, choosing and going from field to field in the side panel.
class TestSidePanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void numbersTakeDigitsAlone_data();
    void numbersTakeDigitsAlone();
    void aTypedRateTakesDigitsAlone_data();
    void aTypedRateTakesDigitsAlone();
    void theWheelChoosesNothing_data();
    void theWheelChoosesNothing();
    void theWheelOverPortsOpensNone();
    void theWheelLeavesTheTabAlone();
    void theWheelScrollsAnOpenList();
    void arrowKeysChoose();
    void theFocusIsOnTheButtonOfAnOpenPort_data();
    void theFocusIsOnTheButtonOfAnOpenPort();
    void theFocusIsOnTheButtonOfAnOpenDevice();
    void nothingIsPrintedAtTheStart();
};

namespace {

const QByteArray panelDevice = "fake#VID_EEEF&PID_1616#1";
QStringList printed;

void notePrinted(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &text)
{
    printed.append(text);
}

/// Turns the wheel over a widget by one step, as the system does it: the window is told where.
void turnWheel(const QWidget *widget, int steps)
{
    constexpr int stepSize = 120;
    const QPoint global = widget->mapToGlobal(widget->rect().center());
    QCursor::setPos(global);
    QWindow *handle = widget->window()->windowHandle();
    QWheelEvent event(handle->mapFromGlobal(global), global, {}, {0, steps * stepSize},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(handle, &event);
}

void showActive(WindowDriver &window)
{
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
}

} // namespace

void TestSidePanel::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(panelDevice, 0xEEEF, 0x1616);
    FakeHid::instance().addDevice(panelDevice + "b", 0xEEEF, 0x1616);
}

void TestSidePanel::numbersTakeDigitsAlone_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    for (const char *locale : {"C", "de_DE", "zh_CN", "en_US"}) {
        const auto row = [locale](const char *typed, const char *text) {
            QTest::addRow("%s %s", locale, typed) << typed << text;
        };
        row("1,000", "1000");
        row("1.000", "1000");
        row("1 000", "1000");
        row("10001", "1000");
        row("99999", "9999");
        row("+5", "5");
        row("10000", "10000");
    }
}

void TestSidePanel::numbersTakeDigitsAlone()
{
    QFETCH(QString, typed);
    QLocale::setDefault(QLocale(QString(QTest::currentDataTag()).section(' ', 0, 0)));
    const WindowDriver window;
    for (const char *name : {"lineEdit_StepValue", "lineEdit_CycleTime"}) {
        QLineEdit *edit = window.edit(name);
        edit->clear();
        QTest::keyClicks(edit, typed);
        QTEST(edit->text(), "text");
        QVERIFY(edit->hasAcceptableInput());
    }
}

void TestSidePanel::aTypedRateTakesDigitsAlone_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    for (const char *locale : {"C", "de_DE", "zh_CN", "en_US"}) {
        const auto row = [locale](const char *typed, const char *text) {
            QTest::addRow("%s %s", locale, typed) << typed << text;
        };
        row("115,200", "115200");
        row("115.200", "115200");
        row("1382401", "138240");
        row("9999999", "999999");
        row("1382400", "1382400");
        row("-300", "300");
    }
}

void TestSidePanel::aTypedRateTakesDigitsAlone()
{
    QFETCH(QString, typed);
    QLocale::setDefault(QLocale(QString(QTest::currentDataTag()).section(' ', 0, 0)));
    const SerialWindow window;
    QComboBox *box = window.combo("comboBox_Baudrate");
    SerialWindow::pick(box, 0);
    QTest::keyClicks(box->lineEdit(), typed);
    QTEST(box->lineEdit()->text(), "text");
    QVERIFY(box->lineEdit()->hasAcceptableInput());
}

void TestSidePanel::theWheelChoosesNothing_data()
{
    QTest::addColumn<int>("tab");

    QTest::newRow("comboBox_Comm") << 0;
    QTest::newRow("comboBox_Baudrate") << 0;
    QTest::newRow("comboBox_DataBit") << 0;
    QTest::newRow("comboBox_StopBit") << 0;
    QTest::newRow("comboBox_Parity") << 0;
    QTest::newRow("comboBox_Hid_Device") << 1;
}

void TestSidePanel::theWheelChoosesNothing()
{
    QFETCH(int, tab);
    WindowDriver window;
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    window.listPorts();
    QComboBox *box = window.combo(QTest::currentDataTag());
    if (box->count() < 2) {
        box->addItems({"/nowhere/1", "/nowhere/2", "/nowhere/3"});
    }
    box->setCurrentIndex(1);
    const int rows = window.commands()->rowCount();
    for (const bool enabled : {true, false}) {
        box->setEnabled(enabled);
        turnWheel(box, 1);
        QCOMPARE(box->currentIndex(), 1);
        turnWheel(box, -1);
        QCOMPARE(box->currentIndex(), 1);
    }
    QCOMPARE(window.commands()->rowCount(), rows);
}

void TestSidePanel::theWheelOverPortsOpensNone()
{
    MessageBoxes boxes;
    SerialWindow window;
    window.combo("comboBox_Comm")->addItems({"/nowhere/1", "/nowhere/2", "/nowhere/3"});
    turnWheel(window.combo("comboBox_Comm"), -1);
    turnWheel(window.combo("comboBox_Comm"), -1);
    QCoreApplication::processEvents();
    QCOMPARE(boxes.texts(), QStringList());
}

void TestSidePanel::theWheelLeavesTheTabAlone()
{
    WindowDriver window;
    const auto *tabs = window.find<QTabWidget>("tabWidget");
    turnWheel(tabs->tabBar(), -1);
    QCOMPARE(tabs->currentIndex(), 0);
}

void TestSidePanel::theWheelScrollsAnOpenList()
{
    SerialWindow window;
    showActive(window);
    QComboBox *box = window.combo("comboBox_Comm");
    for (int i = 0; i < 200; ++i) {
        box->addItem(QString("/nowhere/%1").arg(i));
    }
    box->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
    const QScrollBar *bar = box->view()->verticalScrollBar();
    QCOMPARE(bar->value(), 0);
    turnWheel(box->view()->viewport(), -1);
    QTRY_VERIFY(bar->value() > 0);
    QCOMPARE(box->currentIndex(), 0);
    box->hidePopup();
}

void TestSidePanel::arrowKeysChoose()
{
    SerialWindow window;
    QComboBox *box = window.combo("comboBox_Parity");
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentText(), QString("Even"));
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(box->currentText(), QString("None"));
}

void TestSidePanel::theFocusIsOnTheButtonOfAnOpenPort_data()
{
    QTest::addColumn<QString>("focused");

    QTest::newRow("by the button") << "pushButton_OpenCom";
    QTest::newRow("by the list") << "comboBox_Comm";
    QTest::newRow("while another box has it") << "comboBox_Parity";
}

void TestSidePanel::theFocusIsOnTheButtonOfAnOpenPort()
{
    QFETCH(QString, focused);
    SerialWindow window;
    TestPort port;
    showActive(window);
    window.find<QWidget>(qPrintable(focused))->setFocus();
    if (focused == "comboBox_Comm") {
        QComboBox *ports = window.combo("comboBox_Comm");
        ports->addItem(port.path());
        SerialWindow::pick(ports, ports->count() - 1);
    } else {
        window.open(port);
    }
    QVERIFY(window.looksOpen());
    QCOMPARE(QApplication::focusWidget(), window.button("pushButton_OpenCom"));
    QVERIFY(!window.edit("lineEdit_SBytes")->hasSelectedText());
}

void TestSidePanel::theFocusIsOnTheButtonOfAnOpenDevice()
{
    HidWindow window;
    showActive(window);
    window.combo("comboBox_Hid_Device")->setFocus();
    window.click("pushButton_ConnectHID");
    QCOMPARE(window.linkCaption(), QString("Linking..."));
    QCOMPARE(QApplication::focusWidget(), window.button("pushButton_ConnectHID"));
}

void TestSidePanel::nothingIsPrintedAtTheStart()
{
    printed.clear();
    const QtMessageHandler former = qInstallMessageHandler(notePrinted);
    {
        WindowDriver window;
        window.listPorts();
    }
    qInstallMessageHandler(former);
    // The offscreen platform says so of every window.
    printed.removeAll("This plugin does not support propagateSizeHints()");
    QCOMPARE(printed, QStringList());
}

QTEST_MAIN(TestSidePanel)
#include "tst_sidepanel.moc"
