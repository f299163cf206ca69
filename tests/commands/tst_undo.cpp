#include "undotest.h"

#include <QClipboard>
#include <QtTest>

namespace Column = CommandColumn;

/// Each act of the user, or of a program, is one step that is taken back and done again.
class TestUndo : public UndoTest
{
    Q_OBJECT

private slots:
    void anActIsOneStep_data();
    void anActIsOneStep();
    void changesWithoutTheMarkAreTakenBackWithoutIt();
    void aToggledBoxIsOneStep_data();
    void aToggledBoxIsOneStep();
    void boxesOfManyRowsAreOneStep();
    void cmdOfTheMenuIsOneStep();
    void anEditIsOneStepWithItsAddress();
    void theEditorOfValuesIsOneStep();
    void pastedRowsAreOneStep();
    void pastedBytesAreOneStep();
    void turnsOfTheWheelAreOneStep();
    void aProgramsWritingIsOneStep();
    void aProgramMayWriteWithoutSignals();
};

void TestUndo::anActIsOneStep_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("order");

    const auto add = [](const char *name, int key, int modifiers, const char *order) {
        QTest::newRow(name) << key << modifiers << order;
    };
    add("Insert", Qt::Key_Insert, Qt::NoModifier, "012--345678");
    add("Ctrl+D", Qt::Key_D, Qt::ControlModifier, "01233345678");
    add("Ctrl+Delete", Qt::Key_Delete, Qt::ControlModifier, "0125678");
    add("Alt+Up", Qt::Key_Up, Qt::AltModifier, "031245678");
    add("Alt+Down", Qt::Key_Down, Qt::AltModifier, "012453678");
}

void TestUndo::anActIsOneStep()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, order);
    const QVector<CommandRow> before = rows();
    goTo(3, Column::Data);
    press(key, modifiers);
    const QVector<CommandRow> between = rows();
    press(key, modifiers);
    QCOMPARE(m_bench->order(), order);
    const QVector<CommandRow> after = rows();
    undo();
    QVERIFY(rows() == between);
    undo();
    QVERIFY(rows() == before);
    QCOMPARE(title(), QString());
    redo();
    QVERIFY(rows() == between);
    redo();
    QVERIFY(rows() == after);
    QVERIFY(!canRedo());
    QVERIFY(table()->hasFocus());
    QVERIFY(table()->updatesEnabled());
}

void TestUndo::changesWithoutTheMarkAreTakenBackWithoutIt()
{
    goTo(3, Column::Data);
    press(Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(title(), QString());
    undo();
    QCOMPARE(title(), QString());
    press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(title(), QString("*"));
    undo();
    QCOMPARE(title(), QString());
    redo();
    QCOMPARE(title(), QString("*"));
}

void TestUndo::aToggledBoxIsOneStep_data()
{
    QTest::addColumn<bool>("byKey");

    QTest::newRow("Space") << true;
    QTest::newRow("mouse") << false;
}

void TestUndo::aToggledBoxIsOneStep()
{
    QFETCH(bool, byKey);
    goTo(3, Column::Select);
    const auto toggle = [&](int row, bool checked) {
        if (byKey) {
            goTo(row, Column::Select);
            press(Qt::Key_Space);
        } else {
            m_bench->window.checkRow(row, checked);
        }
    };
    toggle(3, true);
    toggle(4, true);
    toggle(3, false);
    undo();
    QVERIFY(m_bench->isChecked(3) && m_bench->isChecked(4));
    QCOMPARE(table()->currentColumn(), int(Column::Select));
    undo();
    QVERIFY(m_bench->isChecked(3) && !m_bench->isChecked(4));
    undo();
    QVERIFY(!m_bench->isChecked(3));
    redo();
    QVERIFY(m_bench->isChecked(3));
    QCOMPARE(m_bench->order(), QString("012345678"));
    // A box that came back is one like the others.
    m_bench->window.checkRow(3, false);
    undo();
    QVERIFY(m_bench->isChecked(3));
}

void TestUndo::boxesOfManyRowsAreOneStep()
{
    goTo(2, Column::Select);
    table()->setRangeSelected({2, 0, 4, Column::Count - 1}, true);
    m_bench->menus.choose("select all");
    press(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(m_bench->rows()->checkedRows().size(), 3);
    comeBack();
    undo();
    QCOMPARE(m_bench->rows()->checkedRows().size(), 0);
    redo();
    QCOMPARE(m_bench->rows()->checkedRows().size(), 3);
}

void TestUndo::cmdOfTheMenuIsOneStep()
{
    m_bench->window.setRow(3, "77", "0300", "00 01");
    const QString crc = text(3, Column::Crc);
    goTo(3, Column::Cmd);
    m_bench->menus.choose("42");
    press(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(text(3, Column::Cmd), QString("42"));
    QVERIFY(text(3, Column::Crc) != crc);
    comeBack();
    undo();
    QCOMPARE(text(3, Column::Cmd), QString("77"));
    QCOMPARE(text(3, Column::Crc), crc);
}

void TestUndo::anEditIsOneStepWithItsAddress()
{
    goTo(1, Column::Addr);
    press(Qt::Key_F2);
    type("1a");
    press(Qt::Key_Tab);
    QCOMPARE(text(1, Column::Addr), QString("001A"));
    press(Qt::Key_Escape);
    const QVector<CommandRow> after = rows();
    undo();
    QCOMPARE(text(1, Column::Addr), QString());
    QCOMPARE(text(1, Column::Crc), QString());
    QCOMPARE(table()->currentRow(), 1);
    QCOMPARE(table()->currentColumn(), int(Column::Addr));
    QCOMPARE(title(), QString());
    redo();
    QVERIFY(rows() == after);
    QCOMPARE(title(), QString("*"));
}

void TestUndo::theEditorOfValuesIsOneStep()
{
    m_bench->window.setRow(3, "10", "0001", "00 00 00 01");
    m_bench->rightClick(3, Column::Data);
    const QVector<CommandRow> before = rows();
    m_bench->actions()->run(RowAction::Edit);
    auto *editor = m_bench->window.window().findChild<DirectEditor *>();
    editor->findChild<QComboBox *>("comboBox_dataType")->setCurrentIndex(0);
    auto *value = editor->findChild<QLineEdit *>("lineEdit_originalData");
    value->selectAll();
    QTest::keyClicks(value, "1,-1");
    QTest::mouseClick(editor->findChild<QPushButton *>("pushButton_ok"), Qt::LeftButton);
    QCOMPARE(text(3, Column::Data), QString("00 00 00 01 FF FF FF FF"));
    comeBack();
    undo();
    QVERIFY(rows() == before);
}

void TestUndo::pastedRowsAreOneStep()
{
    const QVector<CommandRow> before = rows();
    QApplication::clipboard()->setText("a\nb\nc");
    goTo(3, Column::Data);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_bench->order(), QString("0123abc45678"));
    undo();
    QVERIFY(rows() == before);
    redo();
    QCOMPARE(m_bench->order(), QString("0123abc45678"));
    QCOMPARE(table()->selectionModel()->selectedRows().size(), 3);
}

void TestUndo::pastedBytesAreOneStep()
{
    const QVector<CommandRow> before = rows();
    QApplication::clipboard()->setText("0x10");
    goTo(3, Column::Data);
    press(Qt::Key_V, int(Qt::ControlModifier) | int(Qt::ShiftModifier));
    QCOMPARE(text(3, Column::Data), QString("10"));
    undo();
    QVERIFY(rows() == before);
    QCOMPARE(title(), QString());
}

void TestUndo::turnsOfTheWheelAreOneStep()
{
    QCursor::setPos(m_bench->window.window().mapToGlobal(table()->geometry().center()));
    goTo(3, Column::Data);
    press(Qt::Key_Delete, Qt::ControlModifier);
    for (int turn = 0; turn < 30; ++turn) {
        table()->scrollToBottom();
        m_bench->turnWheel();
    }
    QCOMPARE(table()->rowCount(), 38);
    undo();
    QCOMPARE(m_bench->order(), QString("01245678"));
    undo();
    QCOMPARE(m_bench->order(), QString("012345678"));
    redo();
    redo();
    QCOMPARE(table()->rowCount(), 38);
}

void TestUndo::aProgramsWritingIsOneStep()
{
    m_bench->window.setRow(2, "01", "0300", "00 01");
    table()->item(5, Column::Description)->setText("x");
    QCoreApplication::processEvents();
    table()->item(6, Column::Description)->setText("y");
    goTo(0, Column::Data);
    undo();
    QCOMPARE(m_bench->order(), QString("01234x678"));
    undo();
    QCOMPARE(m_bench->order(), QString("012345678"));
    QCOMPARE(text(2, Column::Cmd), QString());
    QCOMPARE(text(2, Column::Crc), QString());
    redo();
    QCOMPARE(text(2, Column::Data), QString("00 01"));
}

void TestUndo::aProgramMayWriteWithoutSignals()
{
    table()->blockSignals(true);
    table()->item(5, Column::Description)->setText("x");
    table()->removeRow(2);
    table()->setItem(0, Column::Data, new QTableWidgetItem("01"));
    delete table()->takeItem(1, Column::Data);
    table()->setCellWidget(3, Column::Select, new QComboBox);
    goTo(0, Column::Data);
    undo();
    QVERIFY(table()->signalsBlocked());
    table()->blockSignals(false);
    QCOMPARE(m_bench->order(), QString("012345678"));
    QCOMPARE(text(0, Column::Data), QString());
    redo();
    QCOMPARE(m_bench->order(), QString("0134x678"));
}

QTEST_MAIN(TestUndo)
#include "tst_undo.moc"
