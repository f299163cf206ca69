#include "rowbench.h"

#include <QLabel>
#include <QtTest>

namespace Column = CommandColumn;

class TestTableKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keysDoWhatTheMenuDoes_data();
    void keysDoWhatTheMenuDoes();
    void deletingGoesOn();
    void edgesAreToldAsInTheMenu();
    void aKeyMeansTheRowWhoseBoxHasTheFocus();
    void keysMeanTheTextInAnEditor_data();
    void keysMeanTheTextInAnEditor();
    void spaceTogglesTheSelectCell();
    void spaceTypesElsewhere();
    void shiftF10OpensTheMenuAtTheCell_data();
    void shiftF10OpensTheMenuAtTheCell();
    void aMenuAskedForByKeyActsOnItsRow();
    void theMenuKeyOpensTheMenuAtTheCell();
    void theMenuComesToACellOutOfView();
    void theMouseStillSaysWhere();
    void theMenuShowsTheKeys();

private:
    QTableWidget *table() const { return m_bench->table(); }
    void goTo(int row, int column) const;
    QPoint placeOfMenu(int row, int column) const;

    std::unique_ptr<RowBench> m_bench;
};

void TestTableKeys::init()
{
    m_bench = std::make_unique<RowBench>();
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    QCursor::setPos(0, 0);
}

void TestTableKeys::cleanup()
{
    m_bench.reset();
}

void TestTableKeys::goTo(int row, int column) const
{
    table()->setCurrentCell(row, column);
    table()->setFocus();
}

QPoint TestTableKeys::placeOfMenu(int row, int column) const
{
    const QRect cell = table()->visualRect(table()->model()->index(row, column));
    return table()->viewport()->mapToGlobal(cell.bottomLeft());
}

void TestTableKeys::keysDoWhatTheMenuDoes_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("order");
    QTest::addColumn<int>("currentRow");
    QTest::addColumn<bool>("modified");

    const auto add = [](const char *name, int key, int modifiers, const char *order, int current,
                        bool modified) {
        QTest::newRow(name) << key << modifiers << order << current << modified;
    };
    add("Insert", Qt::Key_Insert, Qt::NoModifier, "012-345678", 3, true);
    add("Ctrl+D", Qt::Key_D, Qt::ControlModifier, "0123345678", 4, true);
    add("Ctrl+Delete", Qt::Key_Delete, Qt::ControlModifier, "01245678", 3, false);
    add("Alt+Up", Qt::Key_Up, Qt::AltModifier, "013245678", 2, true);
    add("Alt+Down", Qt::Key_Down, Qt::AltModifier, "012435678", 4, true);
}

void TestTableKeys::keysDoWhatTheMenuDoes()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, currentRow);
    QFETCH(bool, modified);
    goTo(3, Column::Select);
    QTest::keyClick(table(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(m_bench->order(), "order");
    QCOMPARE(table()->currentRow(), currentRow);
    const QModelIndexList selected = table()->selectionModel()->selectedRows();
    QCOMPARE(selected.size(), modified ? 1 : 0);
    QVERIFY(!modified || selected.first().row() == currentRow);
    QVERIFY(table()->hasFocus());
    QCOMPARE(m_bench->window.find<QLabel>("label_ListName")->text().endsWith('*'), modified);
    QCOMPARE(m_bench->boxes.texts(), QStringList());
}

void TestTableKeys::deletingGoesOn()
{
    goTo(3, Column::Data);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete, Qt::ControlModifier);
    }
    QCOMPARE(m_bench->order(), QString("012678"));
}

void TestTableKeys::edgesAreToldAsInTheMenu()
{
    goTo(0, Column::Data);
    QTest::keyClick(table(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(m_bench->boxes.takeTexts(), QStringList{"Has reached the top!"});
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
    goTo(8, Column::Data);
    QTest::keyClick(table(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_bench->boxes.takeTexts(), QStringList{"Has reached the bottom!"});
    QCOMPARE(m_bench->order(), QString("012345678"));
}

void TestTableKeys::aKeyMeansTheRowWhoseBoxHasTheFocus()
{
    goTo(1, Column::Data);
    m_bench->window.checkRow(5);
    QVERIFY(table()->cellWidget(5, Column::Select)->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(m_bench->order(), QString("01234678"));
    QVERIFY(table()->hasFocus());
}

void TestTableKeys::keysMeanTheTextInAnEditor_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");

    QTest::newRow("Insert") << int(Qt::Key_Insert) << int(Qt::NoModifier);
    QTest::newRow("Ctrl+D") << int(Qt::Key_D) << int(Qt::ControlModifier);
    QTest::newRow("Ctrl+Delete") << int(Qt::Key_Delete) << int(Qt::ControlModifier);
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << int(Qt::AltModifier);
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
}

void TestTableKeys::keysMeanTheTextInAnEditor()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    goTo(3, Column::Data);
    QTest::keyClick(table(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), "01 02");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_bench->order(), QString("012345678"));
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr);
    if (key == Qt::Key_Delete) {
        QCOMPARE(qobject_cast<QLineEdit *>(QApplication::focusWidget())->text(), QString("02"));
    }
}

void TestTableKeys::spaceTogglesTheSelectCell()
{
    goTo(3, Column::Select);
    QTest::keyClick(table(), Qt::Key_Space);
    QVERIFY(m_bench->isChecked(3));
    QTest::keyClick(table(), Qt::Key_Space);
    QVERIFY(!m_bench->isChecked(3));
    QVERIFY(table()->hasFocus());
}

void TestTableKeys::spaceTypesElsewhere()
{
    goTo(3, Column::Description);
    QTest::keyClick(table(), Qt::Key_Space);
    QVERIFY(!m_bench->isChecked(3));
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr);
}

void TestTableKeys::shiftF10OpensTheMenuAtTheCell_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("first");

    QTest::newRow("row menu") << int(Column::Addr) << "insert";
    QTest::newRow("select menu") << int(Column::Select) << "select all";
    QTest::newRow("CMD menu") << int(Column::Cmd) << "10";
}

void TestTableKeys::shiftF10OpensTheMenuAtTheCell()
{
    QFETCH(int, column);
    goTo(2, column);
    QTest::keyClick(table(), Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(m_bench->menus.menuCount(), 1);
    QTEST(m_bench->menus.entries().value(0), "first");
    QCOMPARE(m_bench->actions()->menuPosition(), placeOfMenu(2, column));
    QCOMPARE(m_bench->menus.position().y(), placeOfMenu(2, column).y());
}

void TestTableKeys::aMenuAskedForByKeyActsOnItsRow()
{
    goTo(2, Column::Addr);
    m_bench->menus.choose("delay");
    QTest::keyClick(table(), Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(m_bench->order(), QString("01D2345678"));
}

void TestTableKeys::theMenuKeyOpensTheMenuAtTheCell()
{
    goTo(2, Column::Addr);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, table()->rect().center());
    QCoreApplication::sendEvent(table(), &event);
    QCOMPARE(m_bench->menus.menuCount(), 1);
    QCOMPARE(m_bench->actions()->menuPosition(), placeOfMenu(2, Column::Addr));
}

void TestTableKeys::theMenuComesToACellOutOfView()
{
    m_bench->window.window().resize(1024, 600);
    m_bench->rows()->replaceRows(QVector<CommandRow>(60, emptyRow()));
    goTo(50, Column::Addr);
    table()->scrollToTop();
    QTest::keyClick(table(), Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(m_bench->menus.menuCount(), 1);
    QVERIFY(table()->viewport()->rect().contains(
        table()->visualRect(table()->model()->index(50, Column::Addr))));
    QCOMPARE(m_bench->actions()->contextRow(), 50);
}

void TestTableKeys::theMouseStillSaysWhere()
{
    goTo(2, Column::Addr);
    QTest::keyClick(table(), Qt::Key_F10, Qt::ShiftModifier);
    QCursor::setPos(150, 170);
    m_bench->rightClick(4, Column::Data);
    QCOMPARE(m_bench->menus.position(), QPoint(150, 170));
    QCOMPARE(m_bench->actions()->contextRow(), 4);
}

void TestTableKeys::theMenuShowsTheKeys()
{
    QCOMPARE(m_bench->entry("insert")->shortcut(), QKeySequence("Ins"));
    QCOMPARE(m_bench->entry("clone")->shortcut(), QKeySequence("Ctrl+D"));
    QCOMPARE(m_bench->entry("delete")->shortcut(), QKeySequence("Ctrl+Del"));
    QCOMPARE(m_bench->entry("up")->shortcut(), QKeySequence("Alt+Up"));
    QCOMPARE(m_bench->entry("down")->shortcut(), QKeySequence("Alt+Down"));
    QVERIFY(m_bench->entry("delay")->shortcut().isEmpty());
}

QTEST_MAIN(TestTableKeys)
#include "tst_tablekeys.moc"
