#include "frames/hextext.h"

#include <QtTest>

class TestHexText : public QObject
{
    Q_OBJECT

private slots:
    void digitValues();
    void bytesFromPairs();
    void pairs_data();
    void pairs();
    void formattedBytes_data();
    void formattedBytes();
    void everyByteFormatted();
    void padding_data();
    void padding();
    void blanks_data();
    void blanks();
    void grouping_data();
    void grouping();
};

void TestHexText::digitValues()
{
    const QByteArray upper("0123456789ABCDEF");
    const QByteArray lower("0123456789abcdef");
    for (int character = 0; character < 256; ++character) {
        const char digit = static_cast<char>(character);
        const int inUpper = upper.indexOf(digit);
        const int expected = inUpper >= 0 ? inUpper : lower.indexOf(digit);
        const std::optional<quint8> value = hexDigitValue(digit);
        QCOMPARE(value.has_value(), expected >= 0);
        QCOMPARE(value ? int(*value) : -1, expected);
    }
}

void TestHexText::bytesFromPairs()
{
    for (int value = 0; value < 256; ++value) {
        const QByteArray lower = QByteArray::number(value, 16).rightJustified(2, '0');
        const QByteArray upper = lower.toUpper();
        QCOMPARE(int(hexPairToByte(lower[0], lower[1])), value);
        QCOMPARE(int(hexPairToByte(upper[0], upper[1])), value);
    }
}

void TestHexText::pairs_data()
{
    QTest::addColumn<QByteArray>("pair");
    QTest::addColumn<int>("byte");

    QTest::newRow("mixed case") << QByteArray("aF") << 0xAF;
    QTest::newRow("a bad first character counts as 0") << QByteArray("G7") << 0x07;
    QTest::newRow("a bad second character makes the byte 0") << QByteArray("7G") << 0x00;
    QTest::newRow("both bad") << QByteArray("xy") << 0x00;
    QTest::newRow("next to the digits") << QByteArray("/:") << 0x00;
    QTest::newRow("below A, then a digit") << QByteArray("@F") << 0x0F;
    QTest::newRow("a digit, then below a") << QByteArray("F`") << 0x00;
    QTest::newRow("a byte above 0x7F first") << QByteArray("\xFF"
                                                           "1")
                                             << 0x01;
    QTest::newRow("a byte above 0x7F second") << QByteArray("1\xFF") << 0x00;
}

void TestHexText::pairs()
{
    QFETCH(QByteArray, pair);
    QFETCH(int, byte);
    QCOMPARE(int(hexPairToByte(pair.at(0), pair.at(1))), byte);
}

void TestHexText::formattedBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("below 0x10") << QByteArray(1, '\x05') << "05 ";
    QTest::newRow("a frame") << QByteArray::fromHex("5aa503010a") << "5A A5 03 01 0A ";
    QTest::newRow("bytes above 0x7F and 0") << QByteArray::fromHex("80ff00") << "80 FF 00 ";
}

void TestHexText::formattedBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(formatHexBytes(bytes), text);
    QCOMPARE(formatHexBytes(bytes).size(), bytes.size() * 3);
}

void TestHexText::everyByteFormatted()
{
    for (int value = 0; value < 256; ++value) {
        const QString expected = QString::asprintf("%02X ", unsigned(value));
        QCOMPARE(formatHexBytes(QByteArray(1, static_cast<char>(value))), expected);
    }
}

void TestHexText::padding_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("text");

    QTest::newRow("filled") << quint64(0xAB) << 4 << "00AB";
    QTest::newRow("exact") << quint64(0xABCD) << 4 << "ABCD";
    QTest::newRow("longer than asked for") << quint64(0x12345) << 4 << "12345";
    QTest::newRow("zero") << quint64(0) << 2 << "00";
    QTest::newRow("largest") << ~quint64(0) << 1 << "FFFFFFFFFFFFFFFF";
}

void TestHexText::padding()
{
    QFETCH(quint64, value);
    QFETCH(int, digits);
    QFETCH(QString, text);
    QCOMPARE(paddedHex(value, digits), text);
}

void TestHexText::blanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("everywhere") << "  01 02  03 "
                                << "010203";
    QTest::newRow("only blanks") << "   " << QString();
    QTest::newRow("a tab stays") << "01\t 02"
                                 << "01\t02";
    QTest::newRow("a no-break space stays")
        << QStringLiteral(u"01\u00A0 02") << QStringLiteral(u"01\u00A002");
}

void TestHexText::blanks()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(withoutBlanks(text), expected);
}

void TestHexText::grouping_data()
{
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QString>("grouped");

    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("one") << "1"
                         << "1";
    QTest::newRow("two") << "12"
                         << "12";
    QTest::newRow("three") << "123"
                           << "1 23";
    QTest::newRow("four") << "1234"
                          << "12 34";
    QTest::newRow("five") << "01020"
                          << "0 10 20";
}

void TestHexText::grouping()
{
    QFETCH(QString, digits);
    QFETCH(QString, grouped);
    QCOMPARE(groupPairsFromRight(digits), grouped);
}

QTEST_APPLESS_MAIN(TestHexText)
#include "tst_hextext.moc"
