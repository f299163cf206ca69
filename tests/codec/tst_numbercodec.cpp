#include "codec/hexgroups.h"
#include "codec/numbercodec.h"
#include "frames/hextext.h"
#include "valuetypes.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QtTest>

class TestNumberCodec : public QObject
{
    Q_OBJECT

private slots:
    void groups_data();
    void groups();
    void toHex_data();
    void toHex();
    void toDecimal_data();
    void toDecimal();
    void aKindMayHaveAllNumbersOf64Bits();
    void fullGroupsSurviveBothWays_data();
    void fullGroupsSurviveBothWays();

private:
    static void addRangeRows();
    static void addListRows();
};

namespace {

void row(const char *name, const char *kind, const char *given, const char *expected)
{
    QTest::newRow(name) << numberKindNamed(kind) << QString(given) << QString(expected);
}

} // namespace

void TestNumberCodec::groups_data()
{
    QTest::addColumn<QString>("hex");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QVector<quint64>>("values");

    using Values = QVector<quint64>;
    QTest::newRow("empty") << "" << 4 << Values{};
    QTest::newRow("only blanks") << "   " << 4 << Values{};
    QTest::newRow("one group") << "12 34" << 4 << Values{0x1234};
    QTest::newRow("two groups") << "12 34 56 78" << 4 << Values{0x1234, 0x5678};
    QTest::newRow("short group at the left") << "1 23 45" << 4 << Values{0x1, 0x2345};
    QTest::newRow("blanks anywhere") << "1 2 345 6" << 2 << Values{0x12, 0x34, 0x56};
    QTest::newRow("lower case") << "ab cd" << 4 << Values{0xABCD};
    QTest::newRow("no hex digit") << "00 1G 00 02" << 4 << Values{0, 2};
    QTest::newRow("prefix") << "0x12" << 4 << Values{0};
    QTest::newRow("sign") << "-123" << 4 << Values{0};
    QTest::newRow("tabulator is no blank") << "1\t34" << 4 << Values{0};
    QTest::newRow("wide digit") << QString::fromUtf8("１234") << 4 << Values{0};
    QTest::newRow("sixteen digits") << "FEDCBA9876543210" << 16 << Values{0xFEDCBA9876543210};
}

void TestNumberCodec::groups()
{
    QFETCH(QString, hex);
    QFETCH(int, digits);
    QTEST(hexGroups(hex, digits), "values");
}

void TestNumberCodec::addRangeRows()
{
    row("int 1", "INT", "1", "00 00 00 01");
    row("int -1", "INT", "-1", "FF FF FF FF");
    row("int lowest", "INT", "-2147483648", "80 00 00 00");
    row("int highest", "INT", "2147483647", "7F FF FF FF");
    row("int too low", "INT", "-2147483649", "00 00 00 00");
    row("int too high", "INT", "2147483648", "00 00 00 00");
    row("uint", "UINT", "305419896", "12 34 56 78");
    row("uint lowest", "UINT", "0", "00 00 00 00");
    row("uint highest", "UINT", "4294967295", "FF FF FF FF");
    row("uint too low", "UINT", "-1", "00 00 00 00");
    row("uint too high", "UINT", "4294967296", "00 00 00 00");
    row("char 65", "CHAR", "65", "00 41");
    row("char -1 has a zero high byte", "CHAR", "-1", "00 FF");
    row("char lowest", "CHAR", "-128", "00 80");
    row("char highest", "CHAR", "127", "00 7F");
    row("char too low", "CHAR", "-129", "00 00");
    row("char too high", "CHAR", "128", "00 00");
    row("char beyond 16 bits", "CHAR", "65601", "00 00");
    row("uchar lowest", "UCHAR", "0", "00 00");
    row("uchar highest", "UCHAR", "255", "00 FF");
    row("uchar too low", "UCHAR", "-1", "00 00");
    row("uchar too high", "UCHAR", "256", "00 00");
    row("uchar beyond 16 bits", "UCHAR", "65537", "00 00");
    row("short -2", "SHORT", "-2", "FF FE");
    row("short lowest", "SHORT", "-32768", "80 00");
    row("short highest", "SHORT", "32767", "7F FF");
    row("short too low", "SHORT", "-32769", "00 00");
    row("short too high", "SHORT", "32768", "00 00");
    row("ushort", "USHORT", "4660", "12 34");
    row("ushort lowest", "USHORT", "0", "00 00");
    row("ushort highest", "USHORT", "65535", "FF FF");
    row("ushort too low", "USHORT", "-1", "00 00");
    row("ushort too high", "USHORT", "65536", "00 00");
    row("longlong 1", "LONGLONG", "1", "00 00 00 00 00 00 00 01");
    row("longlong -1", "LONGLONG", "-1", "FF FF FF FF FF FF FF FF");
    row("longlong lowest", "LONGLONG", "-9223372036854775808", "80 00 00 00 00 00 00 00");
    row("longlong highest", "LONGLONG", "9223372036854775807", "7F FF FF FF FF FF FF FF");
    row("longlong too low", "LONGLONG", "-9223372036854775809", "00 00 00 00 00 00 00 00");
    row("longlong too high", "LONGLONG", "9223372036854775808", "00 00 00 00 00 00 00 00");
}

void TestNumberCodec::addListRows()
{
    row("list", "SHORT", "1,2", "00 01 00 02");
    row("list of ints", "INT", "1,-1", "00 00 00 01 FF FF FF FF");
    row("list of chars", "CHAR", "-1,65", "00 FF 00 41");
    row("empty element", "SHORT", "1,,2", "00 01 00 00 00 02");
    row("comma at the end", "SHORT", "1,", "00 01 00 00");
    row("comma in front", "SHORT", ",1", "00 00 00 01");
    row("only a comma", "UCHAR", ",", "00 00 00 00");
    row("empty", "INT", "", "00 00 00 00");
    row("white space around", "SHORT", " 1 ,\t2\n", "00 01 00 02");
    row("white space inside", "SHORT", "1 2", "00 00");
    row("plus sign", "SHORT", "+5", "00 05");
    row("minus zero", "UINT", "-0", "00 00 00 00");
    row("leading zeros are decimal", "SHORT", "0010", "00 0A");
    row("no number", "SHORT", "x,7", "00 00 00 07");
    row("hex is no decimal number", "SHORT", "0x10", "00 00");
    row("fraction", "SHORT", "1.5", "00 00");
    row("exponent", "INT", "1e3", "00 00 00 00");
    row("other separator", "SHORT", "1;2", "00 00");
}

void TestNumberCodec::toHex_data()
{
    QTest::addColumn<NumberKind>("kind");
    QTest::addColumn<QString>("decimals");
    QTest::addColumn<QString>("hex");

    addRangeRows();
    addListRows();
}

void TestNumberCodec::toHex()
{
    QFETCH(NumberKind, kind);
    QFETCH(QString, decimals);
    QTEST(encodeNumbers(decimals, kind), "hex");
}

void TestNumberCodec::toDecimal_data()
{
    QTest::addColumn<NumberKind>("kind");
    QTest::addColumn<QString>("hex");
    QTest::addColumn<QString>("decimals");

    row("int", "INT", "00 00 00 01", "1");
    row("int lowest", "INT", "80 00 00 00", "-2147483648");
    row("int highest", "INT", "7F FF FF FF", "2147483647");
    row("int -1", "INT", "FF FF FF FF", "-1");
    row("int, ten digits", "INT", "01 00 00 00 02", "1,2");
    row("int, short group is positive", "INT", "FF", "255");
    row("uint highest", "UINT", "FF FF FF FF", "4294967295");
    row("char -1", "CHAR", "00 FF", "-1");
    row("char lowest", "CHAR", "00 80", "-128");
    row("char highest", "CHAR", "00 7F", "127");
    row("char ignores the high byte", "CHAR", "12 41", "65");
    row("uchar highest", "UCHAR", "00 FF", "255");
    row("uchar ignores the high byte", "UCHAR", "12 FF", "255");
    row("short", "SHORT", "FF FE 00 01", "-2,1");
    row("short lowest", "SHORT", "80 00", "-32768");
    row("short highest", "SHORT", "7F FF", "32767");
    row("int's bytes as short", "SHORT", "00 00 00 01", "0,1");
    row("ushort highest", "USHORT", "FF FF", "65535");
    row("longlong -1", "LONGLONG", "FF FF FF FF FF FF FF FF", "-1");
    row("longlong lowest", "LONGLONG", "80 00 00 00 00 00 00 00", "-9223372036854775808");
    row("longlong highest", "LONGLONG", "7F FF FF FF FF FF FF FF", "9223372036854775807");
    row("empty", "INT", "", "");
    row("no blanks", "SHORT", "00010002", "1,2");
    row("odd digits", "SHORT", "1 00 02", "1,2");
    row("lower case", "USHORT", "ab cd", "43981");
    row("no hex", "SHORT", "00 01 ZZ ZZ 00 02", "1,0,2");
}

void TestNumberCodec::toDecimal()
{
    QFETCH(NumberKind, kind);
    QFETCH(QString, hex);
    QTEST(decodeNumbers(hex, kind), "decimals");
}

void TestNumberCodec::aKindMayHaveAllNumbersOf64Bits()
{
    const NumberKind kind = numberKindOf<quint64>("ULONGLONG", "ulonglong", 16);
    const QString highest = QStringLiteral("18446744073709551615");
    QCOMPARE(encodeNumbers(highest, kind), QString("FF FF FF FF FF FF FF FF"));
    QCOMPARE(decodeNumbers("FF FF FF FF FF FF FF FF", kind), highest);
    QCOMPARE(encodeNumbers("9223372036854775808", kind), QString("80 00 00 00 00 00 00 00"));
    QCOMPARE(encodeNumbers("18446744073709551616", kind), QString("00 00 00 00 00 00 00 00"));
    QCOMPARE(encodeNumbers("-1", kind), QString("00 00 00 00 00 00 00 00"));
}

void TestNumberCodec::fullGroupsSurviveBothWays_data()
{
    QTest::addColumn<NumberKind>("kind");

    for (const NumberKind &kind : numberKinds) {
        QTest::newRow(kind.name.data()) << kind;
    }
}

void TestNumberCodec::fullGroupsSurviveBothWays()
{
    QFETCH(NumberKind, kind);
    const quint64 mask = ~quint64(0) >> static_cast<unsigned>(64 - kind.bits);
    QRandomGenerator random(20241);
    for (int round = 0; round < 500; ++round) {
        QString digits;
        const int values = random.bounded(1, 40);
        for (int i = 0; i < values; ++i) {
            digits += paddedHex(random.generate64() & mask, kind.digits);
        }
        const QString hex = groupPairsFromRight(digits);
        QCOMPARE(encodeNumbers(decodeNumbers(hex, kind), kind), hex);
    }
}

QTEST_APPLESS_MAIN(TestNumberCodec)
#include "tst_numbercodec.moc"
