#include "undotest.h"

#include <QLabel>

QString UndoTest::title() const
{
    return m_bench->window.find<QLabel>("label_ListName")->text();
}

QString UndoTest::status() const
{
    return m_bench->window.find<QLabel>("label_Status")->text();
}

void UndoTest::comeBack() const
{
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    table()->setFocus();
    QTRY_VERIFY(table()->hasFocus());
}

void UndoTest::init()
{
    m_bench = std::make_unique<RowBench>();
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    // The numbers of the rows are a step of their own.
    QCoreApplication::processEvents();
    QVERIFY(canUndo());
}

void UndoTest::cleanup()
{
    m_bench.reset();
}

void UndoTest::goTo(int row, int column) const
{
    table()->setCurrentCell(row, column);
    table()->setFocus();
}

void UndoTest::press(int key, int modifiers)
{
    QVERIFY(QApplication::focusWidget() != nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
}
