#include "app/hidpanel.h"
#include "app/hidtab.h"
#include "fakehid.h"
#include "links/hid/hidlink.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/// The "HID" tab and its link, without the window.
class TestHidPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theListShowsWhatIsAttached();
    void theSelectedDeviceStaysSelected();
    void theReportIdIsTypedInHex_data();
    void theReportIdIsTypedInHex();
    void theButtonOpensAndCloses();
    void anOpenDevicesSettingsRest();
    void aDeviceThatDoesNotOpenIsTold();
    void aRunningLoopLeavesTheSettingsAlone();
    void theBoxSaysWhetherThereIsACrc();
};

namespace {

const QByteArray firstPath = "fake#VID_EEEF&PID_1616#1";
const QByteArray secondPath = "fake#VID_EEEF&PID_1616#2";

/// The tab, shown by itself, and the panel behind it; its button does what the window has it do.
class HidTabBench
{
public:
    HidTabBench()
    {
        QObject::connect(button(), &QPushButton::clicked, &panel, &HidPanel::toggle);
        link.readDeviceTypes();
        panel.refreshDevices();
        tab.show();
        tab.activateWindow();
    }

    QComboBox *devices() const { return tab.findChild<QComboBox *>("comboBox_Hid_Device"); }
    QLineEdit *reportId() const { return tab.findChild<QLineEdit *>("lineEdit_RpID"); }
    QLabel *hint() const { return tab.findChild<QLabel *>("label_Hid_Hint"); }
    QPushButton *button() const { return tab.findChild<QPushButton *>("pushButton_ConnectHID"); }
    void click() const { QTest::mouseClick(button(), Qt::LeftButton); }
    bool looksOpen() const { return button()->text() == "Linking..."; }

    QTemporaryDir folder;
    HidTab tab;
    HidLink link{folder.filePath("hidDeviceID.ini")};
    HidPanel panel{tab, link};
};

} // namespace

void TestHidPanel::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(firstPath, 0xEEEF, 0x1616);
    FakeHid::instance().addDevice(secondPath, 0xEEEF, 0x1616);
}

void TestHidPanel::theListShowsWhatIsAttached()
{
    HidTabBench bench;
    QCOMPARE(bench.devices()->count(), 2);
    QCOMPARE(bench.devices()->itemData(1, Qt::ToolTipRole).toByteArray(), secondPath);
    QVERIFY(!bench.hint()->isVisible());
    FakeHid::instance().removeDevice(firstPath);
    FakeHid::instance().removeDevice(secondPath);
    bench.panel.refreshDevices();
    QCOMPARE(bench.devices()->count(), 0);
    QVERIFY(bench.hint()->isVisible());
    QCOMPARE(bench.devices()->placeholderText(), QString("No device, see hidDeviceID.ini"));
}

void TestHidPanel::theSelectedDeviceStaysSelected()
{
    HidTabBench bench;
    QTest::keyClick(bench.devices(), Qt::Key_Down);
    QCOMPARE(bench.tab.devicePath(), QString(secondPath));
    FakeHid::instance().removeDevice(firstPath);
    bench.panel.refreshDevices();
    QCOMPARE(bench.tab.devicePath(), QString(secondPath));
}

void TestHidPanel::theReportIdIsTypedInHex_data()
{
    QTest::addColumn<int>("id");

    QTest::newRow("0x1f") << 0x1F;
    QTest::newRow("2A") << 0x2A;
    QTest::newRow("zz") << 0;
    QTest::newRow("0x101") << 1;
}

void TestHidPanel::theReportIdIsTypedInHex()
{
    const HidTabBench bench;
    bench.reportId()->clear();
    QTest::keyClicks(bench.reportId(), QTest::currentDataTag());
    QTEST(int(bench.tab.reportId()), "id");
}

void TestHidPanel::theButtonOpensAndCloses()
{
    HidTabBench bench;
    QTest::keyClick(bench.devices(), Qt::Key_Down);
    bench.reportId()->setText("0x05");
    bench.click();
    QVERIFY(bench.link.isOpen());
    QCOMPARE(bench.link.openPath(), QString(secondPath));
    QCOMPARE(int(bench.link.reportId()), 5);
    QVERIFY(bench.looksOpen());
    bench.click();
    QVERIFY(!bench.link.isOpen());
    QVERIFY(!bench.looksOpen());
}

void TestHidPanel::anOpenDevicesSettingsRest()
{
    HidTabBench bench;
    QVERIFY(QTest::qWaitForWindowActive(&bench.tab));
    bench.devices()->setFocus();
    bench.panel.open();
    QCOMPARE(QApplication::focusWidget(), bench.button());
    QVERIFY(!bench.devices()->isEnabled());
    QVERIFY(!bench.reportId()->isEnabled());
    // However it is closed.
    bench.link.close();
    QVERIFY(bench.devices()->isEnabled());
    QVERIFY(bench.reportId()->isEnabled());
    QVERIFY(!bench.looksOpen());
}

void TestHidPanel::aDeviceThatDoesNotOpenIsTold()
{
    HidTabBench bench;
    QSignalSpy failed(&bench.panel, &HidPanel::failed);
    FakeHid::instance().setOpenable(firstPath, false);
    bench.click();
    QCOMPARE(failed.count(), 1);
    QVERIFY(!failed[0][0].toString().isEmpty());
    QVERIFY(!bench.looksOpen());
}

void TestHidPanel::aRunningLoopLeavesTheSettingsAlone()
{
    HidTabBench bench;
    for (const bool resting : {true, false}) {
        bench.tab.setResting(resting);
        for (const char *name : {"pushButton_ConnectHID", "checkBox_CRC_EN_2",
                                 "pushButton_SendAll_2", "lineEdit_SBytes_2"}) {
            QVERIFY2(bench.tab.findChild<QWidget *>(name)->isEnabled() != resting, name);
        }
        QVERIFY(bench.devices()->isEnabled());
    }
}

void TestHidPanel::theBoxSaysWhetherThereIsACrc()
{
    const HidTabBench bench;
    QVERIFY(!bench.tab.wantsCrc());
    QTest::keyClick(bench.tab.findChild<QCheckBox *>("checkBox_CRC_EN_2"), Qt::Key_Space);
    QVERIFY(bench.tab.wantsCrc());
}

QTEST_MAIN(TestHidPanel)
#include "tst_hidpanel.moc"
