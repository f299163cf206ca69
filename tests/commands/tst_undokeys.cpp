#include "undotest.h"

#include <QtTest>

namespace Column = CommandColumn;

/// Ctrl+Z and Ctrl+Shift+Z beside the other keys of the window and of its texts.
class TestUndoKeys : public UndoTest
{
    Q_OBJECT

private slots:
    void aWalkIsAStepForEachCell();
    void keysOfATextComeFirst();
    void anUntouchedEditorGivesWay();
    void whatIsTypedIsTakenInFirst();
    void keysOfOtherTextsStayTheirs();
    void afterAButtonTheKeysCount();
    void theKeysRestWhereThereIsNothing();
};

void TestUndoKeys::aWalkIsAStepForEachCell()
{
    goTo(0, Column::Addr);
    press(Qt::Key_F2);
    type("10");
    press(Qt::Key_Return);
    type("01");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    type("02");
    press(Qt::Key_Return);
    const auto texts = [this] {
        return QStringList{text(0, Column::Addr), text(0, Column::Data), text(1, Column::Addr),
                           text(1, Column::Data)};
    };
    QCOMPARE(texts(), (QStringList{"0010", "01", "0011", "02"}));
    undo();
    QCOMPARE(texts(), (QStringList{"0010", "01", "0011", ""}));
    undo();
    QCOMPARE(texts(), (QStringList{"0010", "01", "", ""}));
    undo();
    QCOMPARE(texts(), (QStringList{"0010", "", "", ""}));
    undo();
    QCOMPARE(texts(), (QStringList{"", "", "", ""}));
    QCOMPARE(title(), QString());
}

void TestUndoKeys::keysOfATextComeFirst()
{
    goTo(1, Column::Data);
    press(Qt::Key_D, Qt::ControlModifier);
    goTo(1, Column::Data);
    press(Qt::Key_F2);
    type("77");
    const auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor != nullptr);
    undo();
    QCOMPARE(QApplication::focusWidget(), editor);
    QCOMPARE(editor->text(), QString());
    QCOMPARE(m_bench->order(), QString("0112345678"));
    redo();
    QCOMPARE(editor->text(), QString("77"));
    undo();
    // Nothing is left to be taken back in it.
    undo();
    QVERIFY(table()->hasFocus());
    QCOMPARE(m_bench->order(), QString("012345678"));
    QCOMPARE(text(1, Column::Data), QString());
}

void TestUndoKeys::anUntouchedEditorGivesWay()
{
    goTo(1, Column::Description);
    press(Qt::Key_D, Qt::ControlModifier);
    press(Qt::Key_F2);
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr);
    undo();
    QCOMPARE(m_bench->order(), QString("012345678"));
    QVERIFY(table()->hasFocus());
    press(Qt::Key_F2);
    redo();
    QCOMPARE(m_bench->order(), QString("0112345678"));
}

void TestUndoKeys::whatIsTypedIsTakenInFirst()
{
    goTo(1, Column::Addr);
    press(Qt::Key_F2);
    type("1a");
    m_bench->entry("undo")->trigger();
    QVERIFY(text(1, Column::Addr).isEmpty());
    m_bench->entry("redo")->trigger();
    QCOMPARE(text(1, Column::Addr), QString("001A"));
}

void TestUndoKeys::keysOfOtherTextsStayTheirs()
{
    goTo(1, Column::Data);
    press(Qt::Key_D, Qt::ControlModifier);
    QLineEdit *field = m_bench->window.edit("lineEdit_StepValue");
    const QString before = field->text();
    field->setFocus();
    press(Qt::Key_End);
    type("7");
    undo();
    QCOMPARE(field->text(), before);
    undo();
    QCOMPARE(m_bench->order(), QString("0112345678"));
}

void TestUndoKeys::afterAButtonTheKeysCount()
{
    const QVector<CommandRow> before = rows();
    m_bench->window.button("pushButton_ClearCommand")->setFocus();
    press(Qt::Key_Space);
    QCOMPARE(m_bench->order(), QString("---------"));
    undo();
    QVERIFY(rows() == before);
    m_bench->window.messages()->setFocus();
    redo();
    QCOMPARE(m_bench->order(), QString("---------"));
}

void TestUndoKeys::theKeysRestWhereThereIsNothing()
{
    goTo(0, Column::Data);
    undo();
    QVERIFY(!canUndo());
    QVERIFY(canRedo());
    QCOMPARE(m_bench->order(), QString("---------"));
    undo();
    QVERIFY(!canUndo());
    // What is written is offered at once.
    table()->item(5, Column::Description)->setText("x");
    QVERIFY(canUndo());
    QCoreApplication::processEvents();
    QVERIFY(!canRedo());
    redo();
    QCOMPARE(m_bench->order(), QString("-----x---"));
}

QTEST_MAIN(TestUndoKeys)
#include "tst_undokeys.moc"
