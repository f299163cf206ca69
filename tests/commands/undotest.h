#pragma once

#include "rowbench.h"

#include <QApplication>
#include <QObject>
#include <QtTest>

#include <memory>

/// What the tests of undo and redo have in common: a window with rows, and its user.
class UndoTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

protected:
    QTableWidget *table() const { return m_bench->table(); }
    QString text(int row, int column) const { return table()->item(row, column)->text(); }
    QString title() const;
    QString status() const;
    QVector<CommandRow> rows() const { return m_bench->rows()->rows(); }
    void goTo(int row, int column) const;
    static void press(int key, int modifiers = Qt::NoModifier);
    static void type(const char *keys) { QTest::keyClicks(QApplication::focusWidget(), keys); }
    static void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    static void redo() { press(Qt::Key_Z, int(Qt::ControlModifier) | int(Qt::ShiftModifier)); }
    bool canUndo() const { return m_bench->entry("undo")->isEnabled(); }
    bool canRedo() const { return m_bench->entry("redo")->isEnabled(); }

    /// After another window has had the keys.
    void comeBack() const;

    std::unique_ptr<RowBench> m_bench;
};
