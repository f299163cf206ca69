#include "log/receiver.h"
#include "runningdevice.h"
#include "windowdriver.h"

#include <QElapsedTimer>
#include <QtTest>

/// The window and the simulated device as two processes with a pseudo-terminal between them.
class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void everyRowIsAnswered();
    void aDisturbedLineLosesNoFrame();
    void aDeviceThatEndsEndsTheLink();
};

namespace {

/// How long the disturbed loop runs, in ms; a longer trial sets the variable.
int loopTimeMs()
{
    constexpr int shortTrialMs = 2000;
    const int seconds = qEnvironmentVariableIntValue("TARNWICK_TRIAL_SECONDS");
    return seconds > 0 ? seconds * 1000 : shortTrialMs;
}

void open(WindowDriver &window, const QString &port)
{
    QComboBox *ports = window.combo("comboBox_Comm");
    ports->addItem(port);
    ports->setCurrentIndex(ports->count() - 1);
    window.click("pushButton_OpenCom");
    QCOMPARE(window.button("pushButton_OpenCom")->text(), QString("Linking..."));
}

void fillRequests(WindowDriver &window)
{
    window.setRow(0, "10", "0010", "1234 ABCD");
    window.setRow(1, "03", "0010", "0002");
    window.setRow(2, "42", "4865", "6C6C6F");
    for (const int row : {0, 1, 2}) {
        window.checkRow(row);
    }
}

/// Counts what the window receives, by kind of frame.
class Tally : public QObject
{
public:
    explicit Tally(Receiver *receiver)
    {
        connect(receiver, &Receiver::frameReceived, this, &Tally::count);
    }

    int replies = 0;
    int errors = 0;
    QVector<quint32> statusNumbers;

private:
    void count(const QByteArray &frame)
    {
        const auto cmd = static_cast<quint8>(frame.at(3));
        if (cmd == 0x53) {
            statusNumbers.append(frame.mid(6, 4).toHex().toUInt(nullptr, 16));
        } else if (cmd >= 0x80) {
            ++errors;
        } else {
            ++replies;
        }
    }
};

/// The longest time that the event loop was not at work, in ms.
class Heartbeat : public QObject
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this,
                [this] { longestMs = qMax(longestMs, m_sinceLast.restart()); });
        m_sinceLast.start();
        m_timer.start(1);
    }

    qint64 longestMs = 0;

private:
    QTimer m_timer;
    QElapsedTimer m_sinceLast;
};

} // namespace

void TestSession::everyRowIsAnswered()
{
    RunningDevice device;
    QVERIFY(device.startOnly({"--crc"}));
    WindowDriver window;
    open(window, device.printedPath());
    window.check("checkBox_CRC_EN")->setChecked(true);
    fillRequests(window);
    Tally tally(window.window().findChild<Receiver *>());
    for (const int row : {0, 1, 2}) {
        window.clickSend(row);
        QTRY_COMPARE(tally.replies, row + 1);
    }
    window.click("pushButton_SendAll");
    QTRY_COMPARE(tally.replies, 6);
    QCOMPARE(tally.errors, 0);
    QCOMPARE(window.messageCount(), 12);
    QCOMPARE(window.message(3).at(5), QString(" 12 34 AB CD "));
}

void TestSession::aDisturbedLineLosesNoFrame()
{
    MessageBoxes boxes;
    RunningDevice device;
    QVERIFY(device.startOnly({"--split", "--garbage", "3", "--chatter", "200", "--seed", "5"}));
    WindowDriver window;
    open(window, device.printedPath());
    fillRequests(window);
    Tally tally(window.window().findChild<Receiver *>());
    int sent = 0;
    connect(window.window().findChild<Sender *>(), &Sender::sent, this, [&sent] { ++sent; });
    window.edit("lineEdit_StepValue")->setText("10");
    window.edit("lineEdit_CycleTime")->setText("10");
    Heartbeat heartbeat;
    window.click("pushButton_Start_Loop");
    QElapsedTimer elapsed;
    elapsed.start();
    const auto hasRunLong = [&] {
        return elapsed.hasExpired(loopTimeMs()) && sent > 10 && tally.statusNumbers.size() > 10;
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasRunLong(), loopTimeMs() + 20000);
    window.click("pushButton_Start_Loop");
    QTRY_COMPARE(tally.replies, sent);
    qInfo("%d frames sent and answered, %d status frames, longest stall %lld ms", sent,
          tally.statusNumbers.size(), heartbeat.longestMs);
    QCOMPARE(boxes.texts(), QStringList());
    QCOMPARE(tally.errors, 0);
    for (int i = 1; i < tally.statusNumbers.size(); ++i) {
        QCOMPARE(tally.statusNumbers.at(i), tally.statusNumbers.at(i - 1) + 1);
    }
}

void TestSession::aDeviceThatEndsEndsTheLink()
{
    MessageBoxes boxes;
    RunningDevice device;
    QVERIFY(device.startOnly({"--chatter", "100"}));
    WindowDriver window;
    open(window, device.printedPath());
    fillRequests(window);
    window.edit("lineEdit_StepValue")->setText("5");
    window.edit("lineEdit_CycleTime")->setText("5");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() > 10);
    device.process().kill();
    QTRY_COMPARE(window.button("pushButton_OpenCom")->text(), QString("Open Com Port"));
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    QTRY_COMPARE(boxes.texts().size(), 1);
}

QTEST_MAIN(TestSession)
#include "tst_session.moc"
