#include "loopwindow.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QtTest>

/// A loop that is faster than what it sends to, or than what shows it.
class TestLoopBacklog : public QObject
{
    Q_OBJECT

private slots:
    void aLoopThatOutrunsTheWireWaits_data();
    void aLoopThatOutrunsTheWireWaits();
    void theLogMovesOnBehindTheFrames();
    void stopWorksWhileNothingIsTaken();
    void nothingIsLostWhenTheFarEndReadsAgain();
};

namespace {

/// A window whose loop has two long rows and, where a delay is given, a pause between them. Nobody
/// reads at the far end: what the system takes in is soon full.
class StuffedWindow : public LoopWindow
{
public:
    StuffedWindow(const QString &interval, const QString &delay)
        : LoopWindow(interval, "0", delay)
    {
        setRow(0, "42", "0000", QString("11").repeated(250));
        setRow(2, "42", "0002", QString("22").repeated(250));
        checkRow(1, !delay.isEmpty());
    }

    static constexpr int frameLength = 256;

    /// As many frames as the loop has sent.
    static QByteArray frames(int count)
    {
        QByteArray all;
        for (int i = 0; i < count; ++i) {
            all += QByteArray::fromHex(i % 2 == 0 ? "5AA5FD420000" : "5AA5FD420002");
            all += QByteArray(250, i % 2 == 0 ? '\x11' : '\x22');
        }
        return all;
    }
};

} // namespace

void TestLoopBacklog::aLoopThatOutrunsTheWireWaits_data()
{
    QTest::addColumn<QString>("interval");
    QTest::addColumn<QString>("delay");

    QTest::newRow("fast mode") << "0" << QString();
    QTest::newRow("fast mode with a pause") << "0"
                                            << "1";
    QTest::newRow("interval mode") << "1" << QString();
}

void TestLoopBacklog::aLoopThatOutrunsTheWireWaits()
{
    QFETCH(QString, interval);
    QFETCH(QString, delay);
    StuffedWindow window(interval, delay);
    window.click("pushButton_Start_Loop");
    auto *port = window.window().findChild<QSerialPort *>();
    QTRY_VERIFY(port->bytesToWrite() > 0);
    const qint64 waiting = port->bytesToWrite();
    QVERIFY(waiting <= qint64(2) * StuffedWindow::frameLength);
    QElapsedTimer elapsed;
    elapsed.start();
    QTRY_VERIFY(elapsed.hasExpired(200));
    QCOMPARE(port->bytesToWrite(), waiting);
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    const int before = window.port.received().size();
    QTRY_VERIFY(window.port.received().size() > before + waiting);
    window.click("pushButton_Start_Loop");
}

void TestLoopBacklog::theLogMovesOnBehindTheFrames()
{
    LoopWindow window("2", "0", "1");
    window.checkRow(1, false);
    QElapsedTimer elapsed;
    QVector<qint64> moves;
    connect(window.messages()->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [&] { moves.append(elapsed.elapsed()); });
    elapsed.start();
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(moves.size() >= 5);
    window.click("pushButton_Start_Loop");
    // A frame is always near, so that each move has been put off for as long as may be.
    for (int i = 1; i < moves.size(); ++i) {
        QVERIFY2(moves.at(i) - moves.at(i - 1) >= 50, qPrintable(QString::number(moves.at(i))));
    }
}

void TestLoopBacklog::stopWorksWhileNothingIsTaken()
{
    StuffedWindow window("10", QString());
    auto *port = window.window().findChild<QSerialPort *>();
    QTimer heartbeat;
    int beats = 0;
    connect(&heartbeat, &QTimer::timeout, this, [&] { ++beats; });
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(port->bytesToWrite() > 0);
    // A frame that waits for 2 s, as it may in one go, would leave no room for these.
    QElapsedTimer elapsed;
    elapsed.start();
    heartbeat.start(20);
    QTRY_VERIFY(elapsed.hasExpired(400));
    QVERIFY(beats >= 10);
    const int sent = window.messageCount();
    window.click("pushButton_Start_Loop");
    QCOMPARE(window.loopCaption(), QString("Auto Send"));
    window.port.received();
    QTRY_COMPARE(port->bytesToWrite(), 0);
    QTest::qWait(50);
    QCOMPARE(window.messageCount(), sent);
    QCOMPARE(window.port.received(), window.frames(sent));
}

void TestLoopBacklog::nothingIsLostWhenTheFarEndReadsAgain()
{
    StuffedWindow window("1", QString());
    auto *port = window.window().findChild<QSerialPort *>();
    window.click("pushButton_Start_Loop");
    for (int round = 1; round <= 3; ++round) {
        QTRY_VERIFY(port->bytesToWrite() > 0);
        window.port.received();
    }
    QTRY_VERIFY(port->bytesToWrite() > 0);
    window.click("pushButton_Start_Loop");
    const QByteArray all = StuffedWindow::frames(window.messageCount());
    QTRY_COMPARE(window.port.received().size(), all.size());
    QCOMPARE(window.port.received(), all);
}

QTEST_MAIN(TestLoopBacklog)
#include "tst_loopbacklog.moc"
