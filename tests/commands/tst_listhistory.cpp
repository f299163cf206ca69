#include "commands/listhistory.h"

#include <QtTest>

using StepKind = ListHistory::Kind;

class TestListHistory : public QObject
{
    Q_OBJECT

private slots:
    void beginsWithoutSteps();
    void stepsGoBackAndForth();
    void aChangeEndsWhatWasTakenBack();
    void onlyTheLastTwentyStepsStay();
    void theOldestGoWhereTheyTakeTooMuch();
    void aStepThatTakesTooMuchGoes();
    void whatIsTakenBackCountsToo();
    void appendedRowsAreOneStep();
    void appendingEndsWithWhateverElse_data();
    void appendingEndsWithWhateverElse();
    void theStandingBelongsToItsPlace();
    void savingMakesTheOthersModified();
    void savingKnowsItsListAndItsFile();
};

namespace {

/// A step that is told by its row.
RowExchange numbered(int row)
{
    return {row, 1, {}};
}

/// A row that takes about so much memory.
RowExchange heavy(qint64 bytes)
{
    CommandRow row;
    row.data = QString(int(bytes / 2), '0');
    return {0, 0, {row}};
}

ListStanding stored(const char *path)
{
    return {path, false};
}

ListStanding modified(const char *path)
{
    return {path, true};
}

int stepsBack(ListHistory &history)
{
    int count = 0;
    for (; history.canUndo(); ++count) {
        history.stepBack(history.undoing());
    }
    return count;
}

int stepsForward(ListHistory &history)
{
    int count = 0;
    for (; history.canRedo(); ++count) {
        history.stepForward(history.redoing());
    }
    return count;
}

} // namespace

void TestListHistory::beginsWithoutSteps()
{
    const ListHistory history;
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());
    QVERIFY(history.standing() == ListStanding());
}

void TestListHistory::stepsGoBackAndForth()
{
    ListHistory history;
    history.add(numbered(1), StepKind::Change, {});
    history.add(numbered(2), StepKind::NewList, {});
    QCOMPARE(history.undoing().row, 2);
    QVERIFY(history.undoingKind() == StepKind::NewList);
    history.stepBack(numbered(-2));
    QCOMPARE(history.redoing().row, -2);
    QVERIFY(history.redoingKind() == StepKind::NewList);
    QCOMPARE(history.undoing().row, 1);
    history.stepBack(numbered(-1));
    QVERIFY(!history.canUndo());
    QCOMPARE(history.redoing().row, -1);
    history.stepForward(numbered(11));
    QCOMPARE(history.undoing().row, 11);
    QCOMPARE(history.redoing().row, -2);
    history.stepForward(numbered(12));
    QCOMPARE(history.undoing().row, 12);
    QVERIFY(!history.canRedo());
}

void TestListHistory::aChangeEndsWhatWasTakenBack()
{
    ListHistory history;
    history.add(numbered(1), StepKind::Change, {});
    history.add(numbered(2), StepKind::Change, {});
    stepsBack(history);
    history.add(numbered(3), StepKind::Change, modified("a"));
    QVERIFY(!history.canRedo());
    QCOMPARE(history.undoing().row, 3);
    QVERIFY(history.standing() == modified("a"));
    QCOMPARE(stepsBack(history), 1);
    QVERIFY(history.standing() == ListStanding());
}

void TestListHistory::onlyTheLastTwentyStepsStay()
{
    ListHistory history;
    for (int step = 1; step <= 25; ++step) {
        history.add(numbered(step), StepKind::Change, modified(qPrintable(QString::number(step))));
    }
    QCOMPARE(history.undoing().row, 25);
    QCOMPARE(stepsBack(history), 20);
    QVERIFY(history.standing() == modified("5"));
    QCOMPARE(history.redoing().row, 6);
    QCOMPARE(stepsForward(history), 20);
}

void TestListHistory::theOldestGoWhereTheyTakeTooMuch()
{
    ListHistory history;
    for (int step = 0; step < 10; ++step) {
        history.add(heavy(ListHistory::mostBytes / 4), StepKind::NewList, {});
    }
    QCOMPARE(stepsBack(history), 3);
    QCOMPARE(stepsForward(history), 3);
}

void TestListHistory::aStepThatTakesTooMuchGoes()
{
    ListHistory history;
    history.add(numbered(1), StepKind::Change, {});
    history.add(heavy(ListHistory::mostBytes), StepKind::NewList, modified("a"));
    QVERIFY(!history.canUndo());
    QVERIFY(history.standing() == modified("a"));
    history.add(numbered(2), StepKind::Change, {});
    QCOMPARE(stepsBack(history), 1);
}

void TestListHistory::whatIsTakenBackCountsToo()
{
    ListHistory history;
    for (int step = 0; step < 4; ++step) {
        history.add(numbered(step), StepKind::Change, {});
    }
    // Going back, the first ones go, and then those that would have been done again last.
    history.stepBack(heavy(ListHistory::mostBytes / 2));
    history.stepBack(heavy(ListHistory::mostBytes));
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());

    for (int step = 0; step < 2; ++step) {
        history.add(numbered(step), StepKind::Change, {});
    }
    history.stepBack(heavy(ListHistory::mostBytes * 2 / 3));
    history.stepBack(heavy(ListHistory::mostBytes * 2 / 3));
    QVERIFY(!history.canUndo());
    QCOMPARE(stepsForward(history), 1);
}

void TestListHistory::appendedRowsAreOneStep()
{
    ListHistory history;
    history.add({9, 1}, StepKind::Appending, {});
    history.add({10, 1}, StepKind::Appending, {});
    history.add({11, 2}, StepKind::Appending, {});
    QCOMPARE(history.undoing().row, 9);
    QCOMPARE(history.undoing().removed, 4);
    QCOMPARE(stepsBack(history), 1);
}

void TestListHistory::appendingEndsWithWhateverElse_data()
{
    QTest::addColumn<QString>("what");

    for (const char *what : {"another step", "another place", "saved", "taken back", "first"}) {
        QTest::newRow(what) << what;
    }
}

void TestListHistory::appendingEndsWithWhateverElse()
{
    QFETCH(QString, what);
    ListHistory history;
    ListStanding standing = modified("a");
    history.add({8, 1}, StepKind::Change, standing);
    history.add({9, 1}, StepKind::Appending, standing);
    int steps = 3;
    if (what == "another step") {
        history.add({3, 1}, StepKind::Change, standing);
        steps = 4;
    } else if (what == "saved") {
        standing = stored("a");
        history.setStanding(standing);
    } else if (what == "taken back") {
        history.stepBack({9, 0, {emptyRow()}});
        steps = 2;
    } else if (what == "first") {
        stepsBack(history);
        steps = 1;
    }
    history.add({what == "another place" ? 12 : 10, 1}, StepKind::Appending, standing);
    QCOMPARE(history.undoing().removed, 1);
    QCOMPARE(stepsBack(history), steps);
}

void TestListHistory::theStandingBelongsToItsPlace()
{
    ListHistory history;
    history.setStanding(stored("a"));
    history.add(numbered(1), StepKind::Change, modified("a"));
    history.add(numbered(2), StepKind::NewList, modified("a"));
    history.setStanding(stored("b"));
    QVERIFY(history.standing() == stored("b"));
    history.stepBack({});
    QVERIFY(history.standing() == modified("a"));
    history.stepBack({});
    QVERIFY(history.standing() == stored("a"));
    QCOMPARE(stepsForward(history), 2);
    QVERIFY(history.standing() == stored("b"));
}

void TestListHistory::savingMakesTheOthersModified()
{
    ListHistory history;
    history.setStanding(stored("a"));
    history.add(numbered(1), StepKind::Change, modified("a"));
    history.add(numbered(2), StepKind::Change, modified("a"));
    history.stepBack({});
    history.setStanding(stored("b"));
    QVERIFY(history.standing() == stored("b"));
    history.stepBack({});
    QVERIFY(history.standing() == modified("b"));
    QCOMPARE(stepsForward(history), 2);
    QVERIFY(history.standing() == modified("b"));
    // A change that leaves the rows as they are is one of this place alone.
    history.stepBack({});
    history.setStanding(modified("b"));
    QVERIFY(history.standing() == modified("b"));
}

void TestListHistory::savingKnowsItsListAndItsFile()
{
    ListHistory history;
    history.setStanding(stored("a"));
    history.add(numbered(1), StepKind::NewList, stored("a"));
    history.setStanding(stored("b"));
    history.add(numbered(2), StepKind::NewList, stored("b"));
    history.setStanding({});
    history.setStanding(stored("a"));
    history.stepBack({});
    QVERIFY(history.standing() == stored("b"));
    history.stepBack({});
    // Its file holds another list now.
    QVERIFY(history.standing() == modified("a"));
}

QTEST_APPLESS_MAIN(TestListHistory)
#include "tst_listhistory.moc"
