#include "links/serial/arrivalwait.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

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

/// Whether a wait that is announced twice at once is over after 5 ms.
bool isOverAfterFive()
{
    ArrivalWait wait;
    const QSignalSpy over(&wait, &ArrivalWait::over);
    int overAfterFive = -1;
    after(5, &wait, [&] { overAfterFive = over.count(); });
    wait.announce();
    wait.announce();
    return QTest::qWaitFor([&] { return overAfterFive >= 0; }) && overAfterFive == 1;
}

struct OverCounts
{
    int inTheAnnouncement = -1;
    int soonAfter = -1;
};

/// How often a wait is over as it is announced again after 4 ms, and soon after that.
OverCounts countsAroundAnotherOne()
{
    ArrivalWait wait;
    const QSignalSpy over(&wait, &ArrivalWait::over);
    OverCounts counts;
    after(4, &wait, [&] {
        wait.announce();
        counts.inTheAnnouncement = over.count();
        after(1, &wait, [&] { counts.soonAfter = over.count(); });
    });
    wait.announce();
    const bool isKnown = QTest::qWaitFor([&] { return counts.soonAfter >= 0; });
    return isKnown ? counts : OverCounts();
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

/// Where the system is busy with other programs, a wait that begins late may be over after a timer
/// that was to come later. So it is tried until it isn't.
void TestArrivalWait::anotherOneSoonEndsTheSettling()
{
    ArrivalWait wait;
    QSignalSpy over(&wait, &ArrivalWait::over);
    QElapsedTimer sinceAnnounced;
    sinceAnnounced.start();
    wait.announce();
    wait.announce();
    QVERIFY(over.wait());
    QVERIFY(sinceAnnounced.elapsed() >= 2);
    QTRY_VERIFY(isOverAfterFive());
}

void TestArrivalWait::anotherOneLaterEndsTheWait()
{
    int mostInTheAnnouncement = 0;
    const auto isOverSoonAfter = [&] {
        const OverCounts counts = countsAroundAnotherOne();
        mostInTheAnnouncement = std::max(mostInTheAnnouncement, counts.inTheAnnouncement);
        return counts.soonAfter == 1;
    };
    QTRY_VERIFY(isOverSoonAfter());
    QCOMPARE(mostInTheAnnouncement, 0);
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
