#include "links/serial/portentry.h"

#include <QtTest>

class TestPortEntry : public QObject
{
    Q_OBJECT

private slots:
    void nameIsWhatIsNotZero_data();
    void nameIsWhatIsNotZero();
    void firstUsbSerialByItsExactName_data();
    void firstUsbSerialByItsExactName();
};

void TestPortEntry::nameIsWhatIsNotZero_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("name");

    QTest::newRow("UTF-16 with its zero") << QByteArray("43004F004D0033000000") << "COM3";
    QTest::newRow("UTF-16 without") << QByteArray("43004F004D003300") << "COM3";
    QTest::newRow("two digits") << QByteArray("43004F004D00310032000000") << "COM12";
    QTest::newRow("plain bytes") << QByteArray("434F4D33") << "COM3";
    QTest::newRow("more behind the zero") << QByteArray("430000004F00") << "CO";
    QTest::newRow("high bytes stay apart") << QByteArray("2D4E") << "-N";
    QTest::newRow("beyond ASCII") << QByteArray("E900") << QStringLiteral(u"\u00E9");
    QTest::newRow("zeros") << QByteArray("00000000") << "";
    QTest::newRow("nothing") << QByteArray() << "";
}

void TestPortEntry::nameIsWhatIsNotZero()
{
    QFETCH(QByteArray, hex);
    QTEST(portNameInData(QByteArray::fromHex(hex)), "name");
}

void TestPortEntry::firstUsbSerialByItsExactName_data()
{
    QTest::addColumn<QString>("valueName");
    QTest::addColumn<bool>("isFirst");

    QTest::newRow("it") << R"(\Device\USBSER000)" << true;
    QTest::newRow("the second") << R"(\Device\USBSER001)" << false;
    QTest::newRow("lower case") << R"(\device\usbser000)" << false;
    QTest::newRow("longer") << R"(\Device\USBSER0000)" << false;
    QTest::newRow("another driver") << R"(\Device\Serial0)" << false;
    QTest::newRow("nothing") << "" << false;
}

void TestPortEntry::firstUsbSerialByItsExactName()
{
    QFETCH(QString, valueName);
    QTEST(isFirstUsbSerial(valueName), "isFirst");
}

QTEST_APPLESS_MAIN(TestPortEntry)
#include "tst_portentry.moc"
