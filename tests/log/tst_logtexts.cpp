#include "log/logtexts.h"

#include <QtTest>

class TestLogTexts : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void manyAtOnce();
};

namespace {

using Kind = LogRecord::Kind;

LogRecord wireRecord(Kind kind, int number, const QByteArray &hex, bool withCrc)
{
    return {kind, number, 0, 0, QByteArray::fromHex(hex), withCrc, {}, {}};
}

QStringList listOf(const LogTexts &texts)
{
    return {texts.begin(), texts.end()};
}

} // namespace

Q_DECLARE_METATYPE(LogRecord)

void TestLogTexts::texts_data()
{
    QTest::addColumn<LogRecord>("record");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("sent") << wireRecord(Kind::Sent, 12, "5AA508010300000001840A", true)
                          << QStringList{"12",   "5A A5",      " 08",   " 01",
                                         "0300", " 00 00 01 ", "84 0A "};
    QTest::newRow("sent, without CRC")
        << wireRecord(Kind::Sent, 12, "5AA5060103000001", false)
        << QStringList{"12", "5A A5", " 06", " 01", "0300", " 00 01 ", ""};
    QTest::newRow("received") << wireRecord(Kind::Received, 1, "5AA508010300000001840A", true)
                              << QStringList{"1",    "5A A5",      " 08",   " 01",
                                             "0300", " 00 00 01 ", "84 0A "};
    QTest::newRow("received, without an address")
        << wireRecord(Kind::Received, 1, "5AA503010203", false)
        << QStringList{"1", "5A A5", " 03", " 01", "", " 02 03 ", ""};
    QTest::newRow("stray") << wireRecord(Kind::Stray, 7, "5A00", false)
                           << QStringList{"7", "", "", "", "", "5A 00 ", ""};
    QTest::newRow("event") << LogRecord{Kind::Event, 0,     0,     0,
                                        {},          false, "HID", {"Insert x", "Insert x"}}
                           << QStringList{"HID", "", "", "", "", "Insert x", ""};
}

void TestLogTexts::texts()
{
    QFETCH(LogRecord, record);
    QFETCH(QStringList, texts);
    QCOMPARE(listOf(textsOf(record)), texts);
}

void TestLogTexts::manyAtOnce()
{
    const QVector<LogTexts> texts =
        textsOf({wireRecord(Kind::Stray, 1, "5A", false), wireRecord(Kind::Stray, 2, "A5", false)});
    QCOMPARE(texts.size(), 2);
    QCOMPARE(listOf(texts.at(0)), QStringList({"1", "", "", "", "", "5A ", ""}));
    QCOMPARE(listOf(texts.at(1)), QStringList({"2", "", "", "", "", "A5 ", ""}));
}

QTEST_APPLESS_MAIN(TestLogTexts)
#include "tst_logtexts.moc"
