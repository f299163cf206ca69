#include "hexgroups.h"
#include "hextext.h"
#include "numbercodec.h"

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
    void fullGroupsSurviveBothWays_data();
    void fullGroupsSurviveBothWays();

private:
    static void addRangeRows();
    static void addListRows();
};

Q_DECLARE_METATYPE(NumberKind)

namespace {

void row(const char *name, NumberKind kind, const char *given, const char *expected)
{
    QTest::newRow(name) << kind << QString(given) << QString(expected);
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
    row("int 1", NumberKind::Int, "1", "00 00 00 01");
    row("int -1", NumberKind::Int, "-1", "FF FF FF FF");
    row("int lowest", NumberKind::Int, "-2147483648", "80 00 00 00");
    row("int highest", NumberKind::Int, "2147483647", "7F FF FF FF");
    row("int too low", NumberKind::Int, "-2147483649", "00 00 00 00");
    row("int too high", NumberKind::Int, "2147483648", "00 00 00 00");
    row("uint", NumberKind::UInt, "305419896", "12 34 56 78");
    row("uint lowest", NumberKind::UInt, "0", "00 00 00 00");
    row("uint highest", NumberKind::UInt, "4294967295", "FF FF FF FF");
    row("uint too low", NumberKind::UInt, "-1", "00 00 00 00");
    row("uint too high", NumberKind::UInt, "4294967296", "00 00 00 00");
    row("char 65", NumberKind::Char, "65", "00 41");
    row("char -1 has a zero high byte", NumberKind::Char, "-1", "00 FF");
    row("char lowest", NumberKind::Char, "-128", "00 80");
    row("char highest", NumberKind::Char, "127", "00 7F");
    row("char too low", NumberKind::Char, "-129", "00 00");
    row("char too high", NumberKind::Char, "128", "00 00");
    row("char beyond 16 bits", NumberKind::Char, "65601", "00 00");
    row("uchar lowest", NumberKind::UChar, "0", "00 00");
    row("uchar highest", NumberKind::UChar, "255", "00 FF");
    row("uchar too low", NumberKind::UChar, "-1", "00 00");
    row("uchar too high", NumberKind::UChar, "256", "00 00");
    row("uchar beyond 16 bits", NumberKind::UChar, "65537", "00 00");
    row("short -2", NumberKind::Short, "-2", "FF FE");
    row("short lowest", NumberKind::Short, "-32768", "80 00");
    row("short highest", NumberKind::Short, "32767", "7F FF");
    row("short too low", NumberKind::Short, "-32769", "00 00");
    row("short too high", NumberKind::Short, "32768", "00 00");
    row("ushort", NumberKind::UShort, "4660", "12 34");
    row("ushort lowest", NumberKind::UShort, "0", "00 00");
    row("ushort highest", NumberKind::UShort, "65535", "FF FF");
    row("ushort too low", NumberKind::UShort, "-1", "00 00");
    row("ushort too high", NumberKind::UShort, "65536", "00 00");
    row("longlong 1", NumberKind::LongLong, "1", "00 00 00 00 00 00 00 01");
    row("longlong -1", NumberKind::LongLong, "-1", "FF FF FF FF FF FF FF FF");
    row("longlong lowest", NumberKind::LongLong, "-9223372036854775808", "80 00 00 00 00 00 00 00");
    row("longlong highest", NumberKind::LongLong, "9223372036854775807", "7F FF FF FF FF FF FF FF");
    row("longlong too low", NumberKind::LongLong, "-9223372036854775809",
        "00 00 00 00 00 00 00 00");
    row("longlong too high", NumberKind::LongLong, "9223372036854775808",
        "00 00 00 00 00 00 00 00");
}

void TestNumberCodec::addListRows()
{
    row("list", NumberKind::Short, "1,2", "00 01 00 02");
    row("list of ints", NumberKind::Int, "1,-1", "00 00 00 01 FF FF FF FF");
    row("list of chars", NumberKind::Char, "-1,65", "00 FF 00 41");
    row("empty element", NumberKind::Short, "1,,2", "00 01 00 00 00 02");
    row("comma at the end", NumberKind::Short, "1,", "00 01 00 00");
    row("comma in front", NumberKind::Short, ",1", "00 00 00 01");
    row("only a comma", NumberKind::UChar, ",", "00 00 00 00");
    row("empty", NumberKind::Int, "", "00 00 00 00");
    row("white space around", NumberKind::Short, " 1 ,\t2\n", "00 01 00 02");
    row("white space inside", NumberKind::Short, "1 2", "00 00");
    row("plus sign", NumberKind::Short, "+5", "00 05");
    row("minus zero", NumberKind::UInt, "-0", "00 00 00 00");
    row("leading zeros are decimal", NumberKind::Short, "0010", "00 0A");
    row("no number", NumberKind::Short, "x,7", "00 00 00 07");
    row("hex is no decimal number", NumberKind::Short, "0x10", "00 00");
    row("fraction", NumberKind::Short, "1.5", "00 00");
    row("exponent", NumberKind::Int, "1e3", "00 00 00 00");
    row("other separator", NumberKind::Short, "1;2", "00 00");
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

    row("int", NumberKind::Int, "00 00 00 01", "1");
    row("int lowest", NumberKind::Int, "80 00 00 00", "-2147483648");
    row("int highest", NumberKind::Int, "7F FF FF FF", "2147483647");
    row("int -1", NumberKind::Int, "FF FF FF FF", "-1");
    row("int, ten digits", NumberKind::Int, "01 00 00 00 02", "1,2");
    row("int, short group is positive", NumberKind::Int, "FF", "255");
    row("uint highest", NumberKind::UInt, "FF FF FF FF", "4294967295");
    row("char -1", NumberKind::Char, "00 FF", "-1");
    row("char lowest", NumberKind::Char, "00 80", "-128");
    row("char highest", NumberKind::Char, "00 7F", "127");
    row("char ignores the high byte", NumberKind::Char, "12 41", "65");
    row("uchar highest", NumberKind::UChar, "00 FF", "255");
    row("uchar ignores the high byte", NumberKind::UChar, "12 FF", "255");
    row("short", NumberKind::Short, "FF FE 00 01", "-2,1");
    row("short lowest", NumberKind::Short, "80 00", "-32768");
    row("short highest", NumberKind::Short, "7F FF", "32767");
    row("int's bytes as short", NumberKind::Short, "00 00 00 01", "0,1");
    row("ushort highest", NumberKind::UShort, "FF FF", "65535");
    row("longlong -1", NumberKind::LongLong, "FF FF FF FF FF FF FF FF", "-1");
    row("longlong lowest", NumberKind::LongLong, "80 00 00 00 00 00 00 00", "-9223372036854775808");
    row("longlong highest", NumberKind::LongLong, "7F FF FF FF FF FF FF FF", "9223372036854775807");
    row("empty", NumberKind::Int, "", "");
    row("no blanks", NumberKind::Short, "00010002", "1,2");
    row("odd digits", NumberKind::Short, "1 00 02", "1,2");
    row("lower case", NumberKind::UShort, "ab cd", "43981");
    row("no hex", NumberKind::Short, "00 01 ZZ ZZ 00 02", "1,0,2");
}

void TestNumberCodec::toDecimal()
{
    QFETCH(NumberKind, kind);
    QFETCH(QString, hex);
    QTEST(decodeNumbers(hex, kind), "decimals");
}

void TestNumberCodec::fullGroupsSurviveBothWays_data()
{
    QTest::addColumn<NumberKind>("kind");

    QTest::newRow("int") << NumberKind::Int;
    QTest::newRow("uint") << NumberKind::UInt;
    QTest::newRow("char") << NumberKind::Char;
    QTest::newRow("uchar") << NumberKind::UChar;
    QTest::newRow("short") << NumberKind::Short;
    QTest::newRow("ushort") << NumberKind::UShort;
    QTest::newRow("longlong") << NumberKind::LongLong;
}

void TestNumberCodec::fullGroupsSurviveBothWays()
{
    QFETCH(NumberKind, kind);
    const NumberFormat format = numberFormat(kind);
    const quint64 mask = ~quint64(0) >> static_cast<unsigned>(64 - format.bits);
    QRandomGenerator random(20241);
    for (int round = 0; round < 500; ++round) {
        QString digits;
        const int values = random.bounded(1, 40);
        for (int i = 0; i < values; ++i) {
            digits += paddedHex(random.generate64() & mask, format.digits);
        }
        const QString hex = groupPairsFromRight(digits);
        QCOMPARE(encodeNumbers(decodeNumbers(hex, kind), kind), hex);
    }
}

QTEST_APPLESS_MAIN(TestNumberCodec)
#include "tst_numbercodec.moc"
