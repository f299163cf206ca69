#include "devicewindow.h"
#include "serialadapter.h"

#include <QtTest>

/// The serial tab of the real window with a USB serial adapter that comes and goes.
class TestSerialAdapter : public QObject
{
    Q_OBJECT

private slots:
    void aHundredFramesEachWay();
    void pulledOutInTheLoop();
    void pulledOutWhileIdle();
    void theChosenPortComesBack();
};

namespace {

const QString port = QStringLiteral("ttyUSB0");

/// A window on its serial tab with the adapter plugged in and offered.
class AdapterWindow : public DeviceWindow
{
public:
    AdapterWindow()
        : DeviceWindow(Tab::Uart)
    {
        plugIn();
        QTRY_COMPARE_WITH_TIMEOUT(events("Insert ttyUSB0"), 1, patienceMs);
    }

    void plugIn()
    {
        QVERIFY(m_adapter.plugIn());
        QTRY_VERIFY_WITH_TIMEOUT(offered().contains(port), patienceMs);
    }

    void openPort()
    {
        open(port);
        QVERIFY(showsOpenLink());
    }

    void pullOut()
    {
        QVERIFY(m_adapter.pullOut());
        QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), patienceMs);
    }

    void awaitEnd()
    {
        QTRY_COMPARE_WITH_TIMEOUT(events("Remove ttyUSB0"), 1, patienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(!offered().contains(port), patienceMs);
        QVERIFY(isAtRest());
    }

private:
    SerialAdapter m_adapter;
};

/// The port may report that it is gone before the system announces it; then the user is told so.
void verifyNothingElseWasSaid(const QStringList &texts)
{
    QVERIFY2(texts.size() <= 1, qPrintable(texts.join('\n')));
    QVERIFY2(texts.join("").isEmpty() ||
                 texts.constFirst().startsWith("The connection to ttyUSB0 is lost"),
             qPrintable(texts.join('\n')));
}

} // namespace

void TestSerialAdapter::aHundredFramesEachWay()
{
    MessageBoxes boxes;
    AdapterWindow window;
    window.openPort();
    window.sendRequests(100);
    QCOMPARE(window.sentFrames().size(), 100);
    QTRY_COMPARE_WITH_TIMEOUT(window.receivedFrames().size(), 100, 60000);
    QCOMPARE(window.receivedFrames(), window.sentFrames());
    QCOMPARE(window.notices(), 0);
    qInfo("ttyUSB0 listed and opened, 100 frames sent, the same 100 received");
    QCOMPARE(boxes.texts(), QStringList());
    window.pressLinkButton();
    QVERIFY(window.isAtRest());
    window.pullOut();
    window.awaitEnd();
}

void TestSerialAdapter::pulledOutInTheLoop()
{
    MessageBoxes boxes;
    AdapterWindow window;
    window.openPort();
    window.writeRequests();
    window.startLoop();
    QTRY_VERIFY_WITH_TIMEOUT(window.receivedFrames().size() >= 20, DeviceWindow::patienceMs);
    QVERIFY(!window.isAtRest());
    window.pullOut();
    const int sent = window.sentFrames().size();
    window.awaitEnd();
    QCOMPARE(window.sentFrames().size(), sent);
    verifyNothingElseWasSaid(boxes.texts());
}

void TestSerialAdapter::pulledOutWhileIdle()
{
    MessageBoxes boxes;
    AdapterWindow window;
    window.openPort();
    window.pullOut();
    window.awaitEnd();
    verifyNothingElseWasSaid(boxes.texts());
}

void TestSerialAdapter::theChosenPortComesBack()
{
    MessageBoxes boxes;
    AdapterWindow window;
    window.openPort();
    window.pullOut();
    window.awaitEnd();
    window.plugIn();
    QTRY_COMPARE(window.chosen(), port);
    window.pressLinkButton();
    QVERIFY(window.showsOpenLink());
    window.writeRequests();
    window.sendAllRows();
    QTRY_COMPARE_WITH_TIMEOUT(window.receivedFrames(), window.sentFrames(),
                              DeviceWindow::patienceMs);
}

QTEST_MAIN(TestSerialAdapter)
#include "tst_serialadapter.moc"
