#include "commands/commandrow.h"

#include <QtTest>

class TestCommandRow : public QObject
{
    Q_OBJECT

private slots:
    void emptyRowHasNothingButItsType();
    void delayRowHasNoType();
    void frameTextJoinsWithoutBlanks();
    void crcCell_data();
    void crcCell();
    void addressIsNormalised_data();
    void addressIsNormalised();
    void nextAddressFollows_data();
    void nextAddressFollows();
};

void TestCommandRow::emptyRowHasNothingButItsType()
{
    const CommandRow row = emptyRow();
    QVERIFY(!row.selected);
    QCOMPARE(row.description + row.cmd + row.addr + row.data + row.crc + row.originalData,
             QString());
    QCOMPARE(row.dataType, QString("short"));
}

void TestCommandRow::delayRowHasNoType()
{
    const CommandRow row = delayRow();
    QVERIFY(!row.selected);
    QCOMPARE(row.description, QString("Daley(ms)"));
    QCOMPARE(row.cmd, QString("++"));
    QCOMPARE(row.data, QString("1000"));
    QCOMPARE(row.addr + row.crc + row.dataType + row.originalData, QString());
}

void TestCommandRow::frameTextJoinsWithoutBlanks()
{
    CommandRow row = emptyRow();
    row.description = "not sent";
    row.cmd = " 01 ";
    row.addr = "03 00";
    row.data = "00 00  01";
    row.crc = "0A 84";
    row.originalData = "1";
    QCOMPARE(frameText(row), QString("010300000001"));
    QCOMPARE(frameText(delayRow()), QString("++1000"));
}

void TestCommandRow::crcCell_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cell");

    QTest::newRow("high byte, then low byte") << "313233343536373839"
                                              << "4B 37";
    QTest::newRow("wire order is the other one") << "010300000001"
                                                 << "0A 84";
    QTest::newRow("upper case") << "01"
                                << "80 7E";
    QTest::newRow("lower case digits are read") << "ab"
                                                << "FF FE";
    QTest::newRow("leading zeros are shown") << "00b0"
                                             << "04 00";
    QTest::newRow("comment is left out") << "010300000001/ab"
                                         << "0A 84";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("delay") << "++1000"
                           << "";
    QTest::newRow("delay marker alone") << "++"
                                        << "";
    QTest::newRow("odd number of digits") << "010"
                                          << "";
}

void TestCommandRow::crcCell()
{
    QFETCH(QString, text);
    QTEST(crcCellText(text), "cell");
}

void TestCommandRow::addressIsNormalised_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("address");

    QTest::newRow("empty stays empty") << ""
                                       << "";
    QTest::newRow("blanks stay blanks") << "    "
                                        << "    ";
    QTest::newRow("lower case, short") << "a"
                                       << "000A";
    QTest::newRow("two digits") << "12"
                                << "0012";
    QTest::newRow("four digits") << "ffff"
                                 << "FFFF";
    QTest::newRow("five digits stay") << "10000"
                                      << "10000";
    QTest::newRow("superfluous zeros go") << "000012"
                                          << "0012";
    QTest::newRow("no number") << "xyz"
                               << "0000";
    QTest::newRow("partly a number") << "12g"
                                     << "0000";
    QTest::newRow("too large a number") << "100000000"
                                        << "0000";
}

void TestCommandRow::addressIsNormalised()
{
    QFETCH(QString, typed);
    QTEST(normalisedAddress(typed), "address");
}

void TestCommandRow::nextAddressFollows_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("next");

    QTest::newRow("carry") << "00FF"
                           << "0100";
    QTest::newRow("plain") << "0010"
                           << "0011";
    QTest::newRow("filled and in upper case") << "a"
                                              << "000B";
    QTest::newRow("past four digits") << "FFFF"
                                      << "10000";
    QTest::newRow("past eight digits") << "FFFFFFFF"
                                       << "100000000";
    QTest::newRow("no number counts as 0") << "xyz"
                                           << "0001";
}

void TestCommandRow::nextAddressFollows()
{
    QFETCH(QString, address);
    QTEST(nextAddress(address), "next");
}

QTEST_APPLESS_MAIN(TestCommandRow)
#include "tst_commandrow.moc"
