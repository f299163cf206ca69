#include "fakehid.h"
#include "hexbytes.h"
#include "hidbench.h"
#include "hidwindow.h"
#include "links/hid/hidlink.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

/// The HID tab of the real window, with devices that a stand-in for the HID library offers.
class TestHid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void devicesAreListedByTheirPaths();
    void theChosenDeviceStaysChosen();
    void withoutADeviceTheTabSaysWhatIsMissing();
    void openingShowsTheLink();
    void aLinkThatSomebodyElseClosesIsShown();
    void aDeviceThatCantBeOpened();
    void closedDeviceIsTold();
    void aFrameGoesOutInReports();
    void receivedReportsAreFramesAndNotices();
    void reportsComeInWhileABoxIsUp_data();
    void reportsComeInWhileABoxIsUp();
    void theSlotTakesPacketsAtAnyMoment();
    void whatABoxInTheMiddleLeavesNoRoomForIsTold();
    void theHeaderIsTheSerialTabs();
    void aFailedWriteEndsLoopAndLink();
    void theLoopRestsTheWidgetsOfTheTab();
    void aLoopThatOutrunsTheDeviceWaits();
    void leavingTheTabClosesTheDevice();
    void closingTheWindowClosesTheDevice();
    void connectingUnderLoad();
    void closingTheWindowUnderLoad();
};

namespace {

const QByteArray smallHid = "fake#VID_EEEF&PID_1616#1";
const QByteArray largeDevice = "fake#VID_EEEF&PID_2929#1";
constexpr int smallHidReport = 64;

QByteArray report(const QByteArray &frame, char reportId = 0, int size = smallHidReport)
{
    return reportId + frame.leftJustified(size, '\0');
}

/// Opens a device and leaves it with reports on their way in both directions.
void loadDevice(HidWindow &window, const QByteArray &path)
{
    FakeHid &hid = FakeHid::instance();
    window.openDevice(path);
    const int written = hid.written().size();
    const int shown = window.messageCount();
    for (int i = 0; i < 20; ++i) {
        window.clickSend(0);
        hid.sendReport(hex("5AA5050300100000"));
    }
    QTRY_VERIFY(hid.written().size() > written);
    QTRY_VERIFY(window.messageCount() > shown + 20);
}

} // namespace

void TestHid::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(smallHid, 0xEEEF, 0x1616);
    FakeHid::instance().addDevice(largeDevice, 0xEEEF, 0x2929);
}

void TestHid::devicesAreListedByTheirPaths()
{
    const HidWindow window;
    const QComboBox *devices = window.combo("comboBox_Hid_Device");
    QCOMPARE(devices->count(), 2);
    QCOMPARE(devices->itemText(0), QString(largeDevice));
    QCOMPARE(devices->itemText(1), QString(smallHid));
    QCOMPARE(devices->itemData(1, Qt::ToolTipRole).toString(), QString(smallHid));
}

void TestHid::theChosenDeviceStaysChosen()
{
    HidWindow window;
    window.combo("comboBox_Hid_Device")->setCurrentIndex(1);
    window.listPorts();
    QCOMPARE(window.combo("comboBox_Hid_Device")->currentText(), QString(smallHid));
}

void TestHid::withoutADeviceTheTabSaysWhatIsMissing()
{
    FakeHid::instance().reset();
    HidWindow window;
    const QComboBox *devices = window.combo("comboBox_Hid_Device");
    const auto *hint = window.find<QLabel>("label_Hid_Hint");
    QCOMPARE(devices->currentText(), QString());
    QVERIFY(devices->placeholderText().contains("hidDeviceID.ini"));
    QVERIFY(hint->isVisible());
    QVERIFY(hint->text().contains("hidDeviceID.ini"));
    QVERIFY(hint->text().contains("\"Uart\""));
    FakeHid::instance().addDevice(smallHid, 0xEEEF, 0x1616);
    window.listPorts();
    QCOMPARE(devices->currentText(), QString(smallHid));
    QVERIFY(!hint->isVisible());
}

void TestHid::openingShowsTheLink()
{
    HidWindow window;
    window.openDevice(smallHid);
    QCOMPARE(window.linkCaption(), QString("Linking..."));
    QVERIFY(!window.edit("lineEdit_RpID")->isEnabled());
    QVERIFY(!window.combo("comboBox_Hid_Device")->isEnabled());
    window.click("pushButton_ConnectHID");
    QCOMPARE(window.linkCaption(), QString("Open HID Device"));
    QVERIFY(window.edit("lineEdit_RpID")->isEnabled());
    QVERIFY(window.combo("comboBox_Hid_Device")->isEnabled());
    QCOMPARE(FakeHid::instance().openHandles(), 0);
}

void TestHid::aLinkThatSomebodyElseClosesIsShown()
{
    HidWindow window;
    window.openDevice(smallHid);
    QVERIFY(!window.find<QLabel>("label_Status_2")->text().isEmpty());
    window.window().findChild<HidLink *>()->close();
    QCOMPARE(window.linkCaption(), QString("Open HID Device"));
    QVERIFY(window.combo("comboBox_Hid_Device")->isEnabled());
    QCOMPARE(window.find<QLabel>("label_Status_2")->text(), QString());
}

void TestHid::aDeviceThatCantBeOpened()
{
    MessageBoxes boxes;
    FakeHid::instance().setOpenable(smallHid, false);
    HidWindow window;
    window.openDevice(smallHid);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QCOMPARE(boxes.titles(), QStringList{"HID"});
    QCOMPARE(window.linkCaption(), QString("Open HID Device"));
    QVERIFY(window.edit("lineEdit_RpID")->isEnabled());
}

void TestHid::closedDeviceIsTold()
{
    MessageBoxes boxes;
    HidWindow window;
    window.setRow(0, "03", "0000", "0001");
    window.checkRow(0);
    for (const char *slot :
         {"SendOne", "on_pushButton_SendAll_clicked", "on_pushButton_SendAll_2_clicked",
          "on_pushButton_Start_Loop_clicked"}) {
        window.call(slot);
        QCOMPARE(boxes.takeTexts(), QStringList{"Please open the HID Device!"});
    }
}

void TestHid::aFrameGoesOutInReports()
{
    MessageBoxes boxes;
    HidWindow window;
    window.edit("lineEdit_RpID")->setText("0x05");
    window.openDevice(smallHid);
    window.check("checkBox_CRC_EN_2")->setChecked(true);
    window.setRow(0, "01", "0300", "000001");
    window.sendCurrentRow();
    QTRY_COMPARE(FakeHid::instance().written().size(), 1);
    QCOMPARE(FakeHid::instance().written().first(), report(hex("5AA508010300000001840A"), 5));
    QCOMPARE(window.message(0).at(6), QString("84 0A "));

    window.setRow(1, "11", "", QString("22").repeated(299));
    window.sendCurrentRow();
    QCOMPARE(boxes.texts(), QStringList{"Instruction length 302 is out of the maximum range,<br> "
                                        "sending errors may occur!"});
    QTRY_COMPARE(FakeHid::instance().written().size(), 1 + 5);
    QCOMPARE(window.messageCount(), 2);
}

void TestHid::receivedReportsAreFramesAndNotices()
{
    HidWindow window;
    window.openDevice(smallHid);
    FakeHid &hid = FakeHid::instance();
    hid.sendReport(QByteArray(smallHidReport, '\0'));
    hid.sendReport(hex("5AA50503001000FF"));
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0), QStringList({"1", "5A A5", " 05", " 03", "0010", " 00 FF ", ""}));
    hid.sendReport(hex("0700"));
    QTRY_COMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(1).at(5), QString("07 00 "));
}

void TestHid::reportsComeInWhileABoxIsUp_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("box");
    QTest::newRow("on the receive path") << "5A"
                                         << "Startbytes Length error";
    QTest::newRow("elsewhere") << "0x5A,0xA5"
                               << "Not thing to send!";
}

void TestHid::reportsComeInWhileABoxIsUp()
{
    constexpr int reports = 30;
    QFETCH(QString, header);
    QFETCH(QString, box);
    MessageBoxes boxes;
    HidWindow window;
    window.openDevice(smallHid);
    window.edit("lineEdit_SBytes")->setText(header);
    FakeHid &hid = FakeHid::instance();
    int shownDuringBox = 0;
    connect(&boxes, &MessageBoxes::shown, this, [&] {
        for (int i = 1; i < reports; ++i) {
            hid.sendReport(QByteArray(1, char(i)));
        }
        QTRY_COMPARE(window.messageCount(), reports);
        shownDuringBox = window.messageCount();
    });
    hid.sendReport("!");
    QTRY_VERIFY(window.messageCount() > 0);
    if (header != "5A") {
        window.click("pushButton_SendAll_2");
    }
    QTRY_COMPARE(shownDuringBox, reports);
    for (int i = 1; i < reports; ++i) {
        QCOMPARE(hex(window.message(i).at(5)), QByteArray(1, char(i)));
    }
    QTRY_COMPARE(boxes.texts(), QStringList{box});
}

/// With and without a device.
void TestHid::theSlotTakesPacketsAtAnyMoment()
{
    HidWindow window;
    const HidPacket packet = packetOf(9, hex("5AA50503001000FF"));
    const auto give = [&] {
        QVERIFY(QMetaObject::invokeMethod(&window.window(), "hid_receiveData",
                                          Q_ARG(HidPacket, packet)));
    };
    give();
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0), QStringList({"1", "5A A5", " 05", " 03", "0010", " 00 FF ", ""}));
    give();
    window.openDevice(smallHid);
    QCOMPARE(window.messageCount(), 2);
    give();
    give();
    QTRY_COMPARE(window.messageCount(), 4);
}

void TestHid::whatABoxInTheMiddleLeavesNoRoomForIsTold()
{
    constexpr int mebibyte = 1024 * 1024;
    constexpr int reportSize = 512;
    constexpr int reports = mebibyte / reportSize + 7;
    HidWindow window;
    const HidPacket packet = packetOf(0, QByteArray(reportSize, 'x'));
    const auto give = [&] {
        QMetaObject::invokeMethod(&window.window(), "hid_receiveData", Q_ARG(HidPacket, packet));
    };
    int received = 0;
    connect(window.window().findChild<Receiver *>(), &Receiver::strayReceived, this, [&] {
        if (++received == 1) {
            for (int i = 0; i < reports; ++i) {
                give();
            }
        }
    });
    give();
    QTRY_COMPARE(received, 1 + mebibyte / reportSize);
    window.window().findChild<MessageLog *>()->bringIn();
    QCOMPARE(window.message(window.messageCount() - 1),
             QStringList({"HID", "", "", "", "", "3584 bytes dropped", ""}));
}

void TestHid::theHeaderIsTheSerialTabs()
{
    HidWindow window;
    window.openDevice(smallHid);
    window.edit("lineEdit_SBytes")->setText("0x12,0x34");
    window.edit("lineEdit_SBytes_2")->setText("0xAB,0xCD");
    window.setRow(0, "01", "0300", "01");
    window.sendCurrentRow();
    QTRY_COMPARE(FakeHid::instance().written().size(), 1);
    QCOMPARE(FakeHid::instance().written().first(), report(hex("123404") + hex("01030001")));
}

void TestHid::aFailedWriteEndsLoopAndLink()
{
    HidWindow window;
    window.openDevice(smallHid);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    window.edit("lineEdit_StepValue")->setText("20");
    window.edit("lineEdit_CycleTime")->setText("20");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 2);
    FakeHid::instance().failWrites();
    QTRY_COMPARE(window.linkCaption(), QString("Open HID Device"));
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    QVERIFY(window.find<QTabWidget>("tabWidget")->isEnabled());
    QCOMPARE(FakeHid::instance().openHandles(), 0);
    QCOMPARE(FakeHid::instance().misuses(), 0);
}

void TestHid::theLoopRestsTheWidgetsOfTheTab()
{
    HidWindow window;
    window.openDevice(smallHid);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    window.click("pushButton_Start_Loop");
    const QStringList resting{"pushButton_ConnectHID", "checkBox_CRC_EN_2", "pushButton_SendAll_2",
                              "lineEdit_SBytes_2"};
    for (const QString &name : resting) {
        const auto *widget = window.find<QWidget>(qPrintable(name));
        QVERIFY2(!widget->isEnabledTo(widget->parentWidget()), qPrintable(name));
    }
    const auto *serialButton = window.button("pushButton_OpenCom");
    QVERIFY(serialButton->isEnabledTo(serialButton->parentWidget()));
    window.click("pushButton_Start_Loop");
    for (const QString &name : resting) {
        QVERIFY2(window.find<QWidget>(qPrintable(name))->isEnabled(), qPrintable(name));
    }
}

void TestHid::aLoopThatOutrunsTheDeviceWaits()
{
    HidWindow window;
    window.openDevice(smallHid);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    window.edit("lineEdit_StepValue")->setText("0");
    window.edit("lineEdit_CycleTime")->setText("0");
    const QSignalSpy sent(window.window().findChild<Sender *>(), &Sender::sent);
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(FakeHid::instance().written().size() >= 5);
    // One may be on its way to the device, and one may wait.
    QVERIFY(sent.size() <= FakeHid::instance().written().size() + 2);
    window.click("pushButton_Start_Loop");
    QTRY_COMPARE(FakeHid::instance().written().size(), sent.size());
}

void TestHid::leavingTheTabClosesTheDevice()
{
    HidWindow window;
    window.openDevice(smallHid);
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(0);
    QCOMPARE(window.linkCaption(), QString("Open HID Device"));
    QCOMPARE(FakeHid::instance().openHandles(), 0);
}

void TestHid::closingTheWindowClosesTheDevice()
{
    {
        HidWindow window;
        window.openDevice(smallHid);
        QCOMPARE(FakeHid::instance().openHandles(), 1);
    }
    QCOMPARE(FakeHid::instance().openHandles(), 0);
    QCOMPARE(FakeHid::instance().misuses(), 0);
}

/// Reports come and go all the time while the device is opened and closed in every way.
void TestHid::connectingUnderLoad()
{
    HidWindow window;
    auto *tabs = window.find<QTabWidget>("tabWidget");
    window.setRow(0, "01", "0300", QString("11").repeated(200));
    for (int round = 0; round < 12; ++round) {
        tabs->setCurrentIndex(1);
        loadDevice(window, round % 2 == 0 ? smallHid : largeDevice);
        round % 3 == 0 ? window.click("pushButton_ConnectHID") : tabs->setCurrentIndex(0);
        QCOMPARE(window.linkCaption(), QString("Open HID Device"));
        QCOMPARE(FakeHid::instance().openHandles(), 0);
    }
    QCOMPARE(FakeHid::instance().misuses(), 0);
}

void TestHid::closingTheWindowUnderLoad()
{
    for (int round = 0; round < 5; ++round) {
        HidWindow window;
        window.setRow(0, "01", "0300", QString("11").repeated(200));
        loadDevice(window, largeDevice);
    }
    QCOMPARE(FakeHid::instance().openHandles(), 0);
    QCOMPARE(FakeHid::instance().misuses(), 0);
}

QTEST_MAIN(TestHid)
#include "tst_hid.moc"
