#include "filedialoguser.h"
#include "rowbench.h"
#include "testfiles.h"

#include <QClipboard>
#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

namespace Column = CommandColumn;

class TestUndo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void anActIsOneStep_data();
    void anActIsOneStep();
    void changesWithoutTheMarkAreTakenBackWithoutIt();
    void aToggledBoxIsOneStep_data();
    void aToggledBoxIsOneStep();
    void boxesOfManyRowsAreOneStep();
    void cmdOfTheMenuIsOneStep();
    void anEditIsOneStepWithItsAddress();
    void aWalkIsAStepForEachCell();
    void keysOfATextComeFirst();
    void anUntouchedEditorGivesWay();
    void whatIsTypedIsTakenInFirst();
    void keysOfOtherTextsStayTheirs();
    void afterAButtonTheKeysCount();
    void theEditorOfValuesIsOneStep();
    void pastedRowsAreOneStep();
    void pastedBytesAreOneStep();
    void turnsOfTheWheelAreOneStep();
    void clearingComesBack();
    void loadingComesBackWithItsFile();
    void savingMovesTheMark();
    void aProgramsWritingIsOneStep();
    void aProgramMayWriteWithoutSignals();
    void whatWasChangedIsShown();
    void manyRowsComeBackAsTheyWere();
    void theKeysRestWhereThereIsNothing();
    void theStatusLineSaysWhat();
    void twentyStepsStay();

private:
    QTableWidget *table() const { return m_bench->table(); }
    QString text(int row, int column) const { return table()->item(row, column)->text(); }
    QString title() const { return m_bench->window.find<QLabel>("label_ListName")->text(); }
    QString status() const { return m_bench->window.find<QLabel>("label_Status")->text(); }
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

void TestUndo::comeBack() const
{
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    table()->setFocus();
    QTRY_VERIFY(table()->hasFocus());
}

void TestUndo::init()
{
    m_bench = std::make_unique<RowBench>();
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    // The numbers of the rows are a step of their own.
    QCoreApplication::processEvents();
    QVERIFY(canUndo());
}

void TestUndo::cleanup()
{
    m_bench.reset();
}

void TestUndo::goTo(int row, int column) const
{
    table()->setCurrentCell(row, column);
    table()->setFocus();
}

void TestUndo::press(int key, int modifiers)
{
    QVERIFY(QApplication::focusWidget() != nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
}

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

void TestUndo::aWalkIsAStepForEachCell()
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

void TestUndo::keysOfATextComeFirst()
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

void TestUndo::anUntouchedEditorGivesWay()
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

void TestUndo::whatIsTypedIsTakenInFirst()
{
    goTo(1, Column::Addr);
    press(Qt::Key_F2);
    type("1a");
    m_bench->entry("undo")->trigger();
    QVERIFY(text(1, Column::Addr).isEmpty());
    m_bench->entry("redo")->trigger();
    QCOMPARE(text(1, Column::Addr), QString("001A"));
}

void TestUndo::keysOfOtherTextsStayTheirs()
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

void TestUndo::afterAButtonTheKeysCount()
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

void TestUndo::clearingComesBack()
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

void TestUndo::loadingComesBackWithItsFile()
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

void TestUndo::savingMovesTheMark()
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

void TestUndo::whatWasChangedIsShown()
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

void TestUndo::manyRowsComeBackAsTheyWere()
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

void TestUndo::theKeysRestWhereThereIsNothing()
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

void TestUndo::theStatusLineSaysWhat()
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

void TestUndo::twentyStepsStay()
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

QTEST_MAIN(TestUndo)
#include "tst_undo.moc"
