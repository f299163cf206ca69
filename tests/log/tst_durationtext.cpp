#include "frames/timeunits.h"
#include "log/durationtext.h"

#include <QtTest>

class TestDurationText : public QObject
{
    Q_OBJECT

private slots:
    void inThreeDigits_data();
    void inThreeDigits();
    void aShortTextStaysShort();
    void toTheMicrosecond_data();
    void toTheMicrosecond();
};

namespace {

constexpr qint64 dayInNs = secondsPerDay * nsPerSecond;

} // namespace

void TestDurationText::inThreeDigits_data()
{
    QTest::addColumn<qint64>("ns");
    QTest::addColumn<QString>("text");

    const auto add = [](qint64 ns, const char *text) {
        QTest::newRow(text) << ns << QString(text);
    };
    add(0, "0 µs");
    add(499, "0 µs");
    add(500, "1 µs");
    add(850 * nsPerUs, "850 µs");
    add(999499, "999 µs");
    add(999500, "1.00 ms");
    add(1234 * nsPerUs, "1.23 ms");
    add(9994999, "9.99 ms");
    add(9995000, "10.0 ms");
    add(12345 * nsPerUs, "12.3 ms");
    add(99949999, "99.9 ms");
    add(99950000, "100 ms");
    add(999499999, "999 ms");
    add(999500000, "1.00 s");
    add(1050 * nsPerMs, "1.05 s");
    add(59949 * nsPerMs, "59.9 s");
    add(59950 * nsPerMs, "1m 00s");
    add(725 * nsPerSecond, "12m 05s");
    add(3599499 * nsPerMs, "59m 59s");
    add(3599500 * nsPerMs, "1h 00m");
    add(11220 * nsPerSecond, "3h 07m");
    add(359999 * nsPerSecond, "99h 59m");
    add(360000 * nsPerSecond, "4 d");
    add(12 * dayInNs, "12 d");
    add(-12345 * nsPerUs, "−12.3 ms");
    add(-725 * nsPerSecond, "−12m 05s");
}

void TestDurationText::inThreeDigits()
{
    QFETCH(qint64, ns);
    QTEST(shortDuration(ns), "text");
}

void TestDurationText::aShortTextStaysShort()
{
    constexpr int mostCharacters = 7;
    constexpr double step = 1.013;
    for (double ns = 1; ns < 9999 * 86400e9; ns *= step) {
        const QString text = shortDuration(static_cast<qint64>(ns));
        QVERIFY2(text.size() <= mostCharacters, qPrintable(text));
    }
}

void TestDurationText::toTheMicrosecond_data()
{
    QTest::addColumn<qint64>("ns");
    QTest::addColumn<QString>("text");

    const auto add = [](qint64 ns, const char *text) {
        QTest::newRow(text) << ns << QString(text);
    };
    add(0, "0.000 ms");
    add(499, "0.000 ms");
    add(500, "0.001 ms");
    add(12345678, "12.346 ms");
    add(999999499, "999.999 ms");
    add(999999500, "1.000000 s");
    add(dayInNs + nsPerUs, "86400.000001 s");
    add(-12345 * nsPerUs, "−12.345 ms");
}

void TestDurationText::toTheMicrosecond()
{
    QFETCH(qint64, ns);
    QTEST(exactDuration(ns), "text");
}

QTEST_APPLESS_MAIN(TestDurationText)
#include "tst_durationtext.moc"
