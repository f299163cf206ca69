#include "links/serial/seriallink.h"
#include "serialwindow.h"

#include <QIntValidator>
#include <QLabel>
#include <QSerialPort>
#include <QtTest>

class TestSerial : public QObject
{
    Q_OBJECT

private slots:
    void optionsAreListed_data();
    void optionsAreListed();
    void optionsReachThePort_data();
    void optionsReachThePort();
    void thereIsOnePortObject();
    void aLinkThatSomebodyElseClosesIsShown();
    void customRateIsTyped();
    void customRateIsUsed_data();
    void customRateIsUsed();
    void anEmptyCustomRateFails();
    void anotherRateIsNotTyped();
};

void TestSerial::optionsAreListed_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("current");

    QTest::newRow("comboBox_Baudrate")
        << QStringList{"custom", "9600",   "19200",  "38400",  "57600",  "115200",
                       "230400", "256000", "460800", "921600", "1382400"}
        << 5;
    QTest::newRow("comboBox_DataBit") << QStringList{"5", "6", "7", "8"} << 3;
    QTest::newRow("comboBox_Parity") << QStringList{"None", "Even", "Odd"} << 0;
    QTest::newRow("comboBox_StopBit") << QStringList{"1", "2", "1.5"} << 0;
}

void TestSerial::optionsAreListed()
{
    const SerialWindow window;
    const QComboBox *box = window.combo(QTest::currentDataTag());
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) {
        texts.append(box->itemText(i));
    }
    QTEST(texts, "texts");
    QTEST(box->currentIndex(), "current");
    QVERIFY(!box->isEditable());
}

void TestSerial::optionsReachThePort_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");

    const auto row = [](const char *box, int index, const char *property, int value) {
        QTest::addRow("%s %d", property, index) << box << index << QByteArray(property) << value;
    };
    const QList<int> rates{9600,   19200,  38400,  57600,  115200,
                           230400, 256000, 460800, 921600, 1382400};
    for (int i = 0; i < rates.size(); ++i) {
        row("comboBox_Baudrate", i + 1, "baudRate", rates.at(i));
    }
    row("comboBox_DataBit", 0, "dataBits", QSerialPort::Data5);
    row("comboBox_DataBit", 1, "dataBits", QSerialPort::Data6);
    row("comboBox_DataBit", 2, "dataBits", QSerialPort::Data7);
    row("comboBox_DataBit", 3, "dataBits", QSerialPort::Data8);
    row("comboBox_Parity", 0, "parity", QSerialPort::NoParity);
    row("comboBox_Parity", 1, "parity", QSerialPort::EvenParity);
    row("comboBox_Parity", 2, "parity", QSerialPort::OddParity);
    row("comboBox_StopBit", 0, "stopBits", QSerialPort::OneStop);
    row("comboBox_StopBit", 1, "stopBits", QSerialPort::TwoStop);
    row("comboBox_StopBit", 2, "stopBits", QSerialPort::OneAndHalfStop);
}

void TestSerial::optionsReachThePort()
{
    QFETCH(QString, box);
    QFETCH(int, index);
    QFETCH(QByteArray, property);
    SerialWindow window;
    const TestPort port;
    SerialWindow::pick(window.combo(qPrintable(box)), index);
    window.open(port);
    QVERIFY(window.looksOpen());
    QTEST(window.port()->property(property.constData()).toInt(), "value");
    QCOMPARE(window.port()->flowControl(), QSerialPort::NoFlowControl);
    QCOMPARE(window.port()->openMode(), QIODevice::ReadWrite);
    if (property == "baudRate") {
        QCOMPARE(int(port.line().baudRate), window.port()->baudRate());
    }
}

void TestSerial::thereIsOnePortObject()
{
    SerialWindow window;
    const QSerialPort *object = window.port();
    const TestPort first;
    const TestPort second;
    window.open(first);
    window.click("pushButton_OpenCom");
    window.open(second);
    QCOMPARE(window.window().findChildren<QSerialPort *>().size(), 1);
    QCOMPARE(window.port(), object);
}

void TestSerial::aLinkThatSomebodyElseClosesIsShown()
{
    SerialWindow window;
    const TestPort port;
    window.open(port);
    QVERIFY(window.looksOpen());
    QVERIFY(!window.combo("comboBox_Comm")->isEnabled());
    QVERIFY(!window.find<QLabel>("label_Status")->text().isEmpty());
    window.window().findChild<SerialLink *>()->close();
    QVERIFY(!window.looksOpen());
    QVERIFY(window.combo("comboBox_Comm")->isEnabled());
    QCOMPARE(window.find<QLabel>("label_Status")->text(), QString());
}

void TestSerial::customRateIsTyped()
{
    SerialWindow window;
    QComboBox *box = window.combo("comboBox_Baudrate");
    SerialWindow::pick(box, 0);
    QVERIFY(box->isEditable());
    QLineEdit *edit = box->lineEdit();
    const auto *validator = qobject_cast<const QIntValidator *>(edit->validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->bottom(), 0);
    QCOMPARE(validator->top(), 1382400);
    QCOMPARE(validator->parent(), edit);
    QCOMPARE(edit->styleSheet(), QString("QLineEdit{border-radius: 4px;border:none;}"));
    QCOMPARE(edit->maximumWidth(), 70);
    QCOMPARE(edit->font().family(), QString("Arial"));
    QCOMPARE(edit->font().pointSize(), 11);
    QCOMPARE(edit->text(), QString());
    QTest::keyClicks(edit, "x13824000");
    QCOMPARE(edit->text(), QString("1382400"));
    QVERIFY(edit->hasAcceptableInput());
    edit->setText("1382401");
    QVERIFY(!edit->hasAcceptableInput());
}

void TestSerial::customRateIsUsed_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("rate");

    QTest::newRow("odd one") << "12345" << 12345;
    QTest::newRow("highest") << "1382400" << 1382400;
    QTest::newRow("begins like a listed one") << "96" << 96;
}

void TestSerial::customRateIsUsed()
{
    QFETCH(QString, typed);
    QFETCH(int, rate);
    SerialWindow window;
    const TestPort port;
    QComboBox *box = window.combo("comboBox_Baudrate");
    SerialWindow::pick(box, 0);
    QTest::keyClicks(box->lineEdit(), typed);
    window.open(port);
    QVERIFY(window.looksOpen());
    QCOMPARE(window.port()->baudRate(), rate);
    QCOMPARE(int(port.line().baudRate), rate);
    QCOMPARE(box->count(), 11);
}

void TestSerial::anEmptyCustomRateFails()
{
    MessageBoxes boxes;
    SerialWindow window;
    const TestPort port;
    SerialWindow::pick(window.combo("comboBox_Baudrate"), 0);
    window.open(port);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QVERIFY(!window.looksOpen());
}

void TestSerial::anotherRateIsNotTyped()
{
    SerialWindow window;
    const TestPort port;
    QComboBox *box = window.combo("comboBox_Baudrate");
    SerialWindow::pick(box, 0);
    QTest::keyClicks(box->lineEdit(), "777");
    SerialWindow::pick(box, 2);
    QVERIFY(!box->isEditable());
    window.open(port);
    QCOMPARE(int(port.line().baudRate), 19200);
}

QTEST_MAIN(TestSerial)
#include "tst_serial.moc"
