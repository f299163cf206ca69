#include "frames/systemclock.h"
#include "handclock.h"

#include <QSignalSpy>
#include <QtTest>

class TestSystemClock : public QObject
{
    Q_OBJECT

private slots:
    void timeGoesOn();
    void theAlarmIsNeverEarly_data();
    void theAlarmIsNeverEarly();
    void theAlarmRingsOnce();
    void aTimeThatHasPassedRingsFromTheEventLoop_data();
    void aTimeThatHasPassedRingsFromTheEventLoop();
    void theLastTimeCounts();
    void aClearedAlarmIsSilent();
    void theAlarmIsSetFromItsOwnRinging();
};

namespace {

constexpr qint64 longMs = 600000;

class ClockBench
{
public:
    void setIn(qint64 ns) { clock->setAlarm(clock->now() + ns); }

    const std::unique_ptr<AlarmClock> clock = makeSystemClock();
    QSignalSpy rang{clock.get(), &AlarmClock::rang};
};

} // namespace

void TestSystemClock::timeGoesOn()
{
    const ClockBench bench;
    const qint64 before = bench.clock->now();
    QTest::qSleep(2);
    QVERIFY(bench.clock->now() - before >= 2 * nsPerMs);
}

void TestSystemClock::theAlarmIsNeverEarly_data()
{
    QTest::addColumn<qint64>("ns");

    QTest::newRow("at once") << qint64(0);
    QTest::newRow("fraction of a millisecond") << qint64(300000);
    QTest::newRow("between milliseconds") << qint64(1234567);
    QTest::newRow("long") << 50 * nsPerMs;
}

void TestSystemClock::theAlarmIsNeverEarly()
{
    QFETCH(qint64, ns);
    ClockBench bench;
    const qint64 time = bench.clock->now() + ns;
    bench.clock->setAlarm(time);
    QVERIFY(bench.rang.wait());
    QVERIFY(bench.clock->now() >= time);
}

void TestSystemClock::theAlarmRingsOnce()
{
    ClockBench bench;
    bench.setIn(nsPerMs);
    QVERIFY(bench.rang.wait());
    QVERIFY(!bench.rang.wait(20));
}

void TestSystemClock::aTimeThatHasPassedRingsFromTheEventLoop_data()
{
    QTest::addColumn<qint64>("ns");

    QTest::newRow("just now") << qint64(0);
    QTest::newRow("long ago") << -5000 * nsPerMs;
    QTest::newRow("before all time") << -longMs * 1000000 * nsPerMs;
}

void TestSystemClock::aTimeThatHasPassedRingsFromTheEventLoop()
{
    QFETCH(qint64, ns);
    ClockBench bench;
    bench.setIn(ns);
    QCOMPARE(bench.rang.count(), 0);
    QVERIFY(bench.rang.wait());
}

void TestSystemClock::theLastTimeCounts()
{
    ClockBench bench;
    bench.setIn(longMs * nsPerMs);
    bench.setIn(nsPerMs);
    QVERIFY(bench.rang.wait());
    // The earlier alarm is due, but nobody has heard it yet.
    bench.setIn(nsPerMs);
    QTest::qSleep(5);
    bench.setIn(longMs * nsPerMs);
    QVERIFY(!bench.rang.wait(20));
}

void TestSystemClock::aClearedAlarmIsSilent()
{
    ClockBench bench;
    bench.setIn(nsPerMs);
    QTest::qSleep(5);
    bench.clock->clearAlarm();
    QVERIFY(!bench.rang.wait(20));
    bench.setIn(0);
    QVERIFY(bench.rang.wait());
}

void TestSystemClock::theAlarmIsSetFromItsOwnRinging()
{
    ClockBench bench;
    connect(bench.clock.get(), &AlarmClock::rang, this, [&] {
        if (bench.rang.count() < 5) {
            bench.setIn(nsPerMs);
        }
    });
    bench.setIn(nsPerMs);
    QTRY_COMPARE(bench.rang.count(), 5);
}

QTEST_GUILESS_MAIN(TestSystemClock)
#include "tst_systemclock.moc"
