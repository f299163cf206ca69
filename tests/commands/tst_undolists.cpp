#include "filedialoguser.h"
#include "testfiles.h"
#include "undotest.h"

#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

namespace Column = CommandColumn;

/// Whole lists that come back, what is told and shown of a step, and how many steps stay.
class TestUndoLists : public UndoTest
{
    Q_OBJECT

private slots:
    void clearingComesBack();
    void loadingComesBackWithItsFile();
    void savingMovesTheMark();
    void whatWasChangedIsShown();
    void manyRowsComeBackAsTheyWere();
    void theStatusLineSaysWhat();
    void twentyStepsStay();
};

void TestUndoLists::clearingComesBack()
{
    goTo(3, Column::Data);
    press(Qt::Key_D, Qt::ControlModifier);
    const QVector<CommandRow> before = rows();
    QCOMPARE(title(), QString("*"));
    m_bench->window.click("pushButton_ClearCommand");
    QCOMPARE(title(), QString());
    undo();
    QVERIFY(rows() == before);
    QCOMPARE(title(), QString("*"));
    redo();
    QCOMPARE(m_bench->order(), QString("---------"));
    QCOMPARE(title(), QString());
}

void TestUndoLists::loadingComesBackWithItsFile()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("a.txt"), "//@ tarnwick-run 1\na,select,03 0001 01\n//? 03 **\n");
    writeFile(folder.filePath("b.txt"), QByteArray("b,select,03 0002 02\n").repeated(12));
    {
        const FileDialogUser user(folder.filePath("a.txt"));
        m_bench->window.click("pushButton_LoadCommand");
    }
    const QVector<CommandRow> first = rows();
    QCOMPARE(first.first().expectations, QString("//@ tarnwick-run 1\n//? 03 **\n"));
    {
        const FileDialogUser user(folder.filePath("b.txt"));
        m_bench->window.click("pushButton_LoadCommand");
    }
    comeBack();
    const QVector<CommandRow> second = rows();
    QCOMPARE(title(), QString("b.txt"));
    goTo(0, Column::Data);
    press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(title(), QString("b.txt*"));
    undo();
    QCOMPARE(title(), QString("b.txt"));
    QVERIFY(rows() == second);
    undo();
    QCOMPARE(title(), QString("a.txt"));
    QVERIFY(rows() == first);
    QCOMPARE(m_bench->window.find<QLabel>("label_ListName")->toolTip(),
             QDir::toNativeSeparators(folder.filePath("a.txt")));
    undo();
    QCOMPARE(title(), QString());
    QCOMPARE(m_bench->order(), QString("012345678"));
    redo();
    redo();
    QCOMPARE(title(), QString("b.txt"));
    QVERIFY(rows() == second);
}

void TestUndoLists::savingMovesTheMark()
{
    const QTemporaryDir folder;
    const FileDialogUser user(folder.filePath("a.txt"));
    goTo(3, Column::Data);
    press(Qt::Key_D, Qt::ControlModifier);
    m_bench->window.click("pushButton_SaveCommand");
    comeBack();
    QCOMPARE(title(), QString("a.txt"));
    table()->setFocus();
    undo();
    QCOMPARE(title(), QString("a.txt*"));
    redo();
    QCOMPARE(title(), QString("a.txt"));
}

void TestUndoLists::whatWasChangedIsShown()
{
    m_bench->rows()->replaceRows(QVector<CommandRow>(200, emptyRow()));
    table()->item(150, Column::Addr)->setText("0010");
    QCoreApplication::processEvents();
    table()->scrollToTop();
    goTo(2, Column::Description);
    undo();
    QCOMPARE(table()->currentRow(), 150);
    QCOMPARE(table()->currentColumn(), int(Column::Addr));
    const QModelIndexList selected = table()->selectionModel()->selectedRows();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().row(), 150);
    QVERIFY(table()->viewport()->rect().contains(
        table()->visualItemRect(table()->item(150, Column::Addr))));
    // Of rows that are gone, their place is shown.
    goTo(100, Column::Data);
    press(Qt::Key_Insert);
    table()->scrollToTop();
    undo();
    QCOMPARE(table()->currentRow(), 100);
    QVERIFY(table()->selectionModel()->selectedRows().isEmpty());
    QVERIFY(table()->verticalScrollBar()->value() > 50);
}

void TestUndoLists::manyRowsComeBackAsTheyWere()
{
    QVector<CommandRow> many(2000, delayRow());
    for (int row = 0; row < many.size(); ++row) {
        many[row].description = QString::number(row);
    }
    m_bench->rows()->replaceRows(many);
    const int id = m_bench->rows()->row(1000).id;
    m_bench->window.click("pushButton_ClearCommand");
    undo();
    QVERIFY(rows() == many);
    // They are the rows that they were, not others that look like them.
    QCOMPARE(m_bench->rows()->rowWithId(id), 1000);
    redo();
    QCOMPARE(table()->rowCount(), 9);
    undo();
    QVERIFY(rows() == many);
    undo();
    QCOMPARE(m_bench->order(), QString("012345678"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestUndoLists::theStatusLineSaysWhat()
{
    goTo(3, Column::Data);
    press(Qt::Key_D, Qt::ControlModifier);
    undo();
    QCOMPARE(status(), QString("Undone: row 5 inserted."));
    redo();
    QCOMPARE(status(), QString("Redone: row 5 inserted."));
    press(Qt::Key_Delete, Qt::ControlModifier);
    undo();
    QCOMPARE(status(), QString("Undone: row 5 deleted."));
    press(Qt::Key_Up, Qt::AltModifier);
    goTo(3, Column::Select);
    press(Qt::Key_Space);
    undo();
    QCOMPARE(status(), QString("Undone: row 4 changed."));
    m_bench->window.click("pushButton_ClearCommand");
    undo();
    QCOMPARE(status(), QString("Undone: another list."));
}

void TestUndoLists::twentyStepsStay()
{
    for (int step = 0; step < 30; ++step) {
        goTo(0, Column::Data);
        press(Qt::Key_Insert);
    }
    for (int step = 0; step < 30; ++step) {
        undo();
    }
    QCOMPARE(m_bench->order(), QString("----------012345678"));
}

QTEST_MAIN(TestUndoLists)
#include "tst_undolists.moc"
