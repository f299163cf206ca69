#include "system/realtime.h"

#include <QtTest>

#include <sched.h>

class TestRealTime : public QObject
{
    Q_OBJECT

private slots:
    void isAskedForAndGivenBack();
};

/// Where the system refuses it, all stays as it is.
void TestRealTime::isAskedForAndGivenBack()
{
    const int before = sched_getscheduler(0);
    {
        const RealTime realTime;
        const int during = sched_getscheduler(0);
        QCOMPARE(during, realTime.isGranted() ? SCHED_RR | SCHED_RESET_ON_FORK : before);
    }
    QCOMPARE(sched_getscheduler(0) & ~SCHED_RESET_ON_FORK, before);
}

QTEST_APPLESS_MAIN(TestRealTime)

#include "tst_realtime.moc"
