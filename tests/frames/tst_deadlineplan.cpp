#include "frames/deadlineplan.h"
#include "handclock.h"

#include <QtTest>

class TestDeadlinePlan : public QObject
{
    Q_OBJECT

private slots:
    void meeting_data();
    void meeting();
    void waitsAddUp();
};

namespace {} // namespace

void TestDeadlinePlan::meeting_data()
{
    QTest::addColumn<qint64>("lateNs");
    QTest::addColumn<bool>("startsAnew");

    QTest::newRow("on time") << qint64(0) << false;
    QTest::newRow("a little late") << qint64(1) << false;
    QTest::newRow("as late as may be") << nsPerMs << false;
    QTest::newRow("too late") << nsPerMs + 1 << true;
    QTest::newRow("far too late") << 5000 * nsPerMs << true;
    QTest::newRow("early") << qint64(-1) << true;
}

void TestDeadlinePlan::meeting()
{
    QFETCH(qint64, lateNs);
    QFETCH(bool, startsAnew);
    constexpr qint64 startNs = 7 * nsPerMs;
    DeadlinePlan plan;
    plan.meet(startNs);
    QCOMPARE(plan.due(), startNs);
    plan.wait(10);
    const qint64 plannedNs = startNs + 10 * nsPerMs;
    QCOMPARE(plan.due(), plannedNs);
    plan.meet(plannedNs + lateNs);
    QCOMPARE(plan.due(), startsAnew ? plannedNs + lateNs : plannedNs);
}

void TestDeadlinePlan::waitsAddUp()
{
    DeadlinePlan plan;
    plan.meet(3 * nsPerMs);
    plan.wait(20);
    plan.wait(0);
    plan.wait(9999);
    QCOMPARE(plan.due(), (3 + 20 + 9999) * nsPerMs);
}

QTEST_APPLESS_MAIN(TestDeadlinePlan)
#include "tst_deadlineplan.moc"
