#include "frames/hextext.h"
#include "hexbytes.h"
#include "log/datatext.h"
#include "log/logtexts.h"

#include <QtTest>

class TestDataText : public QObject
{
    Q_OBJECT

private slots:
    void dataOfRecords_data();
    void dataOfRecords();
    void dataAreWhatTheColumnShows_data();
    void dataAreWhatTheColumnShows();
    void bytesAsText_data();
    void bytesAsText();
    void everyByteReadsBackFromItsText();
    void severalRows_data();
    void severalRows();
};

namespace {

using Kind = LogRecord::Kind;

LogRecord dataRecord(Kind kind, const QByteArray &bytes, bool withCrc = false)
{
    LogRecord record;
    record.kind = kind;
    record.bytes = bytes;
    record.withCrc = withCrc;
    record.text = {"Insert x", "Insert x"};
    return record;
}

} // namespace

void TestDataText::dataOfRecords_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<QByteArray>("data");

    const QByteArray whole = hex("5AA5 08 03 1000 000001 840A");
    QTest::newRow("with CRC") << int(Kind::Sent) << whole << true << hex("000001");
    QTest::newRow("without CRC") << int(Kind::Sent) << whole << false << hex("000001840A");
    QTest::newRow("received") << int(Kind::Received) << whole << true << hex("000001");
    QTest::newRow("8 bytes") << int(Kind::Sent) << hex("5AA5 05 03 1000 0102") << false
                             << hex("0102");
    QTest::newRow("7 bytes") << int(Kind::Sent) << hex("5AA5 04 03 100001") << false
                             << hex("100001");
    QTest::newRow("7 bytes with CRC")
        << int(Kind::Received) << hex("5AA5 04 03 10 0102") << true << hex("10");
    QTest::newRow("5 bytes") << int(Kind::Sent) << hex("5AA5 02 03 10") << false << hex("10");
    QTest::newRow("nothing but a CRC")
        << int(Kind::Sent) << hex("5AA5 03 03 0102") << true << QByteArray();
    QTest::newRow("shorter than that")
        << int(Kind::Sent) << hex("5AA5 02 03 01") << true << QByteArray();
    QTest::newRow("a torn one") << int(Kind::Received) << hex("5A") << true << QByteArray();
    QTest::newRow("stray") << int(Kind::Stray) << hex("0102") << true << hex("0102");
    QTest::newRow("event") << int(Kind::Event) << QByteArray() << false << QByteArray();
}

void TestDataText::dataOfRecords()
{
    QFETCH(int, kind);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, withCrc);
    QTEST(dataOf(dataRecord(Kind(kind), bytes, withCrc)), "data");
}

void TestDataText::dataAreWhatTheColumnShows_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("withCrc");

    for (const int size : {6, 7, 8, 9, 10, 13, 64, 260, 4096}) {
        QTest::addRow("%d bytes", size) << size << false;
        QTest::addRow("%d bytes with CRC", size) << size << true;
    }
}

void TestDataText::dataAreWhatTheColumnShows()
{
    QFETCH(int, size);
    QFETCH(bool, withCrc);
    QByteArray bytes;
    for (int i = 0; i < size; ++i) {
        bytes.append(static_cast<char>(i * 7 + 1));
    }
    for (const Kind kind : {Kind::Sent, Kind::Received}) {
        const LogRecord record = dataRecord(kind, bytes, withCrc);
        QCOMPARE(dataOf(record).toHex().toUpper(),
                 withoutBlanks(textsOf(record)[LogColumn::Data]).toLatin1());
    }
}

void TestDataText::bytesAsText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("text");

    const QByteArray bytes = hex("5AA50009");
    QTest::newRow("hex") << bytes << int(DataForm::Hex) << "5A A5 00 09";
    QTest::newRow("C") << bytes << int(DataForm::CArray) << "{0x5A, 0xA5, 0x00, 0x09}";
    QTest::newRow("Python") << bytes << int(DataForm::Python) << R"(b"\x5A\xA5\x00\x09")";
    QTest::newRow("one byte in C") << hex("0A") << int(DataForm::CArray) << "{0x0A}";
    QTest::newRow("none in hex") << QByteArray() << int(DataForm::Hex) << "";
    QTest::newRow("none in C") << QByteArray() << int(DataForm::CArray) << "{}";
    QTest::newRow("none in Python") << QByteArray() << int(DataForm::Python) << R"(b"")";
    QTest::newRow("none as text") << QByteArray() << int(DataForm::Text) << "";

    const auto addText = [](const char *name, const QByteArray &text, const QString &shown) {
        QTest::newRow(name) << text << int(DataForm::Text) << shown;
    };
    addText("words", "OK 12 ~", "OK 12 ~");
    addText("ends of lines", "OK\r\n\tx", R"(OK\r\n\tx)");
    addText("control characters", QByteArray("\x00\x1B\x7F", 3), R"(\x00\x1B\x7F)");
    addText("a backslash", "a\\x00", R"(a\\x00)");
    addText("quotes", "\"'", "\"'");
    addText("two bytes a character", "\xC3\xBC", QString::fromUtf8("\xC3\xBC"));
    addText("three", "\xE2\x82\xAC", QString::fromUtf8("\xE2\x82\xAC"));
    addText("four", "\xF0\x9F\x98\x80", QString::fromUtf8("\xF0\x9F\x98\x80"));
    addText("cut off", "a\xE2\x82", R"(a\xE2\x82)");
    addText("in the middle", "\x82\xAC!", R"(\x82\xAC!)");
    addText("Latin 1", "\xFC-", R"(\xFC-)");
    addText("too long a form", "\xC0\xAF", R"(\xC0\xAF)");
    addText("a surrogate", "\xED\xA0\x80", R"(\xED\xA0\x80)");
    addText("an unprintable character", "\xC2\x85", R"(\xC2\x85)");
    addText("a mark of byte order", "\xEF\xBB\xBFx", R"(\xEF\xBB\xBFx)");
    addText("the mark of what can't be read", "\xEF\xBF\xBD", QString(QChar(0xFFFD)));
}

void TestDataText::bytesAsText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, form);
    QTEST(dataText(bytes, DataForm(form)), "text");
}

void TestDataText::everyByteReadsBackFromItsText()
{
    QByteArray all;
    for (int value = 0; value < 256; ++value) {
        all.append(static_cast<char>(value));
    }
    QCOMPARE(hex(dataText(all, DataForm::Hex)), all);
    QCOMPARE(hex(dataText(all, DataForm::CArray).remove("0x")), all);
    QCOMPARE(hex(dataText(all, DataForm::Python).mid(1).remove('x')), all);
}

void TestDataText::severalRows_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("text");

    QTest::newRow("hex") << int(DataForm::Hex) << "41\n42 43";
    QTest::newRow("text") << int(DataForm::Text) << "A\nBC";
    QTest::newRow("C") << int(DataForm::CArray) << "{0x41},\n{0x42, 0x43}";
    QTest::newRow("Python") << int(DataForm::Python) << "b\"\\x41\",\nb\"\\x42\\x43\"";
}

void TestDataText::severalRows()
{
    QFETCH(int, form);
    QTEST(dataText(QVector<QByteArray>{"A", "", "BC"}, DataForm(form)), "text");
    QCOMPARE(dataText(QVector<QByteArray>(), DataForm(form)), QString());
}

QTEST_APPLESS_MAIN(TestDataText)
#include "tst_datatext.moc"
