#include "links/serial/serialoptions.h"

#include <QtTest>

class TestSerialOptions : public QObject
{
    Q_OBJECT

private slots:
    void listsAreInTheirOrder();
    void defaultsArePlaces();
    void dataBits_data();
    void dataBits();
    void parity_data();
    void parity();
    void stopBits_data();
    void stopBits();
};

void TestSerialOptions::listsAreInTheirOrder()
{
    QCOMPARE(SerialOptions::baudRates(),
             QStringList({"custom", "9600", "19200", "38400", "57600", "115200", "230400", "256000",
                          "460800", "921600", "1382400"}));
    QCOMPARE(SerialOptions::dataBits(), QStringList({"5", "6", "7", "8"}));
    QCOMPARE(SerialOptions::parities(), QStringList({"None", "Even", "Odd"}));
    QCOMPARE(SerialOptions::stopBits(), QStringList({"1", "2", "1.5"}));
}

void TestSerialOptions::defaultsArePlaces()
{
    QCOMPARE(SerialOptions::baudRates().at(SerialOptions::customBaudRate), QString("custom"));
    QCOMPARE(SerialOptions::baudRates().at(SerialOptions::defaultBaudRate), QString("115200"));
    QCOMPARE(SerialOptions::dataBits().at(SerialOptions::defaultDataBits), QString("8"));
    QCOMPARE(SerialOptions::baudRates().last().toInt(), int(SerialOptions::highestBaudRate));
}

void TestSerialOptions::dataBits_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("setting");

    QTest::newRow("5") << 0 << int(QSerialPort::Data5);
    QTest::newRow("6") << 1 << int(QSerialPort::Data6);
    QTest::newRow("7") << 2 << int(QSerialPort::Data7);
    QTest::newRow("8") << 3 << int(QSerialPort::Data8);
    QTest::newRow("beyond") << 4 << int(QSerialPort::Data8);
    QTest::newRow("none") << -1 << int(QSerialPort::Data8);
}

void TestSerialOptions::dataBits()
{
    QFETCH(int, index);
    QTEST(int(SerialOptions::dataBitsAt(index)), "setting");
}

void TestSerialOptions::parity_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("setting");

    QTest::newRow("None") << 0 << int(QSerialPort::NoParity);
    QTest::newRow("Even") << 1 << int(QSerialPort::EvenParity);
    QTest::newRow("Odd") << 2 << int(QSerialPort::OddParity);
    QTest::newRow("beyond") << 3 << int(QSerialPort::NoParity);
    QTest::newRow("none") << -1 << int(QSerialPort::NoParity);
}

void TestSerialOptions::parity()
{
    QFETCH(int, index);
    QTEST(int(SerialOptions::parityAt(index)), "setting");
}

void TestSerialOptions::stopBits_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("setting");

    QTest::newRow("1") << 0 << int(QSerialPort::OneStop);
    QTest::newRow("2") << 1 << int(QSerialPort::TwoStop);
    QTest::newRow("1.5") << 2 << int(QSerialPort::OneAndHalfStop);
    QTest::newRow("beyond") << 3 << int(QSerialPort::OneStop);
    QTest::newRow("none") << -1 << int(QSerialPort::OneStop);
}

void TestSerialOptions::stopBits()
{
    QFETCH(int, index);
    QTEST(int(SerialOptions::stopBitsAt(index)), "setting");
}

QTEST_APPLESS_MAIN(TestSerialOptions)
#include "tst_serialoptions.moc"
