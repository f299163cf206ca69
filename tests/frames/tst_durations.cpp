#include "frames/durations.h"

#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>
#include <random>
#include <vector>

class TestDurations : public QObject
{
    Q_OBJECT

private slots:
    void noneAtAll();
    void oneIsAll();
    void smallOnesAreExact();
    void percentilesAreCloseToTheSortedOnes();
    void theLongestFits();
    void theirOrderIsNoMatter();
};

void TestDurations::noneAtAll()
{
    const auto times = std::make_unique<Durations>();
    QCOMPARE(times->count(), qint64(0));
    QCOMPARE(times->median(), qint64(0));
    QCOMPARE(times->most(), qint64(0));
}

void TestDurations::oneIsAll()
{
    const auto times = std::make_unique<Durations>();
    times->add(123456789);
    QCOMPARE(times->least(), qint64(123456789));
    QCOMPARE(times->median(), qint64(123456789));
    QCOMPARE(times->percentile(99), qint64(123456789));
    QCOMPARE(times->most(), qint64(123456789));
}

void TestDurations::smallOnesAreExact()
{
    const auto times = std::make_unique<Durations>();
    for (int value = 1; value <= 100; ++value) {
        times->add(value);
    }
    times->add(-5);
    QCOMPARE(times->least(), qint64(0));
    QCOMPARE(times->median(), qint64(50));
    QCOMPARE(times->percentile(99), qint64(99));
    QCOMPARE(times->most(), qint64(100));
}

void TestDurations::percentilesAreCloseToTheSortedOnes()
{
    const auto times = std::make_unique<Durations>();
    std::vector<qint64> sorted;
    std::mt19937_64 random(7);
    for (int i = 0; i < 10000; ++i) {
        const auto value = static_cast<qint64>(random() >> (20U + random() % 40U));
        sorted.push_back(value);
        times->add(value);
    }
    std::sort(sorted.begin(), sorted.end());
    for (const int percent : {1, 10, 50, 90, 99, 100}) {
        const qint64 exact = sorted.at(static_cast<size_t>(percent * 100 - 1));
        const qint64 told = times->percentile(percent);
        QVERIFY2(told >= exact && told - exact <= exact / 128 + 1,
                 qPrintable(QString("%1 %: %2, exactly %3").arg(percent).arg(told).arg(exact)));
    }
}

void TestDurations::theLongestFits()
{
    const auto times = std::make_unique<Durations>();
    times->add(std::numeric_limits<qint64>::max());
    QCOMPARE(times->median(), std::numeric_limits<qint64>::max());
}

void TestDurations::theirOrderIsNoMatter()
{
    QVector<qint64> values;
    for (qint64 value = 1; value < qint64(1) << 40; value = value * 3 + 1) {
        values.append(value);
    }
    Durations rising;
    Durations falling;
    for (int i = 0; i < values.size(); ++i) {
        rising.add(values.at(i));
        falling.add(values.at(values.size() - 1 - i));
    }
    QCOMPARE(rising.least(), falling.least());
    QCOMPARE(rising.most(), falling.most());
    for (int percent = 0; percent <= 100; ++percent) {
        QCOMPARE(rising.percentile(percent), falling.percentile(percent));
    }
    QVERIFY(rising.median() > 1000);
}

QTEST_APPLESS_MAIN(TestDurations)

#include "tst_durations.moc"
