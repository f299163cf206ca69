#include "codec/valuecodec.h"
#include "frames/hextext.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>
#include <QtTest>

class TestValueCodec : public QObject
{
    Q_OBJECT

private slots:
    void convert_data();
    void convert();
    void overlongString_data();
    void overlongString();
    void unencodableIsPassedOn();
    void largestFields();
    void longNestedMixEnds();
    void anyInputGivesHexText();

private:
    static void addNumberRows();
    static void addStringRows();
    static void addFieldRows();
    static void addTimeRows();
    static void addMixRows();
};

namespace {

void valueRow(const char *name, const char *kind, const char *value, const char *hex)
{
    QTest::newRow(name) << QString(kind) << QString::fromUtf8(value) << QString(hex);
}

/// What the report says, exactly, when a string has more words than its field.
const QString overlong = QStringLiteral("<br>String is over wordNumber!");

} // namespace

void TestValueCodec::addNumberRows()
{
    valueRow("INT", "INT", "-1", "FF FF FF FF");
    valueRow("UINT", "UINT", "4294967295", "FF FF FF FF");
    valueRow("CHAR", "CHAR", "-1", "00 FF");
    valueRow("UCHAR", "UCHAR", "255", "00 FF");
    valueRow("SHORT", "SHORT", "1,,2", "00 01 00 00 00 02");
    valueRow("USHORT", "USHORT", "65535", "FF FF");
    valueRow("LONGLONG", "LONGLONG", "1", "00 00 00 00 00 00 00 01");
    valueRow("part of a name", "T", "1", "00 00 00 01");
    valueRow("unknown is INT", "FLOAT", "1", "00 00 00 01");
    valueRow("lower case is INT", "short", "1", "00 00 00 01");
    valueRow("empty kind is INT", "", "1", "00 00 00 01");
    valueRow("empty value", "SHORT", "", "00 00");
}

void TestValueCodec::addStringRows()
{
    valueRow("string A", "STRING:GBK2312", "A", "41 00");
    valueRow("string AB", "STRING:GBK2312", "AB", "41 42 00 00");
    valueRow("string GBK", "STRING:GBK", "镕", "E9 46 00 00");
    valueRow("string GBK odd", "STRING:GBK", "啊A", "B0 A1 41 00");
    valueRow("string Unicode", "STRING:UNICODE", "A", "00 41 00 00");
    valueRow("string encoding in lower case", "STRING:unicode", "A", "00 41 00 00");
    valueRow("string without encoding", "STRING", "AB", "41 42 00 00");
    valueRow("string of unknown encoding", "STRING:UTF-8", "A", "41 00");
    valueRow("string empty", "STRING:GBK", "", "00 00");
    valueRow("string empty Unicode", "STRING:UNICODE", "", "00 00");
    valueRow("string keeps its blanks", "STRING:GBK", " A", "20 41 00 00");
}

void TestValueCodec::addFieldRows()
{
    valueRow("one separator is text", "STRING:GBK", "2%%A", "32 25 25 41 00 00");
    valueRow("three separators are text", "STRING:GBK", "%%1%%A%%",
             "25 25 31 25 25 41 25 25 00 00");
    valueRow("field padded", "STRING:GBK", "%%2%%A", "41 00 00 00");
    valueRow("field exact", "STRING:GBK", "%%2%%ABCD", "41 42 43 44");
    valueRow("field Unicode", "STRING:UNICODE", "%%2%%A", "00 41 00 00");
    valueRow("first part is ignored", "STRING:GBK", "name%%1%%A", "41 00");
    valueRow("two fields", "STRING:GBK", "%%1%%A%%2%%啊", "41 00 B0 A1 00 00");
    valueRow("empty field", "STRING:GBK", "%%2%%", "00 00 00 00");
    valueRow("field of no words", "STRING:GBK", "%%0%%", "");
    valueRow("field of no words adds no blank", "STRING:GBK", "%%0%%%%1%%A", "41 00");
    valueRow("blanks around the count", "STRING:GBK", "%% 1 %%A", "41 00");
}

void TestValueCodec::addTimeRows()
{
    valueRow("time", "TIME", "2024,5,6,12,30,0", "00 18 00 05 00 06 00 0C 00 1E 00 00");
    valueRow("time, year only", "TIME", "2000", "00 00");
    valueRow("time before 2000", "TIME", "1999,1", "FF FF 00 01");
    valueRow("time, white space", "TIME", " 2024 , 5", "00 18 00 05");
    valueRow("time, year no number", "TIME", "x,5", "00 00 00 05");
    valueRow("time, year empty", "TIME", ",5", "00 00 00 05");
    valueRow("time empty", "TIME", "", "00 00");
    valueRow("time, last year", "TIME", "34767", "7F FF");
    valueRow("time, year too high", "TIME", "34768", "00 00");
    valueRow("time, first year", "TIME", "-30768", "80 00");
    valueRow("time, lowest int", "TIME", "-2147483648", "00 00");
    valueRow("time, field no number", "TIME", "2024,x", "00 18 00 00");
}

void TestValueCodec::addMixRows()
{
    valueRow("mix", "MIX", "INT:1%%SHORT:2,3%%UCHAR:255", "00 00 00 01 00 02 00 03 00 FF");
    valueRow("mix of one", "MIX", "SHORT:-2", "FF FE");
    valueRow("mix with time", "MIX", "TIME:2024,5%%SHORT:1", "00 18 00 05 00 01");
    valueRow("mix with string", "MIX", "STRING:GBK:AB%%SHORT:1", "41 42 00 00 00 01");
    valueRow("mix with Unicode string", "MIX", "STRING:Unicode:A%%SHORT:1", "00 41 00 00 00 01");
    valueRow("mix, colons in a string", "MIX", "STRING:GBK:a:b", "61 3A 62 00");
    valueRow("mix, string without encoding", "MIX", "STRING:AB", "41 42 00 00");
    valueRow("mix, colon but no encoding", "MIX", "STRING:a:b", "61 3A 62 00");
    valueRow("mix, encoding name as text", "MIX", "STRING:GBK", "47 42 4B 00");
    valueRow("mix, empty string", "MIX", "STRING:GBK:%%SHORT:1", "00 00 00 01");
    valueRow("mix, blanks around the kind", "MIX", " SHORT :1%% SHORT:2", "00 01 00 02");
    valueRow("mix without colon", "MIX", "5", "00 00 00 05");
    valueRow("mix empty", "MIX", "", "00 00 00 00");
    valueRow("mix, empty segment", "MIX", "SHORT:1%%%%SHORT:2", "00 01 00 00 00 00 00 02");
    valueRow("mix, unknown kind", "MIX", "FLOAT:1", "00 00 00 01");
    valueRow("mix, no kind", "MIX", ":1", "00 00 00 01");
    valueRow("mix in a mix", "MIX", "MIX:SHORT:1%%MIX:MIX:SHORT:2", "00 01 00 02");
    valueRow("mix by part of its name", "X", "SHORT:1", "00 01");
}

void TestValueCodec::convert_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("hex");

    addNumberRows();
    addStringRows();
    addFieldRows();
    addTimeRows();
    addMixRows();
}

void TestValueCodec::convert()
{
    QFETCH(QString, kind);
    QFETCH(QString, value);
    const ConvertedValue converted = convertValue(kind, value);
    QTEST(converted.hex, "hex");
    QCOMPARE(converted.report, QString());
    QCOMPARE(converted.unencodable, QString());
}

void TestValueCodec::overlongString_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("hex");

    valueRow("kept whole", "STRING:GBK", "%%1%%ABC", "41 42 43");
    valueRow("one digit pair too many", "STRING:GBK", "%%2%%ABCDE", "41 42 43 44 45");
    valueRow("Unicode", "STRING:UNICODE", "%%1%%AB", "00 41 00 42");
    valueRow("told once for two", "STRING:GBK", "%%1%%ABC%%1%%DEF", "41 42 43 44 45 46");
    valueRow("second field", "STRING:GBK", "%%1%%A%%1%%DEF", "41 00 44 45 46");
    valueRow("no number counts as none", "STRING:GBK", "%%x%%A", "41");
    valueRow("negative counts as none", "STRING:GBK", "%%-1%%A", "41");
    valueRow("more than an instruction", "STRING:GBK", "%%32768%%A", "41");
    valueRow("beyond the int range", "STRING:GBK", "%%4294967297%%A", "41");
}

void TestValueCodec::overlongString()
{
    QFETCH(QString, kind);
    QFETCH(QString, value);
    const ConvertedValue converted = convertValue(kind, value);
    QTEST(converted.hex, "hex");
    QCOMPARE(converted.report, overlong);
}

void TestValueCodec::unencodableIsPassedOn()
{
    const QString lost = QString::fromUtf8("한");
    QCOMPARE(convertValue("STRING:GBK", lost).hex, QString("3F 00"));
    QCOMPARE(convertValue("STRING:GBK", lost).unencodable, lost);
    QCOMPARE(convertValue("STRING:GBK", "%%1%%" + lost).unencodable, lost);
    QCOMPARE(convertValue("MIX", "SHORT:1%%STRING:GBK:" + lost).unencodable, lost);
    QCOMPARE(convertValue("MIX", "SHORT:1%%STRING:GBK:" + lost).report, QString());
}

void TestValueCodec::largestFields()
{
    const ConvertedValue largest = convertValue("STRING:GBK", "%%32767%%A");
    QCOMPARE(withoutBlanks(largest.hex).size(), 32767 * 4);
    QCOMPARE(largest.report, QString());

    const ConvertedValue shared = convertValue("STRING:GBK", "%%32766%%A%%1%%B%%1%%C");
    QCOMPARE(withoutBlanks(shared.hex).size(), 32767 * 4 + 2);
    QVERIFY(shared.hex.endsWith(" 42 00 43"));
    QCOMPARE(shared.report, overlong);
}

void TestValueCodec::longNestedMixEnds()
{
    const QString deep = QString("MIX:").repeated(200000) + "SHORT:7";
    QCOMPARE(convertValue("MIX", deep).hex, QString("00 07"));
}

void TestValueCodec::anyInputGivesHexText()
{
    static const QRegularExpression hexText("^([0-9A-F]{2}( [0-9A-F]{2})*)?$");
    static const QStringList pieces = {"STRING",  "MIX", "TIME", "INT",  "SHORT", "CHAR",
                                       ":",       "%%",  "%",    ",",    "-",     "1",
                                       "65536",   " ",   "A",    "啊",   "GBK",   QChar(0xD83D),
                                       "UNICODE", "\n",  "+",    "32767"};
    QRandomGenerator random(4711);
    const auto text = [&random](int most) {
        QString joined;
        for (int i = random.bounded(most); i > 0; --i) {
            joined += pieces.at(random.bounded(pieces.size()));
        }
        return joined;
    };
    for (int round = 0; round < 3000; ++round) {
        const QString kind = text(4);
        const QString value = text(15);
        const QString hex = convertValue(kind, value).hex;
        QVERIFY2(hexText.match(hex).hasMatch(), qPrintable(kind + " | " + value + " | " + hex));
    }
}

QTEST_APPLESS_MAIN(TestValueCodec)
#include "tst_valuecodec.moc"
