#include "windowdriver.h"

#include <QLabel>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <memory>

/// Which pieces the window is made of, by their names: whoever drives it from outside finds them by
/// these.
class TestWindowPieces : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_driver = std::make_unique<WindowDriver>(); }
    void cleanupTestCase() { m_driver.reset(); }
    void piecesCarryTheirNames_data();
    void piecesCarryTheirNames();
    void nothingElseCarriesAName();
    void labelsNameTheFieldBesideThem_data();
    void labelsNameTheFieldBesideThem();
    void slotsCarryTheirNames_data();
    void slotsCarryTheirNames();
    void piecesStandSideBySide();
    void theTabKeyVisitsThePieces_data();
    void theTabKeyVisitsThePieces();

private:
    /// For those who only look.
    std::unique_ptr<WindowDriver> m_driver;
};

namespace {

struct Piece
{
    const char *name;
    const char *kind;
    const char *inside;
    const char *text;
};

const Piece piecesOfTheWindow[] = {
    {"sideArea", "QWidget", "", ""},
    {"tabWidget", "QTabWidget", "sideArea", ""},
    {"tab", "QWidget", "tabWidget", ""},
    {"label_Comm", "QLabel", "tab", "Com Port:"},
    {"comboBox_Comm", "QComboBox", "tab", ""},
    {"label_Baudrate", "QLabel", "tab", "Baudrate:"},
    {"comboBox_Baudrate", "QComboBox", "tab", ""},
    {"label_DataBit", "QLabel", "tab", "dataBit:"},
    {"comboBox_DataBit", "QComboBox", "tab", ""},
    {"label_StopBit", "QLabel", "tab", "stopBit:"},
    {"comboBox_StopBit", "QComboBox", "tab", ""},
    {"label_Parity", "QLabel", "tab", "Parity:"},
    {"comboBox_Parity", "QComboBox", "tab", ""},
    {"label_SBytes", "QLabel", "tab", "CMD Header:"},
    {"lineEdit_SBytes", "QLineEdit", "tab", "0x5A,0xA5"},
    {"label_CRC_EN", "QLabel", "tab", "CRC Enable:"},
    {"checkBox_CRC_EN", "QCheckBox", "tab", ""},
    {"checkBox_Reopen", "QCheckBox", "tab", "Reopen"},
    {"pushButton_OpenCom", "QPushButton", "tab", "Open Com Port"},
    {"pushButton_SendAll", "QPushButton", "tab", "Send selected items"},
    {"label_Status", "QLabel", "tab", ""},
    {"tab_2", "QWidget", "tabWidget", ""},
    {"label_Hid_Device", "QLabel", "tab_2", "Device:"},
    {"comboBox_Hid_Device", "QComboBox", "tab_2", ""},
    {"label_RpID", "QLabel", "tab_2", "Report ID:"},
    {"lineEdit_RpID", "QLineEdit", "tab_2", "0x00"},
    {"label_SBytes_2", "QLabel", "tab_2", "CMD Header:"},
    {"lineEdit_SBytes_2", "QLineEdit", "tab_2", "0x5A,0xA5"},
    {"label_CRC_EN_2", "QLabel", "tab_2", "CRC Enable:"},
    {"checkBox_CRC_EN_2", "QCheckBox", "tab_2", ""},
    {"pushButton_ConnectHID", "QPushButton", "tab_2", "Open HID Device"},
    {"pushButton_SendAll_2", "QPushButton", "tab_2", "Send selected items"},
    {"label_Hid_Hint", "QLabel", "tab_2",
     "No device of a type that is listed in hidDeviceID.ini is attached.\n\n"
     "The header that counts is that of the \"Uart\" tab, for HID too."},
    {"label_Status_2", "QLabel", "tab_2", ""},
    {"recordPanel", "QWidget", "sideArea", ""},
    {"pushButton_Record", "QPushButton", "recordPanel", "Record…"},
    {"pushButton_Export", "QPushButton", "recordPanel", "Export…"},
    {"label_Record", "QLabel", "recordPanel", ""},
    {"splitter", "QSplitter", "", ""},
    {"commandArea", "QWidget", "splitter", ""},
    {"label", "QLabel", "commandArea", "  Command"},
    {"label_ListName", "QLabel", "commandArea", ""},
    {"pushButton_LoadCommand", "QPushButton", "commandArea", ""},
    {"pushButton_SaveCommand", "QPushButton", "commandArea", ""},
    {"pushButton_ClearCommand", "QPushButton", "commandArea", ""},
    {"tableWidget_Register", "QTableWidget", "commandArea", ""},
    {"messageArea", "QWidget", "splitter", ""},
    {"label_11", "QLabel", "messageArea", "  Message"},
    {"lineEdit_Find", "QLineEdit", "messageArea", ""},
    {"label_FindCount", "QLabel", "messageArea", ""},
    {"label_Held", "QLabel", "messageArea", "Held"},
    {"label_MessageCount", "QLabel", "messageArea", "0 of 1025"},
    {"tableWidget_Message", "QTableWidget", "messageArea", ""},
    {"loopArea", "QWidget", "", ""},
    {"label_StepValue", "QLabel", "loopArea", "Interval Time:"},
    {"lineEdit_StepValue", "UnitLineEdit", "loopArea", "1000"},
    {"label_CycleTime", "QLabel", "loopArea", "Cycle Delay:"},
    {"lineEdit_CycleTime", "UnitLineEdit", "loopArea", "1000"},
    {"label_Repeat", "QLabel", "loopArea", "Repeat:"},
    {"repeatPlace", "QStackedWidget", "loopArea", ""},
    {"lineEdit_Repeat", "QLineEdit", "repeatPlace", ""},
    {"label_Passes", "QLabel", "repeatPlace", ""},
    {"pushButton_Start_Loop", "QPushButton", "loopArea", "Auto Send"},
    {"pushButton_ClearMessage", "QPushButton", "", "Clear Message"},
    {"pushButton_SaveMessage", "QPushButton", "", "Save Message"},
};

/// The names of the window's own widgets, without those of the editor, which is a window of its
/// own.
QStringList namesIn(const QWidget &window)
{
    QStringList names;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isOfTheTabBar = widget->objectName().startsWith("Scroll");
        if (widget->window() == &window && isOfTheForm(widget) && !isOfTheTabBar) {
            names.append(widget->objectName());
        }
    }
    names.sort();
    return names;
}

QRect placeIn(const QWidget &window, const QWidget &piece)
{
    return {piece.mapTo(&window, QPoint()), piece.size()};
}

} // namespace

void TestWindowPieces::piecesCarryTheirNames_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("inside");
    QTest::addColumn<QString>("text");

    for (const Piece &piece : piecesOfTheWindow) {
        QTest::newRow(piece.name) << piece.kind << piece.inside << piece.text;
    }
}

void TestWindowPieces::piecesCarryTheirNames()
{
    QFETCH(QString, kind);
    QFETCH(QString, inside);
    const auto *piece = m_driver->find<QWidget>(QTest::currentDataTag());
    if (piece == nullptr) {
        QFAIL("there is no such widget");
    }
    QVERIFY2(piece->inherits(qPrintable(kind)), piece->metaObject()->className());
    QVERIFY(inside.isEmpty() || m_driver->find<QWidget>(qPrintable(inside))->isAncestorOf(piece));
    QTEST(piece->property("text").toString(), "text");
}

void TestWindowPieces::nothingElseCarriesAName()
{
    QStringList expected;
    for (const Piece &piece : piecesOfTheWindow) {
        expected.append(piece.name);
    }
    expected.sort();
    QCOMPARE(namesIn(m_driver->window()), expected);
}

void TestWindowPieces::labelsNameTheFieldBesideThem_data()
{
    QTest::addColumn<QString>("field");

    QTest::newRow("label_Comm") << "comboBox_Comm";
    QTest::newRow("label_Baudrate") << "comboBox_Baudrate";
    QTest::newRow("label_DataBit") << "comboBox_DataBit";
    QTest::newRow("label_StopBit") << "comboBox_StopBit";
    QTest::newRow("label_Parity") << "comboBox_Parity";
    QTest::newRow("label_SBytes") << "lineEdit_SBytes";
    QTest::newRow("label_CRC_EN") << "checkBox_CRC_EN";
    QTest::newRow("label_Hid_Device") << "comboBox_Hid_Device";
    QTest::newRow("label_RpID") << "lineEdit_RpID";
    QTest::newRow("label_SBytes_2") << "lineEdit_SBytes_2";
    QTest::newRow("label_CRC_EN_2") << "checkBox_CRC_EN_2";
    QTest::newRow("label_StepValue") << "lineEdit_StepValue";
    QTest::newRow("label_CycleTime") << "lineEdit_CycleTime";
    QTest::newRow("label_Repeat") << "lineEdit_Repeat";
}

void TestWindowPieces::labelsNameTheFieldBesideThem()
{
    QFETCH(QString, field);
    const auto *label = m_driver->find<QLabel>(QTest::currentDataTag());
    QCOMPARE(label->buddy(), m_driver->find<QWidget>(qPrintable(field)));
}

void TestWindowPieces::slotsCarryTheirNames_data()
{
    QTest::addColumn<int>("unused");

    for (const char *slot : {"on_tabWidget_currentChanged(int)",
                             "on_pushButton_OpenCom_clicked()",
                             "on_comboBox_Comm_activated(int)",
                             "on_comboBox_Baudrate_activated(int)",
                             "serial_receiveData()",
                             "on_pushButton_ConnectHID_clicked()",
                             "hid_receiveData(HidPacket)",
                             "Close_HidDevice_From_thread()",
                             "SendOne()",
                             "on_pushButton_SendAll_clicked()",
                             "on_pushButton_SendAll_2_clicked()",
                             "on_pushButton_Start_Loop_clicked()",
                             "Timer1_Out_Event()",
                             "Timer2_Out_Event()",
                             "on_pushButton_ClearMessage_clicked()",
                             "on_pushButton_SaveMessage_clicked()",
                             "on_pushButton_LoadCommand_clicked()",
                             "on_pushButton_SaveCommand_clicked()",
                             "on_pushButton_ClearCommand_clicked()",
                             "tableRegisterContexMenuRequested(QPoint)",
                             "SlotRegisterMenuClicked(QAction*)",
                             "SlotSelectMenuClicked(QAction*)",
                             "SlotCmdMenuClicked(QAction*)",
                             "on_tableWidget_Register_cellChanged(int,int)",
                             "on_tableWidget_Register_cellClicked(int,int)",
                             "On_tableWidget_Register_textchange()",
                             "on_DataEdited()",
                             "on_DataEnter()",
                             "editor_dataIn()",
                             "doMouseTrackTip(QModelIndex)"}) {
        QTest::newRow(slot) << 0;
    }
}

void TestWindowPieces::slotsCarryTheirNames()
{
    const QMetaObject &meta = Dialog::staticMetaObject;
    QCOMPARE(meta.className(), "Dialog");
    QVERIFY(meta.indexOfSlot(QTest::currentDataTag()) >= meta.methodOffset());
}

/// The tabs and, beside them, the two tables; below both the row of the loop.
void TestWindowPieces::piecesStandSideBySide()
{
    constexpr int margin = 16;
    constexpr int lowest = 32;
    WindowDriver driver;
    QDialog &window = driver.window();
    window.resize(1120, 760);
    QCoreApplication::processEvents();
    const auto place = [&](const char *name) {
        return placeIn(window, *driver.find<QWidget>(name));
    };
    const QRect tabs = place("tabWidget");
    const QRect tables = place("splitter");
    const QRect saveMessage = place("pushButton_SaveMessage");
    const QRect startLoop = place("pushButton_Start_Loop");
    QCOMPARE(tabs.topLeft(), QPoint(margin, margin));
    QCOMPARE(tables.left() - tabs.right() - 1, margin);
    QCOMPARE(tables.top(), margin);
    QCOMPARE(place("recordPanel").left(), margin);
    QCOMPARE(place("recordPanel").right(), tabs.right());
    QCOMPARE(tables.bottom(), place("recordPanel").bottom());
    QCOMPARE(window.width() - tables.right() - 1, margin);
    QCOMPARE(saveMessage.top() - tables.bottom() - 1, margin);
    QCOMPARE(saveMessage.right(), tables.right());
    QCOMPARE(window.height() - saveMessage.bottom() - 1, margin);
    QCOMPARE(place("label_StepValue").left(), margin);
    QCOMPARE(startLoop.top(), saveMessage.top());
    for (const char *name :
         {"comboBox_Comm", "lineEdit_SBytes", "pushButton_OpenCom", "pushButton_LoadCommand",
          "lineEdit_StepValue", "pushButton_Start_Loop", "pushButton_ClearMessage"}) {
        QVERIFY2(place(name).height() >= lowest, name);
    }
}

void TestWindowPieces::theTabKeyVisitsThePieces_data()
{
    QTest::addColumn<QStringList>("tabPieces");

    QTest::newRow("Uart") << QStringList{
        "comboBox_Comm",      "comboBox_Baudrate", "comboBox_DataBit", "comboBox_StopBit",
        "comboBox_Parity",    "lineEdit_SBytes",   "checkBox_CRC_EN",  "checkBox_Reopen",
        "pushButton_OpenCom", "pushButton_SendAll"};
    QTest::newRow("HID") << QStringList{"comboBox_Hid_Device",   "lineEdit_RpID",
                                        "lineEdit_SBytes_2",     "checkBox_CRC_EN_2",
                                        "pushButton_ConnectHID", "pushButton_SendAll_2"};
}

void TestWindowPieces::theTabKeyVisitsThePieces()
{
    QFETCH(QStringList, tabPieces);
    WindowDriver window;
    auto *tabs = window.find<QTabWidget>("tabWidget");
    tabs->setCurrentIndex(QTest::currentDataTag() == QByteArray("HID") ? 1 : 0);
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    tabs->tabBar()->setFocus();
    QStringList visited;
    // More steps than there are pieces would go round for ever.
    while (visited.size() < 30 &&
           (visited.isEmpty() || visited.last() != "pushButton_SaveMessage")) {
        QWidget *focused = QApplication::focusWidget();
        // In the command table, Tab goes from cell to cell.
        QTest::keyClick(focused, focused == window.commands() ? Qt::Key_F6 : Qt::Key_Tab);
        visited.append(QApplication::focusWidget()->objectName());
    }
    QCOMPARE(visited,
             tabPieces +
                 QStringList({"pushButton_Record", "pushButton_Export", "pushButton_LoadCommand",
                              "pushButton_SaveCommand", "pushButton_ClearCommand",
                              "tableWidget_Register", "tableWidget_Message", "lineEdit_StepValue",
                              "lineEdit_CycleTime", "lineEdit_Repeat", "pushButton_Start_Loop",
                              "pushButton_ClearMessage", "pushButton_SaveMessage"}));
}

QTEST_MAIN(TestWindowPieces)
#include "tst_windowpieces.moc"
