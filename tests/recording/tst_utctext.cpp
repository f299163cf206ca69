#include "frames/timeunits.h"
#include "recording/utctext.h"

#include <QDateTime>
#include <QtTest>

#include <limits>

class TestUtcText : public QObject
{
    Q_OBJECT

private slots:
    void aTimeIsReadAsWritten_data();
    void aTimeIsReadAsWritten();
    void timesBeyondTheYearsAreThoseOfTheirEnds();
    void itAgreesWithTheCalendar();
    void whatIsNoTimeIsRefused_data();
    void whatIsNoTimeIsRefused();
};

void TestUtcText::aTimeIsReadAsWritten_data()
{
    QTest::addColumn<qint64>("us");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("1970") << qint64(0) << QByteArray("1970-01-01T00:00:00.000000Z");
    QTest::newRow("before") << qint64(-1) << QByteArray("1969-12-31T23:59:59.999999Z");
    QTest::newRow("a day before") << qint64(-86400000000)
                                  << QByteArray("1969-12-31T00:00:00.000000Z");
    QTest::newRow("today") << qint64(1795297441123456) << QByteArray("2026-11-21T21:44:01.123456Z");
    QTest::newRow("leap day") << qint64(1709164799999999)
                              << QByteArray("2024-02-28T23:59:59.999999Z");
    QTest::newRow("first") << qint64(-62135596800000000)
                           << QByteArray("0001-01-01T00:00:00.000000Z");
    QTest::newRow("last") << qint64(253402300799999999)
                          << QByteArray("9999-12-31T23:59:59.999999Z");
}

void TestUtcText::aTimeIsReadAsWritten()
{
    QFETCH(qint64, us);
    QFETCH(QByteArray, text);
    QCOMPARE(utcText(us), text);
    const auto read = parseUtcText(text);
    QVERIFY(read);
    QCOMPARE(*read, us);
}

void TestUtcText::timesBeyondTheYearsAreThoseOfTheirEnds()
{
    QCOMPARE(utcText(std::numeric_limits<qint64>::min()),
             QByteArray("0001-01-01T00:00:00.000000Z"));
    QCOMPARE(utcText(std::numeric_limits<qint64>::max()),
             QByteArray("9999-12-31T23:59:59.999999Z"));
}

void TestUtcText::itAgreesWithTheCalendar()
{
    for (qint64 seconds = -100000000000; seconds < 200000000000; seconds += 86399999) {
        if (seconds * usPerSecond < -62135596800000000) {
            continue;
        }
        const QDateTime time = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
        QCOMPARE(utcText(seconds * usPerSecond),
                 time.toString("yyyy-MM-ddTHH:mm:ss").toLatin1() + ".000000Z");
    }
}

void TestUtcText::whatIsNoTimeIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("milliseconds") << QByteArray("2026-11-21T21:44:01.123Z");
    QTest::newRow("no zone") << QByteArray("2026-11-21T21:44:01.123456");
    QTest::newRow("another zone") << QByteArray("2026-11-21T21:44:01.123456+");
    QTest::newRow("a letter") << QByteArray("2026-11-21T21:44:01.12345xZ");
    QTest::newRow("13th month") << QByteArray("2026-13-21T21:44:01.123456Z");
    QTest::newRow("no leap year") << QByteArray("2026-02-29T21:44:01.123456Z");
    QTest::newRow("hour") << QByteArray("2026-11-21T24:44:01.123456Z");
    QTest::newRow("minute") << QByteArray("2026-11-21T21:60:01.123456Z");
    QTest::newRow("second") << QByteArray("2026-11-21T21:44:60.123456Z");
}

void TestUtcText::whatIsNoTimeIsRefused()
{
    QFETCH(QByteArray, text);
    QVERIFY(!parseUtcText(text));
}

QTEST_APPLESS_MAIN(TestUtcText)
#include "tst_utctext.moc"
