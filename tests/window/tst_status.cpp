#include "fakehid.h"
#include "filedialoguser.h"
#include "hidwindow.h"
#include "restrictions.h"
#include "serialwindow.h"
#include "testfiles.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

/// What the window tells without stopping anybody: its status line, and the heads of both tables.
class TestStatus : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anOpenPortIsShownWithItsSettings();
    void aTypedRateIsShown();
    void aPortThatFailedSaysWhy_data();
    void aPortThatFailedSaysWhy();
    void aBusyPortSaysSo();
    void aPortWithoutPermissionNamesTheGroup();
    void theReasonStandsBesideTheBox();
    void openingClearsTheReason();
    void aLostPortIsTold();
    void anOpenDeviceIsShown();
    void aDeviceThatFailedSaysWhy();
    void aLostDeviceIsTold();
    void theOtherTabBeginsClean();
    void savingTellsWhere();
    void theListHasItsFilesName();
    void theListIsMarkedWhileModified();
    void theLogTellsHowFullItIs();

private:
    QTemporaryDir m_folder;
};

namespace {

const QByteArray statusDevice = "fake#VID_EEEF&PID_1616#1";

QString told(const WindowDriver &window, const char *label = "label_Status")
{
    return window.find<QLabel>(label)->text().remove(QChar(0x200B));
}

QString listTitle(const WindowDriver &window)
{
    return window.find<QLabel>("label_ListName")->text();
}

} // namespace

void TestStatus::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(statusDevice, 0xEEEF, 0x1616);
}

void TestStatus::anOpenPortIsShownWithItsSettings()
{
    SerialWindow window;
    const TestPort port;
    QCOMPARE(told(window), QString());
    window.open(port);
    QCOMPARE(told(window), port.path() + " 115200 8N1");
    QCOMPARE(told(window, "label_Status_2"), told(window));
    window.click("pushButton_OpenCom");
    QCOMPARE(told(window), QString());
    SerialWindow::pick(window.combo("comboBox_Baudrate"), 1);
    window.combo("comboBox_DataBit")->setCurrentText("7");
    window.combo("comboBox_Parity")->setCurrentText("Even");
    window.combo("comboBox_StopBit")->setCurrentText("2");
    window.click("pushButton_OpenCom");
    QVERIFY(window.looksOpen());
    QCOMPARE(told(window), port.path() + " 9600 7E2");
}

void TestStatus::aTypedRateIsShown()
{
    SerialWindow window;
    const TestPort port;
    QComboBox *rates = window.combo("comboBox_Baudrate");
    SerialWindow::pick(rates, 0);
    QTest::keyClicks(rates->lineEdit(), "250000");
    window.open(port);
    QCOMPARE(told(window), port.path() + " 250000 8N1");
}

void TestStatus::aPortThatFailedSaysWhy_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("reason");

    QTest::newRow("none") << ""
                          << "No port is chosen.";
    QTest::newRow("missing") << "/nowhere/port"
                             << "/nowhere/port: No such file or directory.";
    QTest::newRow("no terminal") << "/dev/null"
                                 << "/dev/null: Inappropriate ioctl for device.";
}

void TestStatus::aPortThatFailedSaysWhy()
{
    QFETCH(QString, port);
    MessageBoxes boxes;
    const SerialWindow window;
    QComboBox *ports = window.combo("comboBox_Comm");
    ports->clear();
    if (!port.isEmpty()) {
        ports->addItem(port);
    }
    QTest::mouseClick(window.button("pushButton_OpenCom"), Qt::LeftButton);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QTEST(told(window), "reason");
}

void TestStatus::aBusyPortSaysSo()
{
    const MessageBoxes boxes;
    SerialWindow window;
    const TestPort port;
    QSerialPort other(port.path());
    QVERIFY(other.open(QIODevice::ReadWrite));
    window.open(port);
    QVERIFY2(told(window).startsWith(port.path() + " is in use by another program ("),
             qPrintable(told(window)));
}

void TestStatus::aPortWithoutPermissionNamesTheGroup()
{
    if (geteuid() != 0) {
        QSKIP("only root gives a terminal to another group");
    }
    constexpr gid_t dialout = 20;
    const MessageBoxes boxes;
    SerialWindow window;
    const TestPort port;
    QCOMPARE(chown(qPrintable(port.path()), 0, dialout), 0);
    QCOMPARE(chmod(qPrintable(port.path()), 0660), 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    window.open(port);
    QCOMPARE(told(window), port.path() + ": Permission denied. It belongs to the group dialout. To "
                                         "join it: sudo adduser \"$USER\" dialout, then log in "
                                         "again.");
}

void TestStatus::theReasonStandsBesideTheBox()
{
    MessageBoxes boxes;
    const SerialWindow window;
    QString atTheBox;
    connect(&boxes, &MessageBoxes::shown, this, [&] { atTheBox = told(window); });
    window.combo("comboBox_Comm")->addItem("/nowhere/port");
    QTest::mouseClick(window.button("pushButton_OpenCom"), Qt::LeftButton);
    QCOMPARE(atTheBox, QString("/nowhere/port: No such file or directory."));
}

void TestStatus::openingClearsTheReason()
{
    const MessageBoxes boxes;
    SerialWindow window;
    const TestPort port;
    window.click("pushButton_OpenCom");
    QVERIFY(!told(window).isEmpty());
    window.open(port);
    QCOMPARE(told(window), port.path() + " 115200 8N1");
}

void TestStatus::aLostPortIsTold()
{
    MessageBoxes boxes;
    SerialWindow window;
    TestPort port;
    window.open(port);
    port.unplug();
    QTRY_COMPARE(boxes.texts().size(), 1);
    QCOMPARE(told(window), "The connection to " + port.path() + " is lost: the device is gone");
}

void TestStatus::anOpenDeviceIsShown()
{
    HidWindow window;
    window.edit("lineEdit_RpID")->setText("0x05");
    window.openDevice(statusDevice);
    QCOMPARE(told(window, "label_Status_2"), statusDevice + ", 64 bytes, report ID 0x05");
    window.click("pushButton_ConnectHID");
    QCOMPARE(told(window, "label_Status_2"), QString());
}

void TestStatus::aDeviceThatFailedSaysWhy()
{
    MessageBoxes boxes;
    FakeHid::instance().setOpenable(statusDevice, false);
    HidWindow window;
    window.openDevice(statusDevice);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QVERIFY2(told(window, "label_Status_2").startsWith(statusDevice + ": "),
             qPrintable(told(window, "label_Status_2")));
}

void TestStatus::aLostDeviceIsTold()
{
    HidWindow window;
    window.openDevice(statusDevice);
    FakeHid::instance().failWrites();
    window.setRow(0, "01", "0300", "01");
    window.sendCurrentRow();
    QTRY_COMPARE(window.linkCaption(), QString("Open HID Device"));
    QCOMPARE(told(window, "label_Status_2"),
             "The connection to " + statusDevice + " is lost: it takes nothing any more");
}

void TestStatus::theOtherTabBeginsClean()
{
    const MessageBoxes boxes;
    SerialWindow window;
    window.click("pushButton_OpenCom");
    QVERIFY(!told(window).isEmpty());
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(1);
    QCOMPARE(told(window), QString());
}

void TestStatus::savingTellsWhere()
{
    const QString path = m_folder.filePath("saved.txt");
    const FileDialogUser user(path);
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::Yes);
    WindowDriver window;
    window.setRow(0, "01", "0300", "01");
    window.click("pushButton_SaveCommand");
    QCOMPARE(told(window), "Commands saved: " + path);
    window.click("pushButton_SaveMessage");
    QCOMPARE(told(window), "Messages saved: " + path);
}

void TestStatus::theListHasItsFilesName()
{
    const QString path = m_folder.filePath("pump.txt");
    writeFile(path, "a,select,5A 0001 01\n");
    const FileDialogUser user(path);
    WindowDriver window;
    QCOMPARE(listTitle(window), QString());
    window.click("pushButton_LoadCommand");
    QCOMPARE(listTitle(window), QString("pump.txt"));
    QCOMPARE(window.find<QLabel>("label_ListName")->toolTip(), path);
    window.click("pushButton_ClearCommand");
    QCOMPARE(listTitle(window), QString());
}

void TestStatus::theListIsMarkedWhileModified()
{
    const QString path = m_folder.filePath("valve.txt");
    const FileDialogUser user(path);
    WindowDriver window;
    window.setRow(0, "01", "0300", "01");
    QCOMPARE(listTitle(window), QString("*"));
    window.click("pushButton_SaveCommand");
    QCOMPARE(listTitle(window), QString("valve.txt"));
    window.setRow(1, "01", "0300", "02");
    QCOMPARE(listTitle(window), QString("valve.txt*"));
}

void TestStatus::theLogTellsHowFullItIs()
{
    WindowDriver window;
    const auto *count = window.find<QLabel>("label_MessageCount");
    QCOMPARE(count->text(), QString("0 of 1025"));
    RecordLog &records = window.records();
    records.appendStray("one");
    QTRY_COMPARE(count->text(), QString("1 of 1025"));
    for (int i = 1; i < 1025; ++i) {
        records.appendStray("more");
    }
    QTRY_COMPARE(count->text(), QString("1025 of 1025"));
    records.appendStray("one too many");
    QTRY_COMPARE(count->text(), QString("1 of 1025"));
    window.click("pushButton_ClearMessage");
    QTRY_COMPARE(count->text(), QString("0 of 1025"));
}

QTEST_MAIN(TestStatus)
#include "tst_status.moc"
