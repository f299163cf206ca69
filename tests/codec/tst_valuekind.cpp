#include "codec/valuekind.h"
#include "valuetypes.h"

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
    void everyNumberKindIsFoundByItsNames_data();
    void everyNumberKindIsFoundByItsNames();
    void stringIsTheLastOfTheEditorsTypes();
};

void TestValueKind::kindOfText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ValueKind>("kind");
    QTest::addColumn<QString>("number");

    QTest::newRow("INT") << "INT" << ValueKind::Number << "INT";
    QTest::newRow("UINT") << "UINT" << ValueKind::Number << "UINT";
    QTest::newRow("CHAR") << "CHAR" << ValueKind::Number << "CHAR";
    QTest::newRow("UCHAR") << "UCHAR" << ValueKind::Number << "UCHAR";
    QTest::newRow("SHORT") << "SHORT" << ValueKind::Number << "SHORT";
    QTest::newRow("USHORT") << "USHORT" << ValueKind::Number << "USHORT";
    QTest::newRow("LONGLONG") << "LONGLONG" << ValueKind::Number << "LONGLONG";
    QTest::newRow("STRING") << "STRING" << ValueKind::String << "";
    QTest::newRow("TIME") << "TIME" << ValueKind::Time << "";
    QTest::newRow("MIX") << "MIX" << ValueKind::Mix << "";
    QTest::newRow("string with encoding") << "STRING:GBK2312" << ValueKind::String << "";
    QTest::newRow("STRING inside") << "MY STRINGS" << ValueKind::String << "";
    QTest::newRow("STRING wins over a name inside") << "INTSTRING" << ValueKind::String << "";
    QTest::newRow("first name containing T") << "T" << ValueKind::Number << "INT";
    QTest::newRow("first name containing U") << "U" << ValueKind::Number << "UINT";
    QTest::newRow("first name containing HAR") << "HAR" << ValueKind::Number << "CHAR";
    QTest::newRow("first name containing S") << "S" << ValueKind::Number << "SHORT";
    QTest::newRow("first name containing LONG") << "LONG" << ValueKind::Number << "LONGLONG";
    QTest::newRow("first name containing ING") << "ING" << ValueKind::String << "";
    QTest::newRow("first name containing M") << "M" << ValueKind::Time << "";
    QTest::newRow("first name containing X") << "X" << ValueKind::Mix << "";
    QTest::newRow("empty") << "" << ValueKind::Number << "INT";
    QTest::newRow("lower case is not matched") << "short" << ValueKind::Number << "INT";
    QTest::newRow("unknown") << "FLOAT" << ValueKind::Number << "INT";
    QTest::newRow("longer than a name") << "SHORTS" << ValueKind::Number << "INT";
}

void TestValueKind::kindOfText()
{
    QFETCH(QString, text);
    QFETCH(ValueKind, kind);
    QFETCH(QString, number);
    QCOMPARE(valueKindNamed(text), kind);
    if (kind == ValueKind::Number) {
        QCOMPARE(QString(numberKindNamed(text).name.data()), number);
    }
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

void TestValueKind::everyNumberKindIsFoundByItsNames_data()
{
    QTest::addColumn<int>("index");

    for (std::size_t i = 0; i < numberKinds.size(); ++i) {
        QTest::newRow(numberKinds.at(i).name.data()) << static_cast<int>(i);
    }
}

void TestValueKind::everyNumberKindIsFoundByItsNames()
{
    QFETCH(int, index);
    const NumberKind &kind = numberKinds.at(static_cast<std::size_t>(index));
    QCOMPARE(valueKindNamed(kind.name.data()), ValueKind::Number);
    QVERIFY(numberKindNamed(kind.name.data()).name == kind.name);
    QCOMPARE(editorTypes().at(index), QString(kind.caption.data()));
    QCOMPARE(editorSelection(kind.caption.data()).type, index);
}

void TestValueKind::stringIsTheLastOfTheEditorsTypes()
{
    QCOMPARE(editorTypes().size(), stringTypeIndex + 1);
    QCOMPARE(editorTypes().last(), QString("string"));
}

QTEST_APPLESS_MAIN(TestValueKind)
#include "tst_valuekind.moc"
