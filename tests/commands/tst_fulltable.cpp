#include "rowbench.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace Column = CommandColumn;

class TestFullTable : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aRefusedInsertionLeavesTheSignalsBlocked();
    void aRefusedInsertionIsTold();
    void anEditorFindsTheSignalsRestored_data();
    void anEditorFindsTheSignalsRestored();
    void aMenuFindsTheSignalsRestored_data();
    void aMenuFindsTheSignalsRestored();
    void anInsertionWithinTheLimitRestoresTheSignals();

private:
    QTableWidget *table() const { return m_bench->table(); }
    bool isModified() const;

    std::unique_ptr<RowBench> m_bench;
};

/// More rows than can be inserted, a refused insertion, and the view back at the top.
void TestFullTable::init()
{
    m_bench = std::make_unique<RowBench>();
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    m_bench->rows()->replaceRows(QVector<CommandRow>(520, emptyRow()));
    QVERIFY(!m_bench->rows()->insertEmptyRow(513));
    QCOMPARE(table()->rowCount(), 520);
    table()->scrollToTop();
}

void TestFullTable::cleanup()
{
    m_bench.reset();
}

bool TestFullTable::isModified() const
{
    return m_bench->window.find<QLabel>("label_ListName")->text().endsWith('*');
}

void TestFullTable::aRefusedInsertionLeavesTheSignalsBlocked()
{
    QVERIFY(table()->signalsBlocked());
    QSignalSpy changed(table(), &QTableWidget::cellChanged);
    table()->item(0, Column::Cmd)->setText("01");
    QCOMPARE(changed.count(), 0);
}

void TestFullTable::aRefusedInsertionIsTold()
{
    const auto *status = m_bench->window.find<QLabel>("label_Status");
    QVERIFY2(status->text().contains("513"), qPrintable(status->text()));
    QCOMPARE(m_bench->boxes.texts(), QStringList());
}

void TestFullTable::anEditorFindsTheSignalsRestored_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("CMD") << int(Column::Cmd);
    QTest::newRow("Addr") << int(Column::Addr);
    QTest::newRow("Data") << int(Column::Data);
}

void TestFullTable::anEditorFindsTheSignalsRestored()
{
    QFETCH(int, column);
    table()->setCurrentCell(0, column);
    table()->setFocus();
    QVERIFY(!isModified());
    QTest::keyClick(table(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), "0102");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(table()->item(0, column)->text(), QString("0102"));
    QCOMPARE(table()->item(0, Column::Crc)->text(), crcCellText("0102"));
    QVERIFY(isModified());
}

void TestFullTable::aMenuFindsTheSignalsRestored_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("row menu") << int(Column::Data);
    QTest::newRow("select menu") << int(Column::Select);
    QTest::newRow("CMD menu") << int(Column::Cmd);
}

void TestFullTable::aMenuFindsTheSignalsRestored()
{
    QFETCH(int, column);
    m_bench->rightClick(0, column);
    QCOMPARE(m_bench->menus.menuCount(), 1);
    QVERIFY(!table()->signalsBlocked());
}

void TestFullTable::anInsertionWithinTheLimitRestoresTheSignals()
{
    table()->setCurrentCell(3, Column::Data);
    table()->setFocus();
    QTest::keyClick(table(), Qt::Key_Insert);
    QCOMPARE(table()->rowCount(), 521);
    QVERIFY(!table()->signalsBlocked());
}

QTEST_MAIN(TestFullTable)
#include "tst_fulltable.moc"
