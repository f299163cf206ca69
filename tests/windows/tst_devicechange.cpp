#include "broadcasts.h"
#include "fakehid.h"
#include "windowdriver.h"

#include <QPixmap>
#include <QScreen>
#include <QtTest>

#include <windows.h>

#include <dbt.h>

class TestDeviceChange : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void registrationSucceeds();
    void portsComeAndGo();
    void hidDevicesComeAndGo();
    void otherMessagesAreLeftAlone_data();
    void otherMessagesAreLeftAlone();
    void listsAreReadAnew();
    void thePortInUseGoesDuringALoop();
    void anotherPortGoesDuringALoop();
    void theHidDeviceInUseGoes();
    void anotherHidDeviceGoes_data();
    void anotherHidDeviceGoes();
};

namespace {

const QString smallDevice = QStringLiteral(R"(\\?\hid#vid_eeef&pid_1616#1)");
const QString otherDevice = QStringLiteral(R"(\\?\hid#vid_eeef&pid_2929#1)");

LRESULT sendChange(WindowDriver &window, WPARAM event, const QByteArray &broadcast)
{
    const auto data = broadcast.isEmpty() ? 0 : LPARAM(broadcast.constData());
    return SendMessageW(HWND(window.window().winId()), WM_DEVICECHANGE, event, data);
}

/// Link name and event text of the log's rows.
QStringList eventsOf(const WindowDriver &window)
{
    QStringList events;
    for (int row = 0; row < window.messageCount(); ++row) {
        events.append(window.message(row).at(0) + ' ' + window.message(row).at(5));
    }
    return events;
}

/// A window that has COM3 open and loops over one row.
class LoopWindow : public WindowDriver
{
public:
    LoopWindow()
    {
        open(port);
        setRow(0, "03", "0000", "0001");
        checkRow(0);
        edit("lineEdit_StepValue")->setText("5");
        edit("lineEdit_CycleTime")->setText("5");
        click("pushButton_Start_Loop");
    }

    QString loopCaption() const { return button("pushButton_Start_Loop")->text(); }
    QString linkCaption() const { return button("pushButton_OpenCom")->text(); }

    TestPort port;
};

/// What the screen shows of the window, for whoever wants to look at it.
void keepPicture(WindowDriver &window)
{
    const QRect place = window.window().frameGeometry();
    QScreen &screen = *QGuiApplication::primaryScreen();
    QVERIFY(screen.grabWindow(0, place.x(), place.y(), place.width(), place.height())
                .save(TARNWICK_PICTURE));
}

void openHid(WindowDriver &window)
{
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(1);
    window.listPorts();
    window.click("pushButton_ConnectHID");
    QCOMPARE(window.button("pushButton_ConnectHID")->text(), QString("Linking..."));
}

} // namespace

void TestDeviceChange::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(smallDevice.toLatin1(), 0xEEEF, 0x1616);
}

void TestDeviceChange::registrationSucceeds()
{
    MessageBoxes boxes;
    const WindowDriver window;
    for (int i = 0; i < 20; ++i) {
        QCoreApplication::processEvents();
    }
    QCOMPARE(boxes.texts(), QStringList());
}

void TestDeviceChange::portsComeAndGo()
{
    WindowDriver window;
    QCOMPARE(sendChange(window, DBT_DEVICEARRIVAL, broadcastOfPort("COM7")), LRESULT(1));
    QCOMPARE(sendChange(window, DBT_DEVICEREMOVECOMPLETE, broadcastOfPort("COM7")), LRESULT(1));
    QCOMPARE(eventsOf(window), QStringList({"Uart Insert COM7", "Uart Remove COM7"}));
}

void TestDeviceChange::hidDevicesComeAndGo()
{
    WindowDriver window;
    sendChange(window, DBT_DEVICEARRIVAL, broadcastOfInterface(smallDevice));
    sendChange(window, DBT_DEVICEREMOVECOMPLETE, broadcastOfInterface(smallDevice));
    QCOMPARE(eventsOf(window), QStringList({R"(HID Insert \\?\HID#VID_EEEF&PID_1616#1)",
                                            R"(HID Remove \\?\HID#VID_EEEF&PID_1616#1)"}));
}

void TestDeviceChange::otherMessagesAreLeftAlone_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<QByteArray>("data");

    const QByteArray port = broadcastOfPort("COM7");
    QTest::newRow("no data") << int(DBT_DEVICEARRIVAL) << QByteArray();
    QTest::newRow("some device changed") << int(DBT_DEVNODES_CHANGED) << QByteArray();
    QTest::newRow("question") << int(DBT_DEVICEQUERYREMOVE) << port;
    QTest::newRow("volume") << int(DBT_DEVICEARRIVAL) << broadcast(2, wideText("COM7"));
    QTest::newRow("size too small") << int(DBT_DEVICEARRIVAL) << littleEndian(8) + port.mid(4);
    QTest::newRow("size past all reason")
        << int(DBT_DEVICEARRIVAL) << littleEndian(0xFFFFFFF0) + port.mid(4);
    QTest::newRow("port without a name")
        << int(DBT_DEVICEREMOVECOMPLETE) << broadcast(portBroadcast, {});
}

void TestDeviceChange::otherMessagesAreLeftAlone()
{
    QFETCH(int, event);
    QFETCH(QByteArray, data);
    WindowDriver window;
    sendChange(window, WPARAM(event), data);
    QCOMPARE(eventsOf(window), QStringList());
}

void TestDeviceChange::listsAreReadAnew()
{
    WindowDriver window;
    QComboBox *ports = window.combo("comboBox_Comm");
    QComboBox *devices = window.combo("comboBox_Hid_Device");
    QTRY_VERIFY(ports->findText("COM3") >= 0);
    const int portCount = ports->count();
    QCOMPARE(devices->count(), 1);
    ports->clear();
    FakeHid::instance().addDevice(otherDevice.toLatin1(), 0xEEEF, 0x2929);
    sendChange(window, DBT_DEVICEARRIVAL, broadcastOfInterface(otherDevice));
    QCOMPARE(ports->count(), 0);
    QTRY_COMPARE(ports->count(), portCount);
    QCOMPARE(devices->count(), 2);
}

void TestDeviceChange::thePortInUseGoesDuringALoop()
{
    MessageBoxes boxes;
    LoopWindow window;
    QTRY_VERIFY(window.messageCount() >= 20);
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    keepPicture(window);
    sendChange(window, DBT_DEVICEREMOVECOMPLETE, broadcastOfPort("COM3"));
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    QCOMPARE(window.linkCaption(), QString("Open Com Port"));
    QCOMPARE(eventsOf(window).last(), QString("Uart Remove COM3"));
    for (const char *name :
         {"pushButton_OpenCom", "pushButton_SendAll", "pushButton_LoadCommand"}) {
        QVERIFY2(window.button(name)->isEnabled(), name);
    }
    QVERIFY(window.combo("comboBox_Comm")->isEnabled());
    QCOMPARE(boxes.texts(), QStringList());
}

void TestDeviceChange::anotherPortGoesDuringALoop()
{
    LoopWindow window;
    sendChange(window, DBT_DEVICEREMOVECOMPLETE, broadcastOfPort("COM30"));
    QVERIFY(eventsOf(window).contains("Uart Remove COM30"));
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    QCOMPARE(window.linkCaption(), QString("Linking..."));
}

void TestDeviceChange::theHidDeviceInUseGoes()
{
    WindowDriver window;
    openHid(window);
    // The system may spell it otherwise than the library did.
    sendChange(window, DBT_DEVICEREMOVECOMPLETE, broadcastOfInterface(smallDevice.toUpper()));
    QCOMPARE(window.button("pushButton_ConnectHID")->text(), QString("Open HID Device"));
    QCOMPARE(FakeHid::instance().openHandles(), 0);
}

void TestDeviceChange::anotherHidDeviceGoes_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("of another type") << otherDevice;
    QTest::newRow("of the same type") << QString(smallDevice).replace("#1", "#2");
}

void TestDeviceChange::anotherHidDeviceGoes()
{
    QFETCH(QString, path);
    WindowDriver window;
    openHid(window);
    sendChange(window, DBT_DEVICEREMOVECOMPLETE, broadcastOfInterface(path));
    QCOMPARE(window.button("pushButton_ConnectHID")->text(), QString("Linking..."));
    QCOMPARE(FakeHid::instance().openHandles(), 1);
}

QTEST_MAIN(TestDeviceChange)
#include "tst_devicechange.moc"
