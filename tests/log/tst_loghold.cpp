#include "shownlog.h"

#include <QSignalSpy>

class TestLogHold : public QObject
{
    Q_OBJECT

private slots:
    void scrollingUpByHandHolds_data();
    void scrollingUpByHandHolds();
    void reachingTheEndFollowsAgain_data();
    void reachingTheEndFollowsAgain();
    void aHeldLogStaysWhereItIs_data();
    void aHeldLogStaysWhereItIs();
    void aHeldLogCanBeScrolledToItsEnd();
    void followingAgainShowsTheEndAtOnce();
    void whatTheLogDoesByItselfHoldsNothing();
    void whatTheLogDoesByItselfEndsNoHold();
};

namespace {

constexpr int someRows = 60;

/// Moves the view by one of the means that a user has.
void moveBy(LogOnScreen &shown, const QString &means, bool up)
{
    QScrollBar &bar = shown.bar();
    QWidget *viewport = shown.table.viewport();
    if (means == "wheel") {
        const QPointF place(viewport->rect().center());
        for (int turn = 0; turn < (up ? 1 : someRows); ++turn) {
            QWheelEvent event(place, viewport->mapToGlobal(place.toPoint()), {},
                              {0, up ? 120 : -120}, {}, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(viewport, &event);
        }
    } else if (means == "key") {
        shown.table.setCurrentCell(up ? someRows - 1 : 0, 0);
        QTest::keyClick(&shown.table, up ? Qt::Key_PageUp : Qt::Key_End, Qt::ControlModifier);
    } else {
        bar.triggerAction(up ? QScrollBar::SliderPageStepSub : QScrollBar::SliderToMaximum);
    }
}

void addMeans()
{
    QTest::addColumn<QString>("means");

    for (const char *means : {"wheel", "key", "bar"}) {
        QTest::newRow(means) << means;
    }
}

} // namespace

void TestLogHold::scrollingUpByHandHolds_data()
{
    addMeans();
}

void TestLogHold::scrollingUpByHandHolds()
{
    QFETCH(QString, means);
    LogOnScreen shown;
    shown.append(someRows);
    QTRY_VERIFY(shown.showsEnd());
    QVERIFY(shown.log.isFollowing());
    const QSignalSpy changes(&shown.log, &MessageLog::followingChanged);
    moveBy(shown, means, true);
    QVERIFY(!shown.log.isFollowing());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().toBool(), false);
}

void TestLogHold::reachingTheEndFollowsAgain_data()
{
    addMeans();
}

void TestLogHold::reachingTheEndFollowsAgain()
{
    QFETCH(QString, means);
    LogOnScreen shown;
    shown.append(someRows);
    QTRY_VERIFY(shown.showsEnd());
    moveBy(shown, means, true);
    moveBy(shown, means, false);
    QVERIFY(shown.log.isFollowing());
    shown.append(1);
    QTRY_VERIFY(shown.showsEnd());
}

void TestLogHold::aHeldLogStaysWhereItIs_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("value");

    QTest::newRow("at the top") << someRows << 0;
    QTest::newRow("in the middle") << someRows << 20;
    QTest::newRow("at the end") << someRows << -1;
    QTest::newRow("while there is room") << 3 << -1;
}

void TestLogHold::aHeldLogStaysWhereItIs()
{
    QFETCH(int, rows);
    QFETCH(int, value);
    LogOnScreen shown;
    QSignalSpy movedOn(&shown.log, &MessageLog::countChanged);
    shown.append(rows);
    QTRY_COMPARE(shown.log.count(), rows);
    QTRY_VERIFY(rows < someRows || shown.showsEnd());
    if (value >= 0) {
        shown.bar().setValue(value);
    }
    shown.log.setFollowing(false);
    const int first = shown.firstInView();
    const int before = shown.bar().value();
    for (int i = 0; i < 3; ++i) {
        movedOn.clear();
        shown.append(someRows);
        QTRY_VERIFY(!movedOn.isEmpty());
        QCOMPARE(shown.bar().value(), before);
        QCOMPARE(shown.firstInView(), first);
    }
    QVERIFY(!shown.log.isFollowing());
}

void TestLogHold::aHeldLogCanBeScrolledToItsEnd()
{
    LogOnScreen shown;
    shown.append(someRows);
    QTRY_VERIFY(shown.showsEnd());
    shown.bar().setValue(5);
    const int before = shown.bar().maximum();
    shown.append(someRows);
    QTRY_COMPARE(shown.bar().maximum(), before + someRows);
    shown.bar().setValue(shown.bar().maximum());
    QVERIFY(shown.showsEnd());
    QVERIFY(shown.log.isFollowing());
}

void TestLogHold::followingAgainShowsTheEndAtOnce()
{
    LogOnScreen shown;
    shown.append(someRows);
    QTRY_VERIFY(shown.showsEnd());
    shown.bar().setValue(5);
    shown.log.setFollowing(true);
    QVERIFY(shown.showsEnd());
    QVERIFY(shown.log.isFollowing());
}

void TestLogHold::whatTheLogDoesByItselfHoldsNothing()
{
    LogOnScreen shown;
    const QSignalSpy changes(&shown.log, &MessageLog::followingChanged);
    shown.append(someRows);
    QTRY_VERIFY(shown.showsEnd());
    shown.table.resize(800, 500);
    shown.table.resize(800, 250);
    QCoreApplication::processEvents();
    shown.append(1);
    QTRY_VERIFY(shown.showsEnd());
    shown.records.clear();
    QCOMPARE(shown.bar().value(), 0);
    shown.append(RecordLog::mostRecords + someRows);
    QTRY_COMPARE(shown.table.rowCount(), someRows);
    QTRY_VERIFY(shown.showsEnd());
    QCOMPARE(changes.count(), 0);
}

void TestLogHold::whatTheLogDoesByItselfEndsNoHold()
{
    LogOnScreen shown;
    shown.append(someRows);
    QTRY_VERIFY(shown.showsEnd());
    shown.bar().setValue(50);
    shown.table.resize(800, 1200);
    QCoreApplication::processEvents();
    QCOMPARE(shown.bar().value(), shown.bar().maximum());
    QVERIFY(!shown.log.isFollowing());
    shown.records.clear();
    shown.append(RecordLog::mostRecords + 2 * someRows);
    QTRY_COMPARE(shown.table.rowCount(), 2 * someRows);
    QTRY_VERIFY(shown.bar().maximum() > 0);
    QCOMPARE(shown.bar().value(), 0);
    QVERIFY(!shown.log.isFollowing());
}

QTEST_MAIN(TestLogHold)
#include "tst_loghold.moc"
