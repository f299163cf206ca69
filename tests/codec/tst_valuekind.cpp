#include "valuekind.h"

#include <QtTest>

class TestValueKind : public QObject
{
    Q_OBJECT

private slots:
    void kindOfText_data();
    void kindOfText();
    void encodingOfKindText_data();
    void encodingOfKindText();
    void editorSelectionOfRow_data();
    void editorSelectionOfRow();
    void onlyNumbersAreNumberKinds();
};

Q_DECLARE_METATYPE(ValueKind)
Q_DECLARE_METATYPE(StringEncoding)

void TestValueKind::kindOfText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ValueKind>("kind");

    QTest::newRow("INT") << "INT" << ValueKind::Int;
    QTest::newRow("UINT") << "UINT" << ValueKind::UInt;
    QTest::newRow("CHAR") << "CHAR" << ValueKind::Char;
    QTest::newRow("UCHAR") << "UCHAR" << ValueKind::UChar;
    QTest::newRow("SHORT") << "SHORT" << ValueKind::Short;
    QTest::newRow("USHORT") << "USHORT" << ValueKind::UShort;
    QTest::newRow("LONGLONG") << "LONGLONG" << ValueKind::LongLong;
    QTest::newRow("STRING") << "STRING" << ValueKind::String;
    QTest::newRow("TIME") << "TIME" << ValueKind::Time;
    QTest::newRow("MIX") << "MIX" << ValueKind::Mix;
    QTest::newRow("string with encoding") << "STRING:GBK2312" << ValueKind::String;
    QTest::newRow("STRING inside") << "MY STRINGS" << ValueKind::String;
    QTest::newRow("STRING wins over a name inside") << "INTSTRING" << ValueKind::String;
    QTest::newRow("first name containing T") << "T" << ValueKind::Int;
    QTest::newRow("first name containing U") << "U" << ValueKind::UInt;
    QTest::newRow("first name containing HAR") << "HAR" << ValueKind::Char;
    QTest::newRow("first name containing S") << "S" << ValueKind::Short;
    QTest::newRow("first name containing LONG") << "LONG" << ValueKind::LongLong;
    QTest::newRow("first name containing ING") << "ING" << ValueKind::String;
    QTest::newRow("first name containing M") << "M" << ValueKind::Time;
    QTest::newRow("first name containing X") << "X" << ValueKind::Mix;
    QTest::newRow("empty") << "" << ValueKind::Int;
    QTest::newRow("lower case is not matched") << "short" << ValueKind::Int;
    QTest::newRow("unknown") << "FLOAT" << ValueKind::Int;
    QTest::newRow("longer than a name") << "SHORTS" << ValueKind::Int;
}

void TestValueKind::kindOfText()
{
    QFETCH(QString, text);
    QFETCH(ValueKind, kind);
    QCOMPARE(valueKindNamed(text), kind);
}

void TestValueKind::encodingOfKindText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<StringEncoding>("encoding");

    QTest::newRow("GBK2312") << "STRING:GBK2312" << StringEncoding::Gb2312;
    QTest::newRow("GB2312") << "STRING:GB2312" << StringEncoding::Gb2312;
    QTest::newRow("GBK") << "STRING:GBK" << StringEncoding::Gbk;
    QTest::newRow("UNICODE") << "STRING:UNICODE" << StringEncoding::Unicode;
    QTest::newRow("any case") << "STRING:Unicode" << StringEncoding::Unicode;
    QTest::newRow("no part of a name") << "STRING:UNI" << StringEncoding::Gb2312;
    QTest::newRow("unknown") << "STRING:UTF-8" << StringEncoding::Gb2312;
    QTest::newRow("nothing behind the colon") << "STRING:" << StringEncoding::Gb2312;
    QTest::newRow("no colon") << "STRING" << StringEncoding::Gb2312;
}

void TestValueKind::encodingOfKindText()
{
    QFETCH(QString, text);
    QFETCH(StringEncoding, encoding);
    QCOMPARE(encodingOfKind(text), encoding);
}

void TestValueKind::editorSelectionOfRow_data()
{
    QTest::addColumn<QString>("rowType");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("encoding");

    QTest::newRow("int") << "int" << 0 << 0;
    QTest::newRow("uint") << "uint" << 1 << 0;
    QTest::newRow("char") << "char" << 2 << 0;
    QTest::newRow("uchar") << "uchar" << 3 << 0;
    QTest::newRow("UCHAR is not taken for CHAR") << "UCHAR" << 3 << 0;
    QTest::newRow("short") << "short" << 4 << 0;
    QTest::newRow("ushort") << "ushort" << 5 << 0;
    QTest::newRow("longlong") << "longlong" << 6 << 0;
    QTest::newRow("GB2312") << "GB2312" << 7 << 0;
    QTest::newRow("GBK") << "GBK" << 7 << 1;
    QTest::newRow("Unicode") << "Unicode" << 7 << 2;
    QTest::newRow("first containing") << "t" << 0 << 0;
    QTest::newRow("part of an encoding") << "gb" << 7 << 0;
    QTest::newRow("empty") << "" << 4 << 0;
    QTest::newRow("unknown") << "float" << 4 << 0;
    QTest::newRow("string is no row type") << "string" << 4 << 0;
    QTest::newRow("the other spelling is no row type") << "GBK2312" << 4 << 0;
}

void TestValueKind::editorSelectionOfRow()
{
    QFETCH(QString, rowType);
    const EditorSelection selection = editorSelection(rowType);
    QTEST(selection.type, "type");
    QTEST(selection.encoding, "encoding");
}

void TestValueKind::onlyNumbersAreNumberKinds()
{
    QCOMPARE(numberKind(ValueKind::Int), std::optional(NumberKind::Int));
    QCOMPARE(numberKind(ValueKind::LongLong), std::optional(NumberKind::LongLong));
    QVERIFY(!numberKind(ValueKind::String));
    QVERIFY(!numberKind(ValueKind::Time));
    QVERIFY(!numberKind(ValueKind::Mix));
}

QTEST_APPLESS_MAIN(TestValueKind)
#include "tst_valuekind.moc"
