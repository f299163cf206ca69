#include "log/allzero.h"

#include <QtTest>

class TestAllZero : public QObject
{
    Q_OBJECT

private slots:
    void allZero_data();
    void allZero();
};

void TestAllZero::allZero_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("expected");

    QTest::newRow("zeros") << QByteArray(3, '\0') << true;
    QTest::newRow("nothing") << QByteArray() << true;
    QTest::newRow("another byte in front") << QByteArray::fromHex("100000") << false;
    QTest::newRow("another byte at the end") << QByteArray::fromHex("000001") << false;
    QTest::newRow("the digit") << QByteArray("00") << false;
}

void TestAllZero::allZero()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, expected);
    QCOMPARE(isAllZero(bytes), expected);
}

QTEST_APPLESS_MAIN(TestAllZero)
#include "tst_allzero.moc"
