#include "comingdevices.h"
#include "fakehid.h"
#include "fakesystemwatch.h"
#include "hidwindow.h"

#include <QSignalSpy>
#include <QtTest>

#include <functional>

/// What the window makes of a device that goes while it is in use.
class TestRemoval : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void removalEndsTheLink_data();
    void removalEndsTheLink();
    void removalWhileTheLinkIsBeingOpened();
    void removalWithAFailedWriteUnderWay();
    void removalOfThePortEndsTheLoop();
    void anotherDevicesRemovalIsOnlyLogged_data();
    void anotherDevicesRemovalIsOnlyLogged();
    void theEditorStaysOpen();
};

namespace {

const QString smallRemoved = "Remove /DEV/HIDRAW-OF-A-TEST-1#VID_EEEF&PID_1616";

FakeHid &hid()
{
    return FakeHid::instance();
}

/// What rests while the loop runs or the device is open.
const QStringList widgets{"pushButton_LoadCommand",
                          "pushButton_ClearCommand",
                          "pushButton_SaveCommand",
                          "pushButton_SaveMessage",
                          "pushButton_ConnectHID",
                          "pushButton_SendAll_2",
                          "checkBox_CRC_EN_2",
                          "lineEdit_SBytes_2",
                          "lineEdit_StepValue",
                          "lineEdit_CycleTime",
                          "lineEdit_RpID",
                          "comboBox_Hid_Device",
                          "tabWidget"};

QStringList disabledOf(const WindowDriver &window)
{
    QStringList disabled;
    for (const QString &name : widgets) {
        if (!window.find<QWidget>(qPrintable(name))->isEnabled()) {
            disabled.append(name);
        }
    }
    return disabled;
}

/// A window with the small device open and two checked rows with a pause between them.
class OpenWindow : public HidWindow
{
public:
    explicit OpenWindow(const QString &interval = "5", const QString &cycleDelay = "5",
                        const QString &pause = "5")
        : sent(window().findChild<Sender *>(), &Sender::sent)
    {
        openDevice(smallNode);
        edit("lineEdit_StepValue")->setText(interval);
        edit("lineEdit_CycleTime")->setText(cycleDelay);
        setRow(0, "03", "0000", "0001");
        setRow(1, "++", "", pause);
        setRow(2, "42", "0002", "0202");
        for (const int row : {0, 1, 2}) {
            checkRow(row);
        }
    }

    void startLoop() { click("pushButton_Start_Loop"); }
    void waitForFrames(int frames)
    {
        QVERIFY(QTest::qWaitFor([this, frames] { return sent.size() >= frames; }));
    }
    void addOverlongRow()
    {
        setRow(3, "42", "0000", QString("00").repeated(65536));
        checkRow(3);
    }

    QSignalSpy sent;
};

void loopOf(OpenWindow &window, int frames)
{
    window.startLoop();
    window.waitForFrames(frames);
    pullOutSmall();
}

void waitUntilClosed()
{
    QVERIFY(QTest::qWaitFor([] { return hid().openHandles() == 0; }));
}

/// Pulls the device out as soon as a message is up.
void pullOutAtMessage(const std::function<void()> &action)
{
    MessageBoxes boxes;
    QObject::connect(&boxes, &MessageBoxes::shown, [](const QString & /*text*/) {
        if (hid().openHandles() > 0) {
            pullOutSmall();
        }
    });
    action();
    QCOMPARE(boxes.texts().size(), 1);
}

using Removal = std::function<void(OpenWindow &)>;

} // namespace

Q_DECLARE_METATYPE(Removal)

void TestRemoval::init()
{
    attachBoth();
}

void TestRemoval::cleanup()
{
    verifyNothingIsOpen();
}

namespace {

const QStringList quickLoop{"5", "5", "5"};

void row(const char *name, const QStringList &times, const Removal &removal)
{
    QTest::newRow(name) << times.at(0) << times.at(1) << times.at(2) << removal << false;
}

void rowWithoutFrames(const char *name, const Removal &removal)
{
    QTest::newRow(name) << quickLoop.at(0) << quickLoop.at(1) << quickLoop.at(2) << removal << true;
}

/// The device goes while a message is up.
void addRowsWithMessages()
{
    rowWithoutFrames("message of a batch", [](OpenWindow &window) {
        window.addOverlongRow();
        pullOutAtMessage([&window] { window.click("pushButton_SendAll_2"); });
    });
    rowWithoutFrames("message of a single row", [](OpenWindow &window) {
        window.setRow(3, "42", "0000", QString("00").repeated(300));
        pullOutAtMessage([&window] { window.sendCurrentRow(); });
    });
    rowWithoutFrames("message at the loop's start", [](OpenWindow &window) {
        window.addOverlongRow();
        pullOutAtMessage([&window] { window.startLoop(); });
    });
    row("message in the loop", quickLoop, [](OpenWindow &window) {
        window.setRow(2, "42", "0002", "020");
        pullOutAtMessage([&window] {
            window.startLoop();
            waitUntilClosed();
        });
    });
}

} // namespace

void TestRemoval::removalEndsTheLink_data()
{
    QTest::addColumn<QString>("interval");
    QTest::addColumn<QString>("cycleDelay");
    QTest::addColumn<QString>("pause");
    QTest::addColumn<Removal>("removal");
    QTest::addColumn<bool>("nothingIsSent");

    row("idle", quickLoop, [](OpenWindow & /*window*/) { pullOutSmall(); });
    row("announced by its IDs alone", quickLoop, [](OpenWindow & /*window*/) {
        hid().removeDevice(smallNode);
        FakeSystem::instance().pullOut({DeviceKind::Hid, "VID_EEEF&PID_1616", "VID_EEEF&PID_1616"});
    });
    row("running loop", quickLoop, [](OpenWindow &window) { loopOf(window, 3); });
    row("loop of blocks", {"0", "5", "5"}, [](OpenWindow &window) { loopOf(window, 3); });
    row("in the interval", {"10000", "5", "5"}, [](OpenWindow &window) { loopOf(window, 1); });
    row("in the cycle delay", {"5", "10000", "5"}, [](OpenWindow &window) { loopOf(window, 0); });
    row("in a pause", {"5", "5", "10000"}, [](OpenWindow &window) { loopOf(window, 1); });
    row("in a pause between blocks", {"0", "5", "10000"},
        [](OpenWindow &window) { loopOf(window, 1); });
    row("reports of a batch wait", quickLoop, [](OpenWindow &window) {
        window.click("pushButton_SendAll_2");
        pullOutSmall();
    });
    addRowsWithMessages();
    row("direct editor is open", quickLoop, [](OpenWindow &window) {
        window.window().findChild<RowEditor *>()->open(0);
        pullOutSmall();
    });
    row("direct editor is open over a loop", quickLoop, [](OpenWindow &window) {
        window.startLoop();
        window.window().findChild<RowEditor *>()->open(0);
        window.waitForFrames(3);
        pullOutSmall();
    });
}

void TestRemoval::removalEndsTheLink()
{
    QFETCH(QString, interval);
    QFETCH(QString, cycleDelay);
    QFETCH(QString, pause);
    QFETCH(Removal, removal);
    QFETCH(bool, nothingIsSent);

    OpenWindow window(interval, cycleDelay, pause);
    QCOMPARE(window.linkCaption(), QString("Linking..."));
    removal(window);
    QVERIFY(!nothingIsSent || window.sent.isEmpty());
    QCOMPARE(window.linkCaption(), QString("Open HID Device"));
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    QCOMPARE(disabledOf(window), QStringList());
    QCOMPARE(hid().count(HidCall::Function::Close), 1);
    const int rows = window.messageCount();
    const int sent = window.sent.size();
    QCOMPARE(window.message(rows - 1).at(0), QString("HID"));
    QVERIFY(QRegularExpression("^Remove (/DEV/HIDRAW-OF-A-TEST-1#)?VID_EEEF&PID_1616$")
                .match(window.message(rows - 1).at(5))
                .hasMatch());

    // Nothing of it goes on: the next refresh finds the window as it was left.
    QTRY_COMPARE(window.combo("comboBox_Hid_Device")->count(), 1);
    QCOMPARE(window.messageCount(), rows);
    QCOMPARE(window.sent.size(), sent);
    QVERIFY(!window.window().findChild<SendLoop *>()->isRunning());
}

/// The message of a failed opening is up, and with it the list of devices from before.
void TestRemoval::removalWhileTheLinkIsBeingOpened()
{
    HidWindow window;
    hid().setOpenable(smallNode, false);
    MessageBoxes boxes;
    connect(&boxes, &MessageBoxes::shown, this, [](const QString & /*text*/) { pullOutSmall(); });
    window.openDevice(smallNode);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QCOMPARE(window.message(0), deviceRow("HID", smallRemoved));
    QCOMPARE(disabledOf(window), QStringList());
    QTRY_COMPARE(window.combo("comboBox_Hid_Device")->count(), 1);
    window.openDevice(largeNode);
    QCOMPARE(window.linkCaption(), QString("Linking..."));
}

void TestRemoval::removalWithAFailedWriteUnderWay()
{
    OpenWindow window;
    hid().failWrites();
    const int writtenBefore = hid().written().size();
    window.sendCurrentRow();
    // The worker's word is still on its way when the announcement comes.
    while (hid().written().size() == writtenBefore) {
        QThread::yieldCurrentThread();
    }
    pullOutSmall();
    QCOMPARE(window.linkCaption(), QString("Open HID Device"));
    window.openDevice(largeNode);
    QTRY_COMPARE(window.combo("comboBox_Hid_Device")->count(), 1);
    QCOMPARE(window.linkCaption(), QString("Linking..."));
    QCOMPARE(hid().count(HidCall::Function::Close), 1);
}

void TestRemoval::removalOfThePortEndsTheLoop()
{
    const TestPort serialPort;
    WindowDriver window;
    window.open(serialPort);
    window.setRow(0, "03", "0000", "0001");
    window.checkRow(0);
    window.edit("lineEdit_StepValue")->setText("5");
    window.edit("lineEdit_CycleTime")->setText("5");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 2);
    FakeSystem::instance().pullOut(portDevice(serialPort.path()));
    QCOMPARE(window.button("pushButton_OpenCom")->text(), QString("Open Com Port"));
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    for (const char *name : {"pushButton_OpenCom", "pushButton_SendAll", "checkBox_CRC_EN",
                             "lineEdit_SBytes", "tabWidget", "comboBox_Comm"}) {
        QVERIFY2(window.find<QWidget>(name)->isEnabled(), name);
    }
    QCOMPARE(window.message(window.messageCount() - 1),
             deviceRow("Uart", "Remove " + serialPort.path()));
}

void TestRemoval::anotherDevicesRemovalIsOnlyLogged_data()
{
    QTest::addColumn<WatchedDevice>("device");

    QTest::newRow("other product") << hidDevice(largeNode, largeIds);
    QTest::newRow("other vendor") << hidDevice(largeNode, {0xEEEE, 0x1616});
    QTest::newRow("spare of the same type") << hidDevice("/dev/hidraw-spare", smallIds);
    QTest::newRow("unknown device") << hidDevice(largeNode, {});
    QTest::newRow("port") << portDevice("ttyUSB0");
    QTest::newRow("port with the IDs in its name") << portDevice("VID_EEEF&PID_1616");
}

void TestRemoval::anotherDevicesRemovalIsOnlyLogged()
{
    QFETCH(WatchedDevice, device);

    OpenWindow window;
    window.startLoop();
    FakeSystem::instance().pullOut(device);
    QVERIFY(window.message(window.messageCount() - 1).at(5).startsWith("Remove "));
    QCOMPARE(window.linkCaption(), QString("Linking..."));
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    const int sent = window.sent.size();
    QTRY_VERIFY(window.sent.size() > sent + 2);
}

void TestRemoval::theEditorStaysOpen()
{
    MessageBoxes boxes;
    OpenWindow window;
    window.window().findChild<RowEditor *>()->open(0);
    auto *editor = window.window().findChild<DirectEditor *>();
    pullOutSmall();
    QVERIFY(editor->isVisible());
    editor->close();
    window.clickSend(0);
    QCOMPARE(boxes.texts(), QStringList{"Please open the HID Device!"});
}

QTEST_MAIN(TestRemoval)
#include "tst_removal.moc"
