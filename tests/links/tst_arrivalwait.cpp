#include "links/serial/arrivalwait.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

class TestArrivalWait : public QObject
{
    Q_OBJECT

private slots:
    void oneAnnouncementWaitsForMore();
    void anotherOneSoonEndsTheSettling();
    void anotherOneLaterEndsTheWait();
    void manyAreOneWait();
    void aCancelledWaitIsNeverOver();
    void theNextWaitIsLikeTheFirst();
};

namespace {

/// Does something after so many milliseconds. Timers go off in the order in which they are due,
/// however late that is.
template<typename Action>
void after(int milliseconds, QObject *context, Action action)
{
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, context, action);
}

} // namespace

void TestArrivalWait::oneAnnouncementWaitsForMore()
{
    ArrivalWait wait;
    QSignalSpy over(&wait, &ArrivalWait::over);
    QElapsedTimer sinceAnnounced;
    QVERIFY(!wait.isRunning());
    sinceAnnounced.start();
    wait.announce();
    QVERIFY(wait.isRunning());
    QVERIFY(over.wait());
    QVERIFY(sinceAnnounced.elapsed() >= 2 + 5);
    QVERIFY(!wait.isRunning());
}

void TestArrivalWait::anotherOneSoonEndsTheSettling()
{
    ArrivalWait wait;
    QSignalSpy over(&wait, &ArrivalWait::over);
    int overAfterFive = -1;
    after(5, &wait, [&] { overAfterFive = over.count(); });
    QElapsedTimer sinceAnnounced;
    sinceAnnounced.start();
    wait.announce();
    wait.announce();
    QVERIFY(over.wait());
    QVERIFY(sinceAnnounced.elapsed() >= 2);
    QTRY_COMPARE(overAfterFive, 1);
}

void TestArrivalWait::anotherOneLaterEndsTheWait()
{
    ArrivalWait wait;
    const QSignalSpy over(&wait, &ArrivalWait::over);
    int overInTheAnnouncement = -1;
    int overSoonAfter = -1;
    after(4, &wait, [&] {
        wait.announce();
        overInTheAnnouncement = over.count();
        after(1, &wait, [&] { overSoonAfter = over.count(); });
    });
    wait.announce();
    QTRY_COMPARE(overSoonAfter, 1);
    QCOMPARE(overInTheAnnouncement, 0);
}

void TestArrivalWait::manyAreOneWait()
{
    ArrivalWait wait;
    QSignalSpy over(&wait, &ArrivalWait::over);
    for (int i = 0; i < 100; ++i) {
        wait.announce();
    }
    QVERIFY(over.wait());
    int countLater = -1;
    after(20, &wait, [&] { countLater = over.count(); });
    QTRY_COMPARE(countLater, 1);
}

void TestArrivalWait::aCancelledWaitIsNeverOver()
{
    ArrivalWait wait;
    const QSignalSpy over(&wait, &ArrivalWait::over);
    wait.announce();
    wait.cancel();
    QVERIFY(!wait.isRunning());
    int countLater = -1;
    after(20, &wait, [&] { countLater = over.count(); });
    QTRY_COMPARE(countLater, 0);
}

void TestArrivalWait::theNextWaitIsLikeTheFirst()
{
    ArrivalWait wait;
    QSignalSpy over(&wait, &ArrivalWait::over);
    wait.announce();
    wait.announce();
    QVERIFY(over.wait());
    QElapsedTimer sinceAnnounced;
    sinceAnnounced.start();
    wait.announce();
    QVERIFY(over.wait());
    QVERIFY(sinceAnnounced.elapsed() >= 2 + 5);
}

QTEST_GUILESS_MAIN(TestArrivalWait)
#include "tst_arrivalwait.moc"
