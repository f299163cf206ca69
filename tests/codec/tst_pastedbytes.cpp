#include "codec/pastedbytes.h"
#include "frames/hextext.h"

#include <QtTest>

class TestPastedBytes : public QObject
{
    Q_OBJECT

private slots:
    void bytesAreRead_data();
    void bytesAreRead();
    void everyByteIsReadInEveryNotation();
    void whatIsNoByteIsNamed_data();
    void whatIsNoByteIsNamed();
    void longPartsAreShortened();
    void moreThanAnInstructionHoldsIsRefused();
};

void TestPastedBytes::bytesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("bytes");

    const auto add = [](const char *text, const char *bytes) {
        QTest::newRow(text) << text << bytes;
    };
    add("0x10, 0x20", "1020");
    add("0x10,0x20", "1020");
    add("0X1f 0Xa0", "1FA0");
    add("{0x10,0x20}", "1020");
    add("{ 0x10, 0x20, };", "1020");
    add("[0x10, 0x20]", "1020");
    add("(0x10; 0x20)", "1020");
    add("0x10\r\n0x20\r\n", "1020");
    add("0x1020, 0x30", "102030");
    add("0x5, 0x0", "0500");
    add("10h 20h", "1020");
    add("10H,20H", "1020");
    add("0FFh, 5h, 1020h", "FF051020");
    add("0FF20h", "FF20");
    add(R"(\x10\x20)", "1020");
    add("\\x10 \\X2f,\n\\x30", "102F30");
    add(R"("\x10\x20")", "1020");
    add(R"('\x10')", "10");
    add(R"(b'\x10A\n')", "10410A");
    add("b\"AB\"", "4142");
    add(R"(B'\0\12\377\18')", "000AFF0138");
    add(R"("\a\b\f\n\r\t\v\\\'\"~ ")", "07080C0A0D090B5C27227E20");
    add("10 20", "1020");
    add("1020", "1020");
    add(" 10\t20\n30 ", "102030");
    add("1020 30 aBcD", "102030ABCD");
    add("10-20-FF", "1020FF");
    add("10:20:FF", "1020FF");
    add("10:20 30-40", "10203040");
    add("\"10 20\"", "1020");
    add("'1020'", "1020");
    add("0A, 20, 30", "0A2030");
    add("[05, 10]", "0510");
    add("{10, FF}", "10FF");
    add("[10, 1A2B]", "101A2B");
}

void TestPastedBytes::bytesAreRead()
{
    QFETCH(QString, text);
    const PastedBytes read = readPastedBytes(text);
    QCOMPARE(int(read.fault), int(PasteFault::None));
    QCOMPARE(read.part, QString());
    QTEST(QString::fromLatin1(read.bytes.toHex().toUpper()), "bytes");
}

void TestPastedBytes::everyByteIsReadInEveryNotation()
{
    QByteArray all;
    for (int value = 0; value <= 0xFF; ++value) {
        all.append(char(value));
    }
    const auto joined = [&all](const QString &before, const QString &behind) {
        QString text;
        for (const char byte : all) {
            text += before + QString::fromLatin1(QByteArray(1, byte).toHex()) + behind;
        }
        return text;
    };
    for (const QString &text : {joined("0x", ", "), joined("0x", ""), joined("\\x", ""),
                                joined("0", "h "), joined("", "H,"), joined("", " "),
                                joined("", ""), joined("", ", "), joined(":", "").mid(1)}) {
        // Without anything between them, prefixes can't be told from digits.
        const bool isJoined = text.startsWith(QLatin1String("0x000x01"));
        const PastedBytes read = readPastedBytes(text);
        QCOMPARE(read.bytes, isJoined ? QByteArray() : all);
        QCOMPARE(read.fault == PasteFault::NoByte, isJoined);
    }
}

void TestPastedBytes::whatIsNoByteIsNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fault");
    QTest::addColumn<QString>("part");

    const auto add = [](const char *text, PasteFault fault, const char *part) {
        QTest::newRow(text) << text << int(fault) << part;
    };
    add("", PasteFault::Nothing, "");
    add(" \r\n\t", PasteFault::Nothing, "");
    add("EiA=", PasteFault::NoByte, "EiA=");
    add("0x10, 0x1G", PasteFault::NoByte, "0x1G");
    add("0x", PasteFault::NoByte, "0x");
    add("h", PasteFault::NoByte, "h");
    add("0x10h", PasteFault::NoByte, "0x10h");
    add("10 + 20", PasteFault::NoByte, "+");
    add("10,,20", PasteFault::NoByte, "");
    add("{}", PasteFault::NoByte, "{}");
    add("\"\"", PasteFault::NoByte, "\"\"");
    add("b''", PasteFault::NoByte, "b''");
    add("{0x10", PasteFault::NoByte, "{0x10");
    add("10-20-3", PasteFault::NoByte, "10-20-3");
    add("10-20:30", PasteFault::NoByte, "10-20:30");
    add("10- 20", PasteFault::NoByte, "10-");
    add("[-16, 32]", PasteFault::NoByte, "-16");
    add("\u0661\u0660", PasteFault::NoByte, "\u0661\u0660");
    add("\\x1", PasteFault::NoByte, "\\x1");
    add("\\x10\\xG0", PasteFault::NoByte, "\\xG0");
    add("\\x0G", PasteFault::NoByte, "\\x0G");
    add("\\x10A", PasteFault::NoByte, "A");
    add("\\n", PasteFault::NoByte, "\\n");
    add("\\", PasteFault::NoByte, "\\");
    add("'\\q'", PasteFault::NoByte, "\\q");
    add("'\\'", PasteFault::NoByte, "\\");
    add("'\\x10' '\\x20'", PasteFault::NoByte, "' '\\");
    add("b'\\x10\u00E4'", PasteFault::NoByte, "\u00E4");
    add("b'\t'", PasteFault::NoByte, "\t");
    add("'\\400'", PasteFault::NoByte, "\\400");
    add("1 2 3", PasteFault::MissingDigit, "1");
    add("102", PasteFault::MissingDigit, "102");
    add("0x10, 0x123", PasteFault::MissingDigit, "0x123");
    add("0x012", PasteFault::MissingDigit, "0x012");
    add("123h", PasteFault::MissingDigit, "123h");
    add("0x10, 20", PasteFault::Mixed, "20");
    add("10, 0x20", PasteFault::Mixed, "0x20");
    add("10h 0x20", PasteFault::Mixed, "0x20");
    add("[16, 32]", PasteFault::Ambiguous, "[16, 32]");
    add("10, 20", PasteFault::Ambiguous, "10, 20");
    add("10; 20", PasteFault::Ambiguous, "10; 20");
    add("{10 20}", PasteFault::Ambiguous, "{10 20}");
    add("[1, 2, 3]", PasteFault::Ambiguous, "[1, 2, 3]");
    add("[16, 255]", PasteFault::Ambiguous, "[16, 255]");
    add("[0, 16]", PasteFault::Ambiguous, "[0, 16]");
}

void TestPastedBytes::whatIsNoByteIsNamed()
{
    QFETCH(QString, text);
    const PastedBytes read = readPastedBytes(text);
    QCOMPARE(read.bytes, QByteArray());
    QTEST(int(read.fault), "fault");
    QTEST(read.part, "part");
}

void TestPastedBytes::longPartsAreShortened()
{
    QCOMPARE(readPastedBytes(QString(20, 'x')).part, QString(20, 'x'));
    QCOMPARE(readPastedBytes(QString(21, 'x')).part, QString(20, 'x') + QString::fromUtf8("…"));
}

void TestPastedBytes::moreThanAnInstructionHoldsIsRefused()
{
    const QString most(2 * mostPastedBytes, '1');
    QCOMPARE(readPastedBytes(most).bytes.size(), mostPastedBytes);
    const PastedBytes more = readPastedBytes(most + "11");
    QCOMPARE(int(more.fault), int(PasteFault::TooLong));
    QCOMPARE(more.bytes, QByteArray());
    const QString spaced = QString("0x10,\r\n ").repeated(mostPastedBytes);
    QCOMPARE(readPastedBytes(spaced).bytes.size(), mostPastedBytes);
    QCOMPARE(int(readPastedBytes(spaced + ' ').fault), int(PasteFault::TooLong));
}

QTEST_APPLESS_MAIN(TestPastedBytes)
#include "tst_pastedbytes.moc"
