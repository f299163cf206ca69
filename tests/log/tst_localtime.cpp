#include "log/localtime.h"
#include "timezone.h"

#include <QtTest>

class TestLocalTime : public QObject
{
    Q_OBJECT

private slots:
    void theLocalTime_data();
    void theLocalTime();
    void theOffset_data();
    void theOffset();
};

void TestLocalTime::theLocalTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("utcUs");
    QTest::addColumn<QString>("text");

    const QByteArray berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    const auto add = [](const QByteArray &zone, qint64 utcUs, const char *text) {
        QTest::newRow(text) << zone << utcUs << QString(text);
    };
    add("UTC0", 0, "1970-01-01 00:00:00.000000 +00:00");
    add("UTC0", -1, "1969-12-31 23:59:59.999999 +00:00");
    add("UTC0", -1000000, "1969-12-31 23:59:59.000000 +00:00");
    add(berlin, 1795352607123456, "2026-11-22 14:03:27.123456 +01:00");
    add(berlin, 1782133407000007, "2026-06-22 15:03:27.000007 +02:00");
    add("NST3:30", 1795352607123456, "2026-11-22 09:33:27.123456 -03:30");
}

void TestLocalTime::theLocalTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, utcUs);
    QFETCH(QString, text);
    const TimeZone here(zone);
    QCOMPARE(localTimeText(utcUs), text);
    QCOMPARE(localClockText(utcUs), text.mid(11, 15));
}

void TestLocalTime::theOffset_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0 << "+00:00";
    QTest::newRow("east") << 3600 << "+01:00";
    QTest::newRow("far east") << 50400 << "+14:00";
    QTest::newRow("west") << -12600 << "-03:30";
    QTest::newRow("less than an hour west") << -2700 << "-00:45";
}

void TestLocalTime::theOffset()
{
    QFETCH(int, seconds);
    QTEST(utcOffsetText(seconds), "text");
}

QTEST_APPLESS_MAIN(TestLocalTime)
#include "tst_localtime.moc"
