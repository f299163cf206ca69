#include "comingdevices.h"
#include "fakehid.h"
#include "fakesystemwatch.h"
#include "hidwindow.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QtTest>

/// What the window shows of devices that come and go.
class TestDeviceChanges : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void changesAreLogged_data();
    void changesAreLogged();
    void listsAreRefreshedOnceAfterABurst();
    void lostAnnouncementsRefreshTheLists();
    void theChosenDeviceStaysChosen();
    void anOpenListShowsWhatCame();
    void refusedRegistrationIsTold();
};

namespace {

/// How often the devices have been listed.
int listings()
{
    constexpr int typesInTheFile = 2;
    return FakeHid::instance().count(HidCall::Function::Enumerate) / typesInTheFile;
}

} // namespace

void TestDeviceChanges::init()
{
    attachBoth();
}

void TestDeviceChanges::cleanup()
{
    verifyNothingIsOpen();
}

void TestDeviceChanges::changesAreLogged_data()
{
    QTest::addColumn<WatchedDevice>("device");
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("name");

    QTest::newRow("port") << portDevice("ttyUSB0") << "Uart"
                          << "ttyUSB0";
    QTest::newRow("linked port") << portDevice("/home/me/ports/device") << "Uart"
                                 << "/home/me/ports/device";
    QTest::newRow("HID device") << hidDevice("/dev/hidraw0", smallIds) << "HID"
                                << "/DEV/HIDRAW0#VID_EEEF&PID_1616";
    QTest::newRow("HID device of unknown type") << hidDevice("/dev/hidraw0", {}) << "HID"
                                                << "/DEV/HIDRAW0";
}

void TestDeviceChanges::changesAreLogged()
{
    QFETCH(WatchedDevice, device);
    QFETCH(QString, link);
    QFETCH(QString, name);

    HidWindow window;
    window.openDevice(smallNode);
    window.setRow(0, "03", "0000", "0001");
    FakeSystem::instance().plugIn(device);
    window.clickSend(0);
    FakeSystem::instance().plugIn(hidDevice("/dev/hidraw1", largeIds));
    window.clickSend(0);
    QCOMPARE(window.message(0), deviceRow(link, "Insert " + name));
    // Frames stay numbered without gaps.
    QCOMPARE(window.message(1).at(0), QString("1"));
    QCOMPARE(window.message(3).at(0), QString("2"));
    window.click("pushButton_ConnectHID");
    FakeSystem::instance().pullOut(device);
    QCOMPARE(window.message(4), deviceRow(link, "Remove " + name));
}

void TestDeviceChanges::listsAreRefreshedOnceAfterABurst()
{
    constexpr qint64 refreshAfterMs = 500;
    // What a timer of that length may be early by.
    constexpr qint64 leeway = refreshAfterMs / 20;
    const HidWindow window;
    const int before = listings();
    QElapsedTimer sinceLast;
    for (int i = 0; i < 200; ++i) {
        const auto device = hidDevice("/dev/hidraw" + QByteArray::number(i), largeIds);
        i % 2 == 0 ? FakeSystem::instance().plugIn(device) : FakeSystem::instance().pullOut(device);
        sinceLast.start();
        QTest::qWait(1);
    }
    QCOMPARE(window.messageCount(), 200);
    QCOMPARE(listings(), before);
    QTRY_VERIFY(listings() > before);
    QVERIFY(sinceLast.elapsed() >= refreshAfterMs - leeway);
    QTRY_VERIFY(sinceLast.hasExpired(3 * refreshAfterMs));
    QCOMPARE(listings(), before + 1);
}

void TestDeviceChanges::lostAnnouncementsRefreshTheLists()
{
    const HidWindow window;
    FakeHid::instance().removeDevice(smallNode);
    FakeSystem::instance().loseAnnouncements();
    QTRY_COMPARE(window.combo("comboBox_Hid_Device")->count(), 1);
    QCOMPARE(window.messageCount(), 0);
}

void TestDeviceChanges::theChosenDeviceStaysChosen()
{
    const QByteArray anotherPath = "/dev/hidraw-of-a-test-3";
    const HidWindow window;
    const QComboBox *devices = window.combo("comboBox_Hid_Device");
    window.combo("comboBox_Hid_Device")->setCurrentText(smallNode);
    plugIn(anotherPath, largeIds);
    QTRY_COMPARE(devices->count(), 3);
    QCOMPARE(devices->currentText(), QString(smallNode));
    for (int i = 0; i < devices->count(); ++i) {
        QCOMPARE(devices->itemData(i, Qt::ToolTipRole).toString(), devices->itemText(i));
    }
    pullOut(largeNode, largeIds);
    QTRY_COMPARE(devices->count(), 2);
    QCOMPARE(devices->currentText(), QString(smallNode));
    pullOutSmall();
    QTRY_COMPARE(devices->count(), 1);
    QCOMPARE(devices->currentText(), QString(anotherPath));
}

void TestDeviceChanges::anOpenListShowsWhatCame()
{
    const HidWindow window;
    QComboBox *devices = window.combo("comboBox_Hid_Device");
    const QAbstractItemView *list = devices->view();
    devices->setCurrentText(smallNode);
    devices->showPopup();
    plugIn("/dev/hidraw-of-a-test-3", largeIds);
    QTRY_COMPARE(devices->count(), 3);
    QVERIFY(list->isVisible());
    QVERIFY(list->visualRect(devices->model()->index(2, 0)).bottom() < list->viewport()->height());
    QCOMPARE(list->currentIndex().row(), devices->findText(smallNode));
}

void TestDeviceChanges::refusedRegistrationIsTold()
{
    FakeSystem::instance().setRefusing(true);
    MessageBoxes boxes;
    HidWindow window;
    QTRY_COMPARE(boxes.texts(),
                 QStringList{"The hardware monitoring registration failed, and the hardware could "
                             "not be identified!"});
    QCOMPARE(boxes.titles(), QStringList{"Message"});
    window.openDevice(smallNode);
    window.setRow(0, "03", "0000", "0001");
    window.clickSend(0);
    QTRY_COMPARE(FakeHid::instance().written().size(), 1);
    QCOMPARE(boxes.texts().size(), 1);
}

QTEST_MAIN(TestDeviceChanges)
#include "tst_devicechanges.moc"
