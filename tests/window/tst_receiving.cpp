#include "hexbytes.h"
#include "windowdriver.h"

#include <QScrollBar>
#include <QtTest>

class TestReceiving : public QObject
{
    Q_OBJECT

private slots:
    void aFrameIsShownCutIntoItsFields();
    void piecesRubbishAndSeveralFrames_data();
    void piecesRubbishAndSeveralFrames();
    void theHeaderFieldIsReadForEachChunk();
    void aLoneStartByteIsShownAfterASilence();
    void bytesLeftFromOnePortAreJoinedWithTheNextOnes();
    void crcOfTheLastSendDecidesTheColumns();
    void allZeroNoticesOfASerialPortAreShown();
    void aFloodLosesNothing();
    void theLogEmptiesItselfBeforeRow1026();
    void clearLeavesNineEmptyRows();
};

namespace {

const QColor receivedColour(0, 130, 255);

QByteArray numberedFrame(int number)
{
    QByteArray frame = hex("5AA50803");
    for (const int shift : {24, 16, 8, 0}) {
        frame.append(static_cast<char>(number >> shift & 0xFF));
    }
    return frame.append(hex("010203"));
}

/// What row and columns show of a numbered frame's number and rest.
QString numberedData(int number)
{
    return QString(" %1 %2 01 02 03 ")
        .arg(number >> 8 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(number & 0xFF, 2, 16, QLatin1Char('0'))
        .toUpper();
}

/// Sends numbered frames, letting the window take them in between.
void sendNumbered(const TestPort &port, int count)
{
    constexpr int framesOfABurst = 100;
    for (int i = 0; i < count; ++i) {
        port.send(numberedFrame(i));
        if (i % framesOfABurst == 0) {
            QCoreApplication::processEvents();
        }
    }
}

} // namespace

void TestReceiving::aFrameIsShownCutIntoItsFields()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    port.send(hex("5AA50803001001020384 0A"));
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0),
             QStringList({"1", "5A A5", " 08", " 03", "0010", " 01 02 03 84 0A ", ""}));
    for (int column = 0; column < 7; ++column) {
        QCOMPARE(window.messages()->item(0, column)->foreground().color(), receivedColour);
    }
}

void TestReceiving::piecesRubbishAndSeveralFrames_data()
{
    QTest::addColumn<QString>("bytes");
    QTest::addColumn<QStringList>("data");

    QTest::newRow("two in one read") << "5AA503030001"
                                        "5AA503030002"
                                     << QStringList{" 00 01 ", " 00 02 "};
    QTest::newRow("rubbish in front, in the same read") << "0708"
                                                           "5AA503030001"
                                                        << QStringList{"07 08 ", " 00 01 "};
    QTest::newRow("rubbish between and behind") << "5AA503030001"
                                                   "07"
                                                   "5AA503030002"
                                                   "08"
                                                << QStringList{" 00 01 ", "07 ", " 00 02 ", "08 "};
}

void TestReceiving::piecesRubbishAndSeveralFrames()
{
    QFETCH(QString, bytes);
    QFETCH(QStringList, data);
    WindowDriver window;
    TestPort port;
    window.open(port);
    port.send(hex(bytes));
    QTRY_COMPARE(window.messageCount(), data.size());
    for (int row = 0; row < data.size(); ++row) {
        QCOMPARE(window.message(row).at(5), data.at(row));
    }
}

void TestReceiving::theHeaderFieldIsReadForEachChunk()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    port.send(hex("5AA503030001"));
    QTRY_COMPARE(window.messageCount(), 1);
    window.edit("lineEdit_SBytes")->setText("0x05,0xA5");
    port.send(hex("05A503030001"));
    QTRY_COMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(1).at(1), QString("05 A5"));
    port.send(hex("5AA503030001"));
    QTRY_COMPARE(window.messageCount(), 3);
    QCOMPARE(window.message(2), QStringList({"3", "", "", "", "", "5A A5 03 03 00 01 ", ""}));
}

void TestReceiving::aLoneStartByteIsShownAfterASilence()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    port.send(hex("5AA503030001"));
    QTRY_COMPARE(window.messageCount(), 1);
    port.send(hex("5A"));
    QTRY_COMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(1).at(5), QString("5A "));
    port.send(hex("5A"));
    port.send(hex("A503030002"));
    QTRY_COMPARE(window.messageCount(), 3);
    QCOMPARE(window.message(2).at(5), QString(" 00 02 "));
}

void TestReceiving::bytesLeftFromOnePortAreJoinedWithTheNextOnes()
{
    WindowDriver window;
    TestPort first;
    window.open(first);
    first.send(hex("01"
                   "5AA50303"));
    QTRY_COMPARE(window.messageCount(), 1);
    window.click("pushButton_OpenCom");
    TestPort second;
    window.open(second);
    second.send(hex("0007"));
    QTRY_COMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(1).at(5), QString(" 00 07 "));
}

void TestReceiving::crcOfTheLastSendDecidesTheColumns()
{
    const QByteArray frame = hex("5AA50603001001 84 0A");
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    window.check("checkBox_CRC_EN")->setChecked(true);
    port.send(frame);
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0).at(6), QString());
    window.sendCurrentRow();
    port.send(frame);
    QTRY_COMPARE(window.messageCount(), 3);
    QCOMPARE(window.message(2).at(5), QString(" 01 "));
    QCOMPARE(window.message(2).at(6), QString("84 0A "));
}

void TestReceiving::allZeroNoticesOfASerialPortAreShown()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    port.send(hex("0000"));
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0).at(5), QString("00 00 "));
    const QTableWidget &log = *window.messages();
    QCOMPARE(log.item(0, 0)->foreground().color(), receivedColour);
    QCOMPARE(log.item(0, 5)->foreground().color(), receivedColour);
}

void TestReceiving::aFloodLosesNothing()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    constexpr int frames = 5000;
    constexpr int ringSize = 1025;
    sendNumbered(port, frames);
    constexpr int inLog = frames % ringSize;
    QTRY_COMPARE(window.message(inLog - 1).at(0), QString::number(inLog));
    QTRY_COMPARE(window.message(inLog - 1).at(5), numberedData(frames - 1));
    for (int row = 0; row < inLog; ++row) {
        QCOMPARE(window.message(row).at(5), numberedData(frames - inLog + row));
    }
}

void TestReceiving::theLogEmptiesItselfBeforeRow1026()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    sendNumbered(port, 1025);
    QTRY_COMPARE(window.messages()->rowCount(), 1025);
    QTRY_COMPARE(window.message(1024).at(0), QString("1025"));
    port.send(numberedFrame(7));
    QTRY_COMPARE(window.messages()->rowCount(), 9);
    QCOMPARE(window.message(0).at(0), QString("1"));
    QCOMPARE(window.messageCount(), 1);
}

void TestReceiving::clearLeavesNineEmptyRows()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    sendNumbered(port, 30);
    QTRY_COMPARE(window.messageCount(), 30);
    QTRY_VERIFY(window.messages()->verticalScrollBar()->value() > 0);
    window.click("pushButton_ClearMessage");
    QCOMPARE(window.messages()->rowCount(), 9);
    QCOMPARE(window.messageCount(), 0);
    QCOMPARE(window.messages()->verticalScrollBar()->value(), 0);
    port.send(numberedFrame(1));
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0).at(0), QString("1"));
}

QTEST_MAIN(TestReceiving)
#include "tst_receiving.moc"
