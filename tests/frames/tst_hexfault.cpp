#include "frames/framebuilder.h"
#include "frames/hexfault.h"

#include <QtTest>

Q_DECLARE_METATYPE(HexFault)

class TestHexFault : public QObject
{
    Q_OBJECT

private slots:
    void faults_data();
    void faults();
};

void TestHexFault::faults_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<HexFault>("fault");

    const auto add = [](const char *name, const char *text, HexFault fault) {
        QTest::newRow(name) << QString::fromUtf8(text) << fault;
    };
    add("empty", "", HexFault::None);
    add("blanks", "    ", HexFault::None);
    add("pairs", "01 aF", HexFault::None);
    add("a longer token", "0102 03", HexFault::None);
    add("blanks around", " 01  02 ", HexFault::None);
    add("one digit", "1", HexFault::OddDigits);
    add("an odd token", "01 2", HexFault::OddDigits);
    add("three digits", "010", HexFault::OddDigits);
    add("a letter beyond F", "0G", HexFault::NoHexDigit);
    add("a prefix", "0x10", HexFault::NoHexDigit);
    add("another script", "0é", HexFault::NoHexDigit);
    add("a full-width digit", "0１", HexFault::NoHexDigit);
    add("a tab", "01\t02", HexFault::NoHexDigit);
    add("a literal", "01 \"xyz\" 02", HexFault::None);
    add("an open literal", "01 \"xyz", HexFault::None);
    add("digits go on behind a literal", "0\"xyz\"1", HexFault::None);
    add("an odd digit before a literal", "0\"xyz\"", HexFault::OddDigits);
    add("a comment", "01 / anything", HexFault::None);
    add("an odd digit before a comment", "0/1", HexFault::OddDigits);
    add("a slash in a literal", "01\"/\"0", HexFault::OddDigits);
}

void TestHexFault::faults()
{
    QFETCH(QString, text);
    QFETCH(HexFault, fault);
    QCOMPARE(hexFaultOf(text), fault);
    if (fault == HexFault::OddDigits) {
        QVERIFY(!parsePayload(text));
    }
}

QTEST_APPLESS_MAIN(TestHexFault)
#include "tst_hexfault.moc"
