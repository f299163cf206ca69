#include "frames/crc16.h"
#include "frames/framebuilder.h"
#include "frames/hextext.h"

#include <QTextCodec>
#include <QtTest>

Q_DECLARE_METATYPE(FrameLayout)

class TestFrameBuilder : public QObject
{
    Q_OBJECT

private slots:
    void payloads_data();
    void payloads();
    void noPayload_data();
    void noPayload();
    void nonAsciiIsTakenOnlyInQuotes();
    void zeroCharacters();
    void payloadsPastTheInlineBuffer_data();
    void payloadsPastTheInlineBuffer();
    void frames_data();
    void frames();
    void lengthFields_data();
    void lengthFields();
    void noFrame();
    void crcIsOfThePayloadAlone();
    void longFrameIsWhole();
};

namespace {

FrameLayout makeLayout(bool withStartBytes, bool withLength, bool withCrc)
{
    return {StartBytes{0x5A, 0xA5}, withStartBytes, withLength, withCrc};
}

QByteArray payloadHex(const QString &text)
{
    return parsePayload(text).value_or(QByteArray("nothing")).toHex(' ');
}

/// A payload of the given number of bytes as a command text, beginning with the given one.
QString commandText(const QString &firstByte, int bytes)
{
    return firstByte + QStringLiteral("AB").repeated(bytes - 1);
}

} // namespace

void TestFrameBuilder::payloads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("payload");

    const auto add = [](const char *name, const char *text, const char *payload) {
        QTest::newRow(name) << QString::fromUtf8(text) << QByteArray(payload);
    };
    add("one token", "010300AF", "01 03 00 af");
    add("lower case", "abcdef", "ab cd ef");
    add("two tokens", "0103000000 01", "01 03 00 00 00 01");
    add("blanks around and between", "  01   02  ", "01 02");
    add("bad first digit", "G7", "07");
    add("bad second digit", "7G", "00");
    add("bad digits are not sorted out", "0102zz03", "01 02 00 03");
    add("a delay row's text", "++1000", "00 10 00");

    add("comment after a blank", "01 02 /03", "01 02");
    add("comment right behind a token", "0102/03", "01 02");
    add("odd digits in a comment", "01 / 2 3", "01");
    add("quotes in a comment", "01 /\"AB\"", "01");
    add("second slash in a comment", "01 /a/ 02", "01");

    add("literal", "01 \"AB\" 02", "01 41 42 02");
    add("literal alone", "\"AB\"", "41 42");
    add("blank in a literal", "\"A B\"", "41 20 42");
    add("slash in a literal", "\"A/B\" 01", "41 2f 42 01");
    add("digits in a literal", R"("123")", "31 32 33");
    add("control characters in a literal", "\"\t\n\x7F\"", "09 0a 7f");
    add("two literals", R"("A""B")", "41 42");
    add("empty literal", "01 \"\" 02", "01 02");
    add("no closing quote", "01 \"AB 0", "01 41 42 20 30");
    add("no closing quote, slash", "\"A/B", "41 2f 42");
    add("quote at the very end", "01 \"", "01");
    add("literal overtakes its token's digits", "01\"A\"02", "41 01 02");
    add("a token goes on behind a literal", "0\"A\"1", "41 01");
    add("open literal overtakes digits", "01\"A", "41 01");

    add("control characters are skipped", "0\t1\r\n02\x1F", "01 02");
    add("a tab does not end a token", "01 0\t2", "01 02");
    add("the delete character is skipped",
        "0\x7F"
        "1",
        "01");
    add("first and last printable character", "!1 1~", "01 00");
}

void TestFrameBuilder::payloads()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, payload);
    QCOMPARE(payloadHex(text), payload);
}

void TestFrameBuilder::noPayload_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << "   ";
    QTest::newRow("comment only") << "/0102";
    QTest::newRow("empty literal") << "\"\"";
    QTest::newRow("opening quote only") << "\"";
    QTest::newRow("only skipped characters") << "\t\n";
    QTest::newRow("odd token") << "012";
    QTest::newRow("odd last token") << "01 2";
    QTest::newRow("odd first token") << "1 02";
    QTest::newRow("odd middle token") << "01 2 03";
    QTest::newRow("two odd tokens") << "1 2";
    QTest::newRow("odd before a comment") << "01 2/3";
    QTest::newRow("odd before a literal") << "1\"A\"";
    QTest::newRow("odd behind a literal") << "\"A\"1";
    QTest::newRow("odd before an open literal") << "1\"A";
}

void TestFrameBuilder::noPayload()
{
    QFETCH(QString, text);
    QVERIFY(!parsePayload(text).has_value());
}

void TestFrameBuilder::nonAsciiIsTakenOnlyInQuotes()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QString accent = QStringLiteral(u"\u00E9");
    const QByteArray encoded = accent.toLocal8Bit();
    QCOMPARE(encoded, QByteArray("\xC3\xA9"));
    QCOMPARE(payloadHex(QLatin1Char('0') + accent + QLatin1Char('1')), QByteArray("01"));
    QCOMPARE(payloadHex(QStringLiteral("\"%1\"").arg(accent)), encoded.toHex(' '));
    QVERIFY(!parsePayload(accent).has_value());
}

void TestFrameBuilder::zeroCharacters()
{
    const QString text =
        QLatin1String("01") + QChar(0) + QLatin1String("02\"A") + QChar(0) + QLatin1String("B\"");
    QCOMPARE(payloadHex(text), QByteArray("41 00 42 01 02"));
}

void TestFrameBuilder::payloadsPastTheInlineBuffer_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("payload");

    for (const int bytes : {2047, 2048, 2049, 4095, 4096, 4097, 70000}) {
        const QString digits = QStringLiteral("5B").repeated(bytes);
        const QByteArray payload(bytes, '\x5B');
        QTest::addRow("token of %d bytes", bytes) << digits << payload;
        QTest::addRow("literal of %d bytes", bytes)
            << QLatin1Char('"') + QString(bytes, QLatin1Char('[')) << payload;
        QTest::addRow("%d tokens", bytes) << QStringLiteral("5B ").repeated(bytes) << payload;
    }
}

void TestFrameBuilder::payloadsPastTheInlineBuffer()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, payload);
    const std::optional<QByteArray> parsed = parsePayload(text);
    QVERIFY(parsed.has_value());
    QCOMPARE(parsed->size(), payload.size());
    QVERIFY(*parsed == payload);
}

void TestFrameBuilder::frames_data()
{
    QTest::addColumn<FrameLayout>("layout");
    QTest::addColumn<QByteArray>("frame");

    const auto add = [](const char *name, const FrameLayout &layout, const char *frame) {
        QTest::newRow(name) << layout << QByteArray(frame);
    };
    add("all", makeLayout(true, true, true), "5a a5 08 01 03 00 00 00 01 84 0a");
    add("no CRC", makeLayout(true, true, false), "5a a5 06 01 03 00 00 00 01");
    add("no start bytes", makeLayout(false, true, true), "08 01 03 00 00 00 01 84 0a");
    add("no length", makeLayout(true, false, true), "5a a5 01 03 00 00 00 01 84 0a");
    add("payload and CRC", makeLayout(false, false, true), "01 03 00 00 00 01 84 0a");
    add("payload alone", makeLayout(false, false, false), "01 03 00 00 00 01");
    FrameLayout fallback;
    fallback.startBytes = fallbackStartBytes;
    add("fallback start bytes", fallback, "a5 5a 06 01 03 00 00 00 01");
}

void TestFrameBuilder::frames()
{
    QFETCH(FrameLayout, layout);
    QFETCH(QByteArray, frame);
    QCOMPARE(buildFrame(QStringLiteral("0103000000 01"), layout).toHex(' '), frame);
}

void TestFrameBuilder::lengthFields_data()
{
    QTest::addColumn<QString>("firstByte");
    QTest::addColumn<int>("payloadBytes");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QByteArray>("field");

    const auto add = [](const char *name, const char *firstByte, int payloadBytes, bool withCrc,
                        int maximum, const char *field) {
        QTest::newRow(name) << QString::fromLatin1(firstByte) << payloadBytes << withCrc << maximum
                            << QByteArray(field);
    };
    add("one byte", "10", 1, false, 65535, "01");
    add("last short", "10", 255, false, 65535, "ff");
    add("first long", "10", 256, false, 65535, "00 01 00");
    add("long", "10", 300, false, 65535, "00 01 2c");
    add("other command", "11", 300, false, 65535, "2c");
    add("command 00", "00", 300, false, 65535, "2c");
    add("other command, 256", "03", 256, false, 65535, "00");
    add("other maximum", "10", 300, false, 65534, "2c");
    add("small maximum", "10", 300, false, 255, "2c");
    add("the CRC counts", "10", 253, true, 65535, "ff");
    add("the CRC makes it long", "10", 254, true, 65535, "00 01 00");
    add("the CRC counts in the short form", "11", 254, true, 65535, "00");
    add("both bytes", "10", 0x1234, false, 65535, "00 12 34");
    add("longest", "10", 65535, false, 65535, "00 ff ff");
}

void TestFrameBuilder::lengthFields()
{
    QFETCH(QString, firstByte);
    QFETCH(int, payloadBytes);
    QFETCH(bool, withCrc);
    QFETCH(int, maximum);
    QFETCH(QByteArray, field);
    FrameLayout layout = makeLayout(true, true, withCrc);
    layout.maximumInstructionLength = maximum;
    const QByteArray frame = buildFrame(commandText(firstByte, payloadBytes), layout);
    const int fieldBytes = frame.size() - 2 - payloadBytes - (withCrc ? 2 : 0);
    QCOMPARE(frame.mid(2, fieldBytes).toHex(' '), field);
    QCOMPARE(frame.mid(2 + fieldBytes, 1).toHex(), firstByte.toLatin1());
}

void TestFrameBuilder::noFrame()
{
    const FrameLayout layout = makeLayout(true, true, true);
    QVERIFY(buildFrame(QString(), layout).isEmpty());
    QVERIFY(buildFrame(QStringLiteral("01 2"), layout).isEmpty());
    QVERIFY(buildFrame(QStringLiteral("/01"), layout).isEmpty());
}

void TestFrameBuilder::crcIsOfThePayloadAlone()
{
    const QByteArray payload("123456789");
    FrameLayout layout = makeLayout(true, true, true);
    layout.startBytes = {0x12, 0x34};
    const QByteArray frame = buildFrame(QStringLiteral("\"123456789\""), layout);
    QCOMPARE(frame.right(2).toHex(' '), QByteArray("37 4b"));
    QCOMPARE(frame.mid(3, payload.size()), payload);
}

void TestFrameBuilder::longFrameIsWhole()
{
    constexpr int payloadBytes = 5000;
    const QString text = commandText(QStringLiteral("10"), payloadBytes);
    const QByteArray frame = buildFrame(text, makeLayout(true, true, true));
    const QByteArray payload = QByteArray::fromHex(text.toLatin1());
    QCOMPARE(frame.size(), 2 + 3 + payloadBytes + 2);
    QCOMPARE(frame.left(5).toHex(' '), QByteArray("5a a5 00 13 8a"));
    QVERIFY(frame.mid(5, payloadBytes) == payload);
    const quint16 crc = crc16Modbus(payload);
    QCOMPARE(int(quint8(frame.at(frame.size() - 2))), crc & 0xFF);
    QCOMPARE(int(quint8(frame.back())), crc >> 8);
}

// The locale's encoding is set up by the application object.
QTEST_GUILESS_MAIN(TestFrameBuilder)
#include "tst_framebuilder.moc"
