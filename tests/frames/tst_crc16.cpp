#include "frames/crc16.h"

#include <QtTest>

class TestCrc16 : public QObject
{
    Q_OBJECT

private slots:
    void knownValues_data();
    void knownValues();
};

void TestCrc16::knownValues_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<quint16>("crc");

    QTest::newRow("check value of the standard") << QByteArray("123456789") << quint16(0x4B37);
    QTest::newRow("nothing") << QByteArray() << quint16(0xFFFF);
    QTest::newRow("one zero byte") << QByteArray(1, '\0') << quint16(0x40BF);
    QTest::newRow("register request") << QByteArray::fromHex("010300000001") << quint16(0x0A84);
}

void TestCrc16::knownValues()
{
    QFETCH(QByteArray, bytes);
    QFETCH(quint16, crc);
    QCOMPARE(crc16Modbus(bytes), crc);
}

QTEST_APPLESS_MAIN(TestCrc16)
#include "tst_crc16.moc"
