#include "hexbytes.h"
#include "stall.h"
#include "waitingbytes.h"
#include "windowdriver.h"

#include <QElapsedTimer>
#include <QSerialPort>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <thread>

/// What comes in while boxes are up, while somebody types, and while scripts call the window.
class TestReceivingMeanwhile : public QObject
{
    Q_OBJECT

private slots:
    void aBadHeaderIsToldOnceForEachText();
    void aBadHeaderIsNotToldWhileItIsTyped();
    void boxesDoNotStandInTheWay_data();
    void boxesDoNotStandInTheWay();
    void aBoxInTheMiddleOfAFrameLosesNothing();
    void aStallOfTheWindowBreaksNoFrame();
    void theSlotMayBeCalledAtAnyMoment();
};

namespace {

/// All that a window receives, frames and notices alike.
class ReceivedBytes : public QObject
{
public:
    explicit ReceivedBytes(WindowDriver &window)
    {
        const auto *receiver = window.window().findChild<Receiver *>();
        connect(receiver, &Receiver::frameReceived, this, &ReceivedBytes::append);
        connect(receiver, &Receiver::strayReceived, this, &ReceivedBytes::append);
    }

    QByteArray bytes;
    /// Run when the first bytes are received.
    std::function<void()> atFirst = [] {};

private:
    void append(const QByteArray &received)
    {
        const bool isFirst = bytes.isEmpty();
        bytes += received;
        if (isFirst) {
            atFirst();
        }
    }
};

} // namespace

void TestReceivingMeanwhile::aBadHeaderIsToldOnceForEachText()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    QLineEdit *header = window.edit("lineEdit_SBytes");
    header->setText("5A,A5");
    for (int frames = 1; frames <= 20; ++frames) {
        port.send(hex("A55A03030001"));
        QTRY_COMPARE(window.messageCount(), frames);
        QCOMPARE(window.message(frames - 1).at(1), QString("A5 5A"));
        QTRY_COMPARE(boxes.texts(), QStringList{"Startbytes Length error"});
    }
    QCOMPARE(boxes.titles(), QStringList{"Message"});
    header->setText("0x5A,0xA5");
    port.send(hex("5AA503030001"));
    QTRY_COMPARE(window.messageCount(), 21);
    QCOMPARE(boxes.texts().size(), 1);
    header->setText("5A");
    port.send(hex("A55A03030001"));
    QTRY_COMPARE(boxes.texts().size(), 2);
    QTRY_COMPARE(window.messageCount(), 22);
}

/// At any rate of frames the field can be typed in.
void TestReceivingMeanwhile::aBadHeaderIsNotToldWhileItIsTyped()
{
    constexpr qint64 typingMs = 1000;
    // What is left of a timer is told in whole milliseconds.
    constexpr qint64 leewayMs = 1;
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    QLineEdit *header = window.edit("lineEdit_SBytes");
    header->clear();
    QElapsedTimer sinceTyped;
    qint64 longestRestMs = 0;
    int frames = 0;
    for (const char character : QByteArray("0x12,0x34")) {
        QTest::keyClick(header, character);
        sinceTyped.start();
        port.send(character == '4' ? hex("123403030001") : hex("A55A03030001"));
        ++frames;
        QTRY_COMPARE(window.messageCount(), frames);
        longestRestMs = std::max(longestRestMs, sinceTyped.elapsed());
    }
    // A machine may be so slow that this looks as if typing were at an end.
    QVERIFY(boxes.texts().isEmpty() || longestRestMs >= typingMs);
    boxes.takeTexts();
    sinceTyped.start();
    QTest::keyClick(header, Qt::Key_Backspace);
    port.send(hex("A55A03030001"));
    QTRY_COMPARE(boxes.texts().size(), 1);
    const qint64 toldMs = sinceTyped.elapsed();
    QVERIFY2(toldMs >= typingMs - leewayMs, qPrintable(QString::number(toldMs)));
    QCOMPARE(window.messageCount(), frames + 1);
}

void TestReceivingMeanwhile::boxesDoNotStandInTheWay_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("box");
    QTest::addColumn<int>("bytes");

    const QString onThePath = "Startbytes Length error";
    const QString elsewhere = "Not thing to send!";
    const int many = 64 * 1024;
    QTest::newRow("on the receive path, 7 bytes") << "5A" << onThePath << 7;
    QTest::newRow("on the receive path, 64 KiB") << "5A" << onThePath << many;
    QTest::newRow("elsewhere, 7 bytes") << "0x5A,0xA5" << elsewhere << 7;
    QTest::newRow("elsewhere, 64 KiB") << "0x5A,0xA5" << elsewhere << many;
}

/// What comes in while a box is up is shown meanwhile; nothing waits for a further act.
void TestReceivingMeanwhile::boxesDoNotStandInTheWay()
{
    QFETCH(QString, header);
    QFETCH(QString, box);
    QFETCH(int, bytes);
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    const ReceivedBytes received(window);
    window.edit("lineEdit_SBytes")->setText(header);
    QByteArray sent;
    while (sent.size() < bytes) {
        sent += QByteArray::number(sent.size()) + ' ';
    }
    sent.truncate(bytes);
    QByteArray receivedDuringBox;
    std::thread farEnd;
    connect(&boxes, &MessageBoxes::shown, this, [&] {
        farEnd = std::thread([&] { port.send(sent); });
        QTRY_COMPARE(received.bytes.size(), 1 + bytes);
        receivedDuringBox = received.bytes;
    });
    port.send("!");
    QTRY_VERIFY(received.bytes.startsWith('!'));
    if (box == "Not thing to send!") {
        window.click("pushButton_SendAll");
    }
    QTRY_COMPARE(boxes.texts(), QStringList{box});
    QTRY_VERIFY(!receivedDuringBox.isEmpty());
    farEnd.join();
    QCOMPARE(receivedDuringBox, "!" + sent);
    port.send("?");
    QTRY_COMPARE(received.bytes, "!" + sent + "?");
    QCOMPARE(boxes.texts().size(), 1);
}

/// Whoever is told of a frame may keep the user busy with a box.
void TestReceivingMeanwhile::aBoxInTheMiddleOfAFrameLosesNothing()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    ReceivedBytes received(window);
    const QByteArray sent(64 * 1024, 'x');
    std::thread farEnd([&] { port.send(sent); });
    received.atFirst = [&] { QMessageBox::information(&window.window(), "Test", "Box"); };
    QTRY_COMPARE(received.bytes.size(), sent.size());
    farEnd.join();
    QCOMPARE(boxes.texts(), QStringList{"Box"});
    QCOMPARE(received.bytes, sent);
}

/// A start byte's successor that came in time may be read only after the window stood still.
void TestReceivingMeanwhile::aStallOfTheWindowBreaksNoFrame()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    QSignalSpy stray(window.window().findChild<Receiver *>(), &Receiver::strayReceived);
    port.send(hex("075A"));
    QVERIFY(stray.wait());
    port.send(hex("A503030001"));
    const auto *const serialPort = window.window().findChild<QSerialPort *>();
    stallUntil([serialPort] { return waitingInTheSystem(*serialPort) > 0; });
    QTRY_COMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(0).at(5), QString("07 "));
    QCOMPARE(window.message(1).at(5), QString(" 00 01 "));
}

void TestReceivingMeanwhile::theSlotMayBeCalledAtAnyMoment()
{
    WindowDriver window;
    window.call("serial_receiveData");
    TestPort port;
    window.open(port);
    window.call("serial_receiveData");
    const ReceivedBytes received(window);
    QTimer impatience;
    connect(&impatience, &QTimer::timeout, this, [&window] { window.call("serial_receiveData"); });
    impatience.start(0);
    const QByteArray sent(10000, 'x');
    std::thread farEnd([&] { port.send(sent); });
    QTRY_COMPARE(received.bytes, sent);
    farEnd.join();
    window.click("pushButton_OpenCom");
    window.call("serial_receiveData");
}

QTEST_MAIN(TestReceivingMeanwhile)
#include "tst_receivingmeanwhile.moc"
