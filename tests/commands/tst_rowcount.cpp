#include "filedialoguser.h"
#include "rowbench.h"
#include "testfiles.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace Column = CommandColumn;

class TestRowCount : public QObject
{
    Q_OBJECT

private slots:
    void theWheelAppendsAtTheEnd();
    void theWheelAppendsInAWindowThatIsScrolled();
    void theWheelBesideTheTableAppendsNothing();
    void theWheelStopsAppendingAtTheLimit();
    void clearingLeavesNineEmptyRows();
    void aNewListStandsAtItsTop_data();
    void aNewListStandsAtItsTop();
};

void TestRowCount::theWheelAppendsAtTheEnd()
{
    RowBench bench;
    QSignalSpy changes(bench.actions(), &RowActions::modified);
    bench.window.window().resize(1024, 700);
    QCursor::setPos(bench.window.window().mapToGlobal(bench.table()->geometry().center()));
    bench.table()->scrollToTop();
    QVERIFY(bench.table()->verticalScrollBar()->maximum() > 0);
    bench.turnWheel();
    QCOMPARE(bench.order(), QString("012345678"));
    bench.table()->scrollToBottom();
    bench.turnWheel();
    QCOMPARE(bench.order(), QString("012345678-"));
    QCOMPARE(bench.table()->item(9, Column::DataType)->text(), QString("short"));
    QCOMPARE(changes.count(), 0);
}

void TestRowCount::theWheelAppendsInAWindowThatIsScrolled()
{
    RowBench bench;
    bench.window.window().resize(700, 420);
    QCoreApplication::processEvents();
    QCursor::setPos(bench.window.window().mapToGlobal(bench.table()->geometry().center()));
    bench.table()->scrollToBottom();
    bench.turnWheel();
    QCOMPARE(bench.order(), QString("012345678-"));
}

void TestRowCount::theWheelBesideTheTableAppendsNothing()
{
    RowBench bench;
    bench.table()->scrollToBottom();
    QCursor::setPos(bench.window.window().mapToGlobal(
        QPoint(bench.table()->geometry().right() + 2, bench.table()->geometry().bottom() + 2)));
    bench.turnWheel();
    QCOMPARE(bench.order(), QString("012345678"));
}

void TestRowCount::theWheelStopsAppendingAtTheLimit()
{
    RowBench bench;
    bench.rows()->replaceRows(QVector<CommandRow>(512, emptyRow()));
    QCursor::setPos(bench.window.window().mapToGlobal(bench.table()->geometry().center()));
    bench.table()->scrollToBottom();
    bench.turnWheel();
    QCOMPARE(bench.table()->rowCount(), 513);
    QVERIFY(!bench.table()->signalsBlocked());
    bench.table()->scrollToBottom();
    bench.turnWheel();
    QCOMPARE(bench.table()->rowCount(), 513);
    QVERIFY(bench.table()->signalsBlocked());
}

void TestRowCount::clearingLeavesNineEmptyRows()
{
    RowBench bench;
    for (int i = 0; i < 11; ++i) {
        bench.rows()->insertDelayRow(0);
    }
    bench.window.click("pushButton_ClearCommand");
    QCOMPARE(bench.order(), QString("---------"));
    QCOMPARE(bench.table()->item(8, Column::DataType)->text(), QString("short"));
    QCOMPARE(bench.boxes.texts(), QStringList());
}

void TestRowCount::aNewListStandsAtItsTop_data()
{
    QTest::addColumn<QString>("button");

    QTest::newRow("loaded") << "pushButton_LoadCommand";
    QTest::newRow("cleared") << "pushButton_ClearCommand";
}

void TestRowCount::aNewListStandsAtItsTop()
{
    QFETCH(QString, button);
    QTemporaryDir folder;
    const QString path = folder.filePath("commands.txt");
    writeFile(path, QByteArray("a,select,5A 0010 01\n").repeated(60));
    const FileDialogUser user(path);
    RowBench bench;
    bench.window.window().resize(1024, 600);
    bench.window.click("pushButton_LoadCommand");
    bench.table()->setCurrentCell(59, Column::Data);
    bench.table()->scrollToBottom();
    const QScrollBar *bar = bench.table()->verticalScrollBar();
    QVERIFY(bar->value() > 0);
    bench.window.click(qPrintable(button));
    QCOMPARE(bar->value(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 0);
    QVERIFY(bench.table()->currentRow() <= 0);
    QVERIFY(bench.table()->cellWidget(0, Column::Send)->isVisible());
}

QTEST_MAIN(TestRowCount)
#include "tst_rowcount.moc"
