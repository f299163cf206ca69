#include "frames/sendloop.h"
#include "hexbytes.h"
#include "windowdriver.h"

#include <QElapsedTimer>
#include <QtTest>

class TestSending : public QObject
{
    Q_OBJECT

private slots:
    void closedLinksAreTold_data();
    void closedLinksAreTold();
    void oneRowIsSentAndLogged();
    void crcIsTakenFromTheTabAtEachSend();
    void aSendButtonSendsTheCurrentRow();
    void pressingASendButtonMakesItsRowCurrent();
    void nothingToSendIsTold_data();
    void nothingToSendIsTold();
    void anOverlongRowIsSentAfterAWarning();
    void overlongRowsAreLeftOutOfABatch();
    void checkedRowsGoOutInOneBlock();
    void aBlockIsLoggedAsItsFrames();
    void aDelayRowSendsNothing();
    void aBadHeaderIsToldOnceForEachAct();
    void sendingNeverWaitsForTheFarEnd();
    void whatPilesUpIsBounded();
    void theHeaderIsReadForEachFrame();
    void headerAndLengthAreLeftOutAsTheSettingsSay();
};

namespace {

const QString hugeData = QString("00").repeated(65535);

} // namespace

void TestSending::closedLinksAreTold_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("message");
    const QStringList operations{"SendOne", "on_pushButton_SendAll_clicked",
                                 "on_pushButton_SendAll_2_clicked",
                                 "on_pushButton_Start_Loop_clicked"};
    for (const QString &operation : operations) {
        QTest::addRow("Uart, %s", qPrintable(operation))
            << 0 << operation << "Please open the Com Port!";
    }
}

void TestSending::closedLinksAreTold()
{
    QFETCH(int, tab);
    QFETCH(QString, slot);
    QFETCH(QString, message);
    MessageBoxes boxes;
    WindowDriver window;
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    window.setRow(0, "03", "0000", "0001");
    window.checkRow(0);
    window.call(qPrintable(slot));
    QCOMPARE(boxes.texts(), QStringList{message});
    QCOMPARE(boxes.titles(), QStringList{"Message"});
    QCOMPARE(window.messageCount(), 0);
    QVERIFY(window.button("pushButton_LoadCommand")->isEnabled());
}

void TestSending::oneRowIsSentAndLogged()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(2, "01", "0300", "00 00 01");
    window.sendCurrentRow();
    QCOMPARE(window.message(0),
             QStringList({"1", "5A A5", " 06", " 01", "0300", " 00 00 01 ", ""}));
    QCOMPARE(window.messages()->item(0, 1)->data(Qt::ForegroundRole), QVariant());
    QTRY_COMPARE(port.received(), hex("5AA506010300000001"));
}

void TestSending::crcIsTakenFromTheTabAtEachSend()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "01", "0300", "00 00 01");
    window.check("checkBox_CRC_EN")->setChecked(true);
    window.check("checkBox_CRC_EN_2")->setChecked(false);
    window.sendCurrentRow();
    QCOMPARE(window.message(0),
             QStringList({"1", "5A A5", " 08", " 01", "0300", " 00 00 01 ", "84 0A "}));
    QTRY_COMPARE(port.received(), hex("5AA508010300000001840A"));
    window.check("checkBox_CRC_EN")->setChecked(false);
    window.sendCurrentRow();
    QCOMPARE(window.message(1).at(6), QString());
}

void TestSending::aSendButtonSendsTheCurrentRow()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "01", "0000", "0101");
    window.setRow(1, "02", "0000", "0202");
    auto *button =
        qobject_cast<QPushButton *>(window.commands()->cellWidget(0, CommandColumn::Send));
    button->click();
    QCOMPARE(window.message(0).at(3), QString(" 02"));
}

void TestSending::pressingASendButtonMakesItsRowCurrent()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "01", "0000", "0101");
    window.setRow(1, "02", "0000", "0202");
    window.clickSend(0);
    QCOMPARE(window.commands()->currentRow(), 0);
    QCOMPARE(window.message(0).at(3), QString(" 01"));
}

void TestSending::nothingToSendIsTold_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("message");

    QTest::newRow("one") << "SendOne" << false << "No thing to send!";
    QTest::newRow("all") << "on_pushButton_SendAll_clicked" << true << "Not thing to send!";
    QTest::newRow("all, no row checked")
        << "on_pushButton_SendAll_clicked" << false << "Not thing to send!";
    QTest::newRow("loop, no row checked")
        << "on_pushButton_Start_Loop_clicked" << false << "Not a Command was selected to send!";
}

void TestSending::nothingToSendIsTold()
{
    QFETCH(QString, slot);
    QFETCH(bool, checked);
    QFETCH(QString, message);
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "0", "", "");
    window.checkRow(0, checked);
    window.call(qPrintable(slot));
    QCOMPARE(boxes.texts(), QStringList{message});
    QCOMPARE(window.messageCount(), 0);
    QVERIFY(window.button("pushButton_SendAll")->isEnabled());
}

void TestSending::anOverlongRowIsSentAfterAWarning()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.check("checkBox_CRC_EN")->setChecked(true);
    window.setRow(0, "11", "", QString("00").repeated(65533));
    window.sendCurrentRow();
    QCOMPARE(boxes.texts(), QStringList{"Instruction length 65536 is out of the maximum "
                                        "range,<br> sending errors may occur!"});
    QTRY_COMPARE(port.received().size(), 3 + 65536);
    QCOMPARE(window.messageCount(), 1);
}

void TestSending::overlongRowsAreLeftOutOfABatch()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    for (const int row : {0, 1, 3}) {
        window.setRow(row, "03", "", row == 1 ? QString("01") : hugeData);
        window.checkRow(row);
    }
    window.click("pushButton_SendAll");
    QCOMPARE(boxes.texts(), QStringList{"row: 1 4 instruction length is out of the maximum range, "
                                        "sending errors may occur!"});
    QTRY_COMPARE(port.received(), hex("5AA5020301"));
    boxes.takeTexts();
    window.checkRow(1, false);
    window.click("pushButton_SendAll");
    QCOMPARE(boxes.texts().last(), QString("Not thing to send!"));
}

void TestSending::checkedRowsGoOutInOneBlock()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    window.setRow(1, "++", "", "500");
    window.setRow(2, "42", "0001", "AA BB");
    window.setRow(3, "42", "0001", "never");
    for (const int row : {0, 1, 2}) {
        window.checkRow(row);
    }
    QElapsedTimer elapsed;
    elapsed.start();
    window.click("pushButton_SendAll");
    QCOMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(0), QStringList({"1", "5A A5", " 05", " 03", "0000", " 00 01 ", ""}));
    QCOMPARE(window.message(1), QStringList({"2", "5A A5", " 05", " 42", "0001", " AA BB ", ""}));
    QTRY_COMPARE(port.received(), hex("5AA5050300000001"
                                      "5AA505420001AABB"));
}

void TestSending::aBlockIsLoggedAsItsFrames()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    // The start bytes inside the data begin a new piece, as the search knows nothing of lengths.
    window.setRow(0, "42", "0001", "5AA5 0203 0405");
    window.setRow(1, "42", "0002", "0102");
    window.checkRow(0);
    window.checkRow(1);
    window.click("pushButton_SendAll");
    QCOMPARE(window.messageCount(), 3);
    QCOMPARE(window.message(1).at(1), QString("5A A5"));
    QCOMPARE(window.message(1).at(2), QString(" 02"));
}

void TestSending::aDelayRowSendsNothing()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "++", "", "1000");
    window.setRow(1, "03", "0000", "0001");
    window.clickSend(0);
    QCOMPARE(boxes.texts(), QStringList{"No thing to send!"});
    QCOMPARE(window.messageCount(), 0);
    window.clickSend(1);
    QTRY_COMPARE(port.received(), hex("5AA5050300000001"));
}

void TestSending::aBadHeaderIsToldOnceForEachAct()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.edit("lineEdit_SBytes")->setText("0x5A, 0xA5");
    for (const int row : {0, 1}) {
        window.setRow(row, "03", "0000", "0001");
        window.checkRow(row);
    }
    const QStringList once{"Startbytes Length error"};
    window.click("pushButton_SendAll");
    QCOMPARE(boxes.takeTexts(), once);
    QTRY_COMPARE(port.received(), hex("A55A050300000001"
                                      "A55A050300000001"));
    QCOMPARE(window.messageCount(), 2);
    window.clickSend(0);
    QCOMPARE(boxes.takeTexts(), once);
    QCOMPARE(window.messageCount(), 3);
    window.click("pushButton_SendAll");
    QCOMPARE(boxes.takeTexts(), once);
    QTRY_COMPARE(port.received(), hex("A55A050300000001").repeated(5));
}

void TestSending::sendingNeverWaitsForTheFarEnd()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "42", "", QString("00").repeated(60000));
    window.checkRow(0);
    // Nobody reads, which may take two seconds to be seen where somebody waits for it.
    QElapsedTimer elapsed;
    elapsed.start();
    window.sendCurrentRow();
    window.click("pushButton_SendAll");
    QVERIFY(elapsed.elapsed() < 2000);
    QCOMPARE(window.messageCount(), 2);
    QVERIFY(window.window().findChild<QSerialPort *>()->bytesToWrite() > 60000);
    QTRY_COMPARE(port.received().size(), 2 * 60004);
}

void TestSending::whatPilesUpIsBounded()
{
    constexpr int mebibyte = 1024 * 1024;
    constexpr int rows = 9;
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    window.open(port);
    for (int row = 0; row < rows; ++row) {
        window.setRow(row, "42", "", QString("0%1").arg(row).repeated(60000));
        window.checkRow(row);
    }
    const auto *serialPort = window.window().findChild<QSerialPort *>();
    window.click("pushButton_SendAll");
    const qint64 once = serialPort->bytesToWrite();
    QCOMPARE(boxes.texts(), QStringList());
    window.click("pushButton_SendAll");
    QCOMPARE(boxes.texts().size(), 1);
    QVERIFY(boxes.texts().first().startsWith("Not sent: the device has yet to take "));
    // The system may have taken a little more meanwhile.
    QVERIFY(serialPort->bytesToWrite() <= once);
    QVERIFY(once <= mebibyte);
    QCOMPARE(window.messageCount(), rows);
    QTRY_COMPARE(port.received().size(), rows * 60004);
    QCOMPARE(port.received().right(60000), QByteArray(60000, '\x08'));
}

void TestSending::theHeaderIsReadForEachFrame()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "03", "0000", "0001");
    window.edit("lineEdit_SBytes_2")->setText("0xAB,0xCD");
    window.edit("lineEdit_SBytes")->setText("0x12,0x34");
    window.sendCurrentRow();
    window.edit("lineEdit_SBytes")->setText("0x5A,0xA5");
    window.sendCurrentRow();
    QTRY_COMPARE(port.received(), hex("1234050300000001"
                                      "5AA5050300000001"));
}

void TestSending::headerAndLengthAreLeftOutAsTheSettingsSay()
{
    const QString path = QCoreApplication::applicationDirPath() + "/debuggerConfig.ini";
    QFile::remove(path);
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue("/set/noAppendHeader", 1);
        settings.setValue("/set/noAppendLength", 1);
    }
    WindowDriver window;
    QFile::remove(path);
    TestPort port;
    window.open(port);
    window.check("checkBox_CRC_EN")->setChecked(true);
    window.setRow(0, "01", "0300", "000001");
    window.checkRow(0);
    window.click("pushButton_SendAll");
    QTRY_COMPARE(port.received(), hex("010300000001840A"));
    QCOMPARE(window.messageCount(), 1);
}

QTEST_MAIN(TestSending)
#include "tst_sending.moc"
