#include "app/datafolder.h"
#include "devicewindow.h"
#include "emulatedhid.h"

#include <QFile>
#include <QtTest>

#include <unistd.h>

/// The HID tab of the real window with devices of the system that come and go.
class TestHidDevices : public QObject
{
    Q_OBJECT

private slots:
    void arrivalIsLoggedAndListed_data();
    void arrivalIsLoggedAndListed();
    void aHundredFramesEachWay_data();
    void aHundredFramesEachWay();
    void framesLongerThanAReport_data();
    void framesLongerThanAReport();
    void pulledOutInTheLoop_data();
    void pulledOutInTheLoop();
    void pulledOutWhileIdle();
    void pulledOutDuringAMessage();
    void anotherDeviceIsPulledOut();
    void inAndOutAgain();
    void withoutPermission();
};

namespace {

const QString smallProduct = QStringLiteral("1616");
constexpr int smallReport = 64;
const QString largeProduct = QStringLiteral("2929");
constexpr int largeReport = 512;
const QString forbiddenProduct = QStringLiteral("0001");

void addBothDevices()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("reportSize");
    QTest::newRow("64 bytes") << smallProduct << smallReport;
    QTest::newRow("512 bytes") << largeProduct << largeReport;
}

QString eventText(const QString &what, const QString &path, const QString &product)
{
    return what + ' ' + path.toUpper() + QStringLiteral("#VID_EEEF&PID_") + product;
}

/// A window on its HID tab with one device plugged in and offered.
class EmulatedHidWindow : public DeviceWindow
{
public:
    explicit EmulatedHidWindow(const QString &product = smallProduct, int reportSize = smallReport)
        : DeviceWindow(Tab::Hid)
        , device(product, reportSize)
        , m_product(product)
    {
        plugIn();
    }

    void plugIn()
    {
        QVERIFY(device.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(offered().size(), 1, patienceMs);
        path = offered().constFirst();
        // Only when it is announced may it be used.
        ++m_arrivals;
        QTRY_COMPARE_WITH_TIMEOUT(events(eventText("Insert", path, m_product)), m_arrivals,
                                  patienceMs);
    }

    void openDevice()
    {
        open(path);
        QTRY_VERIFY(showsOpenLink());
    }

    void awaitEnd()
    {
        QTRY_COMPARE_WITH_TIMEOUT(events(eventText("Remove", path, m_product)), m_arrivals,
                                  patienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(offered(), QStringList(), patienceMs);
        QVERIFY(isAtRest());
    }

    EmulatedHid device;
    QString path;

private:
    QString m_product;
    int m_arrivals = 0;
};

} // namespace

void TestHidDevices::arrivalIsLoggedAndListed_data()
{
    addBothDevices();
}

void TestHidDevices::arrivalIsLoggedAndListed()
{
    QFETCH(QString, product);
    QFETCH(int, reportSize);
    EmulatedHidWindow window(product, reportSize);
    QVERIFY2(window.path.startsWith("/dev/hidraw"), qPrintable(window.path));
    QCOMPARE(window.events(eventText("Insert", window.path, product)), 1);
    QVERIFY(window.device.pullOut());
    window.awaitEnd();
}

void TestHidDevices::aHundredFramesEachWay_data()
{
    addBothDevices();
}

void TestHidDevices::aHundredFramesEachWay()
{
    QFETCH(QString, product);
    QFETCH(int, reportSize);
    MessageBoxes boxes;
    EmulatedHidWindow window(product, reportSize);
    window.openDevice();
    window.sendRequests(100);
    QCOMPARE(window.sentFrames().size(), 100);
    QTRY_COMPARE_WITH_TIMEOUT(window.receivedFrames().size(), 100, 60000);
    QCOMPARE(window.receivedFrames(), window.sentFrames());
    QCOMPARE(window.notices(), 0);
    qInfo("%s listed and opened, reports of %d bytes, 100 frames sent, the same 100 received",
          qPrintable(window.path), reportSize);
    QCOMPARE(boxes.texts(), QStringList());
    QVERIFY(window.device.pullOut());
    window.awaitEnd();
}

void TestHidDevices::framesLongerThanAReport_data()
{
    addBothDevices();
}

void TestHidDevices::framesLongerThanAReport()
{
    QFETCH(QString, product);
    QFETCH(int, reportSize);
    MessageBoxes boxes;
    EmulatedHidWindow window(product, reportSize);
    window.openDevice();
    window.setRow(0, "10", "0100", QString("A1B2C3D4").repeated(200));
    window.setRow(1, "03", "028F", "0002");
    window.clickSend(0);
    window.clickSend(1);
    QTRY_COMPARE_WITH_TIMEOUT(window.receivedFrames().size(), 2, DeviceWindow::patienceMs);
    QCOMPARE(window.receivedFrames().at(0).toHex(), QByteArray("5aa5051001000190"));
    QCOMPARE(window.receivedFrames().at(1).toHex(), QByteArray("5aa507030002c3d40290"));
    QVERIFY(window.device.pullOut());
}

void TestHidDevices::pulledOutInTheLoop_data()
{
    addBothDevices();
}

void TestHidDevices::pulledOutInTheLoop()
{
    QFETCH(QString, product);
    QFETCH(int, reportSize);
    MessageBoxes boxes;
    EmulatedHidWindow window(product, reportSize);
    window.openDevice();
    window.writeRequests();
    window.startLoop();
    QTRY_VERIFY_WITH_TIMEOUT(window.receivedFrames().size() >= 5, DeviceWindow::patienceMs);
    QVERIFY(!window.isAtRest());
    QVERIFY(window.device.pullOut());
    QTRY_VERIFY_WITH_TIMEOUT(window.isAtRest(), DeviceWindow::patienceMs);
    const int sent = window.sentFrames().size();
    window.awaitEnd();
    QCOMPARE(window.sentFrames().size(), sent);
    QCOMPARE(boxes.texts(), QStringList());
}

void TestHidDevices::pulledOutWhileIdle()
{
    MessageBoxes boxes;
    EmulatedHidWindow window;
    window.openDevice();
    QVERIFY(window.device.pullOut());
    window.awaitEnd();
    QCOMPARE(boxes.texts(), QStringList());
}

void TestHidDevices::pulledOutDuringAMessage()
{
    MessageBoxes boxes;
    EmulatedHidWindow window;
    window.openDevice();
    connect(&boxes, &MessageBoxes::shown, this, [&window] {
        QVERIFY(window.device.pullOut());
        window.awaitEnd();
    });
    window.setRow(0, "11", "", QString("22").repeated(299));
    window.clickSend(0);
    QCOMPARE(boxes.texts().size(), 1);
    QVERIFY(window.isAtRest());
}

void TestHidDevices::anotherDeviceIsPulledOut()
{
    EmulatedHidWindow window;
    window.openDevice();
    window.writeRequests();
    window.startLoop();
    EmulatedHid other(largeProduct, largeReport);
    QVERIFY(other.plugIn());
    QTRY_COMPARE_WITH_TIMEOUT(window.offered().size(), 2, DeviceWindow::patienceMs);
    // Devices are listed in the order of the device-ID file, which has the large one first.
    const QString otherPath = window.offered().constFirst();
    QVERIFY(other.pullOut());
    QTRY_COMPARE_WITH_TIMEOUT(window.events(eventText("Remove", otherPath, largeProduct)), 1,
                              DeviceWindow::patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(window.offered(), QStringList(window.path), DeviceWindow::patienceMs);
    QVERIFY(window.showsOpenLink());
    const int received = window.receivedFrames().size();
    QTRY_VERIFY_WITH_TIMEOUT(window.receivedFrames().size() > received, DeviceWindow::patienceMs);
    QVERIFY(window.device.pullOut());
    window.awaitEnd();
}

void TestHidDevices::inAndOutAgain()
{
    EmulatedHidWindow window;
    for (int turn = 1; turn <= 5 && !QTest::currentTestFailed(); ++turn) {
        window.openDevice();
        window.writeRequests();
        window.clickSend(0);
        QTRY_COMPARE_WITH_TIMEOUT(window.receivedFrames().size(), turn, DeviceWindow::patienceMs);
        QVERIFY(window.device.pullOut());
        window.awaitEnd();
        window.plugIn();
    }
}

void TestHidDevices::withoutPermission()
{
    QFile types(dataFile("hidDeviceID.ini"));
    QVERIFY(types.open(QIODevice::Append));
    types.write(qPrintable("\nVID_EEEF,PID_" + forbiddenProduct + ",64"));
    types.close();
    MessageBoxes boxes;
    EmulatedHidWindow window(forbiddenProduct);
    QVERIFY(::access(qPrintable(window.path), F_OK) == 0);
    QVERIFY(::access(qPrintable(window.path), R_OK | W_OK) != 0);
    window.open(window.path);
    QTRY_COMPARE(boxes.texts(), QStringList{"Open fail"});
    QCOMPARE(boxes.titles(), QStringList{"HID"});
    QVERIFY(window.isAtRest());
    QVERIFY(types.remove());
}

QTEST_MAIN(TestHidDevices)
#include "tst_hiddevices.moc"
