#include "log/displaypace.h"

#include <QSignalSpy>
#include <QtTest>

class TestDisplayPace : public QObject
{
    Q_OBJECT

private slots:
    void aFirstRequestIsDueAtOnce();
    void requestsThatFollowShareADisplayFrame();
    void aHoldPutsItOff();
    void aHoldThatNeverEndsIsPassedOver();
};

void TestDisplayPace::aFirstRequestIsDueAtOnce()
{
    DisplayPace pace;
    const QSignalSpy due(&pace, &DisplayPace::due);
    pace.request();
    QCOMPARE(due.count(), 1);
}

void TestDisplayPace::requestsThatFollowShareADisplayFrame()
{
    DisplayPace pace;
    QSignalSpy due(&pace, &DisplayPace::due);
    for (int request = 0; request < 100; ++request) {
        pace.request();
    }
    QCOMPARE(due.count(), 1);
    QVERIFY(due.wait());
    QCOMPARE(due.count(), 2);
    QVERIFY(!due.wait(100));
    pace.request();
    QCOMPARE(due.count(), 3);
}

void TestDisplayPace::aHoldPutsItOff()
{
    DisplayPace pace;
    QSignalSpy due(&pace, &DisplayPace::due);
    int asked = 0;
    pace.setHold([&asked] { return ++asked < 3; });
    pace.request();
    QCOMPARE(due.count(), 0);
    QVERIFY(due.wait());
    QCOMPARE(asked, 3);
    QCOMPARE(due.count(), 1);
}

void TestDisplayPace::aHoldThatNeverEndsIsPassedOver()
{
    DisplayPace pace;
    QSignalSpy due(&pace, &DisplayPace::due);
    pace.setHold([] { return true; });
    QElapsedTimer timer;
    for (int time = 1; time <= 2; ++time) {
        timer.start();
        pace.request();
        QVERIFY(due.wait());
        QVERIFY(timer.elapsed() >= 50);
        QCOMPARE(due.count(), time);
    }
}

QTEST_GUILESS_MAIN(TestDisplayPace)

#include "tst_displaypace.moc"
