#include "hexbytes.h"
#include "log/logfilter.h"

#include <QtTest>

class TestLogFilter : public QObject
{
    Q_OBJECT

private slots:
    void nothingTypedMatchesAll_data();
    void nothingTypedMatchesAll();
    void kinds_data();
    void kinds();
    void bytes_data();
    void bytes();
    void texts_data();
    void texts();
    void wordsCombine_data();
    void wordsCombine();
    void everyPlaceIsFound();
};

namespace {

using Kind = LogRecord::Kind;

LogRecord soughtRecord(Kind kind, const QByteArray &bytes)
{
    LogRecord record;
    record.kind = kind;
    record.number = kind == Kind::Event ? 0 : 345;
    record.bytes = bytes;
    record.withCrc = true;
    if (kind == Kind::Event) {
        record.source = QStringLiteral("Uart");
        record.text = {"Insert /dev/ttyUSB0 now", "Insert /dev/ttyUSB0 now"};
    }
    return record;
}

/// Its address is B00C, its data are 00 00 12, its CRC is 84 0A.
LogRecord soughtFrame(Kind kind = Kind::Sent)
{
    return soughtRecord(kind, hex("5AA5 08 03 B00C 000012 840A"));
}

LogRecord soughtEvent()
{
    return soughtRecord(Kind::Event, {});
}

} // namespace

void TestLogFilter::nothingTypedMatchesAll_data()
{
    QTest::addColumn<QString>("typed");

    QTest::newRow("nothing") << "";
    QTest::newRow("blanks") << " \t ";
}

void TestLogFilter::nothingTypedMatchesAll()
{
    QFETCH(QString, typed);
    const LogFilter filter(typed);
    QVERIFY(filter.isEmpty());
    QVERIFY(filter.matches(soughtFrame()));
    QVERIFY(filter.matches(soughtEvent()));
    QVERIFY(filter.matches(LogRecord()));
    QVERIFY(LogFilter().isEmpty());
}

void TestLogFilter::kinds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVector<int>>("matching");

    const auto add = [](const char *typed, const QVector<int> &matching) {
        QTest::newRow(typed) << typed << matching;
    };
    add("tx", {int(Kind::Sent)});
    add("TX", {int(Kind::Sent)});
    add(" rx ", {int(Kind::Received), int(Kind::Stray)});
    add("Rx", {int(Kind::Received), int(Kind::Stray)});
    add("note", {int(Kind::Stray), int(Kind::Event)});
    add("rx note", {int(Kind::Stray)});
    add("tx tx", {int(Kind::Sent)});
    add("tx rx", {});
    add("txx", {});
    add("notes", {});
}

void TestLogFilter::kinds()
{
    QFETCH(QString, typed);
    const LogFilter filter(typed);
    QVERIFY(!filter.isEmpty());
    QVector<int> matching;
    for (const Kind kind : {Kind::Sent, Kind::Received, Kind::Stray, Kind::Event}) {
        if (filter.matches(soughtRecord(kind, hex("5AA5 02 01 02")))) {
            matching.append(int(kind));
        }
    }
    QTEST(matching, "matching");
}

void TestLogFilter::bytes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("matches");

    const auto add = [](const char *typed, bool matches) {
        QTest::newRow(typed) << typed << matches;
    };
    add("5AA50803B00C000012840A", true);
    add("5a a5 08", true);
    add("08 03", true);
    add("0803", true);
    add("08 03 b0", true);
    add("08 0 3", true);
    add("3B0 0C0 0", false);
    add("0C000012", true);
    add("C00", false);
    add("0C0", true);
    add("0C 1", false);
    add("12 8", true);
    add("12 9", false);
    add("0A", true);
    add("0A 0", false);
    add("840A00", false);
    add("A508", true);
    add("AA50", false);
    add("08 B0", false);
    add("00 12 84 0A", true);
    add("000012", true);
    add("00000012", false);
}

void TestLogFilter::bytes()
{
    QFETCH(QString, typed);
    QTEST(LogFilter(typed).matches(soughtFrame()), "matches");
    QTEST(LogFilter(typed).matches(soughtFrame(Kind::Received)), "matches");
}

void TestLogFilter::texts_data()
{
    QTest::addColumn<bool>("isEvent");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("matches");

    QTest::newRow("number") << false << "345" << true;
    QTest::newRow("part of a number") << false << "34" << true;
    QTest::newRow("another number") << false << "346" << false;
    QTest::newRow("address") << false << "B00C" << true;
    QTest::newRow("part of an address") << false << "00C" << true;
    QTest::newRow("in lower case") << false << "00c" << true;
    QTest::newRow("as the columns show it") << false << "0 00 1" << true;
    QTest::newRow("from column to column") << false << "3 B00C" << false;
    QTest::newRow("no text of a frame") << false << "Insert" << false;
    QTest::newRow("a link's name") << true << "uart" << true;
    QTest::newRow("what happened") << true << "ttyusb0" << true;
    QTest::newRow("two words of it") << true << "now insert" << true;
    QTest::newRow("a word that isn't there") << true << "insert tty9" << false;
    QTest::newRow("digits in its text") << true << "de" << true;
    QTest::newRow("bytes it doesn't have") << true << "5A" << false;
}

void TestLogFilter::texts()
{
    QFETCH(bool, isEvent);
    QFETCH(QString, typed);
    QTEST(LogFilter(typed).matches(isEvent ? soughtEvent() : soughtFrame()), "matches");
}

void TestLogFilter::wordsCombine_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("matches");

    QTest::newRow("kind and bytes") << "tx 00 12" << true;
    QTest::newRow("the other kind and bytes") << "rx 00 12" << false;
    QTest::newRow("bytes and kind") << "00 12 tx" << true;
    QTest::newRow("kind between bytes") << "12 tx 08" << true;
    QTest::newRow("kind between bytes that aren't all there") << "12 tx 09" << false;
    QTest::newRow("bytes and a text") << "12 insert" << false;
}

void TestLogFilter::wordsCombine()
{
    QFETCH(QString, typed);
    QTEST(LogFilter(typed).matches(soughtFrame()), "matches");
}

/// Wherever bytes stand in stray bytes they are found, and nothing is that stands across them.
void TestLogFilter::everyPlaceIsFound()
{
    const LogRecord record = soughtRecord(Kind::Stray, hex("01 01 02 01 02 03 03"));
    const QByteArray bytes = record.bytes;
    for (int begin = 0; begin < bytes.size(); ++begin) {
        for (int size = 1; size <= bytes.size() - begin; ++size) {
            const QString digits = bytes.mid(begin, size).toHex();
            QVERIFY2(LogFilter(digits).matches(record), qPrintable(digits));
            QVERIFY2(LogFilter(digits.chopped(1)).matches(record), qPrintable(digits));
        }
    }
    for (const char *digits : {"0202", "0303 03", "10", "1020", "0104", "010203030", "020"}) {
        const bool isThere = digits == QByteArray("020");
        QVERIFY2(LogFilter(digits).matches(record) == isThere, digits);
    }
}

QTEST_APPLESS_MAIN(TestLogFilter)
#include "tst_logfilter.moc"
