#include "commandtable.h"
#include "menuuser.h"
#include "rowactions.h"
#include "windowdriver.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

namespace Column = CommandColumn;

class TestRowMenus : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menuDependsOnTheCell_data();
    void menuDependsOnTheCell();
    void noMenuOpensBesideTheRows();
    void menuOpensAtTheCursor();
    void editComesFirstWhereTheSettingsSaySo();
    void entriesActOnTheClickedRow_data();
    void entriesActOnTheClickedRow();
    void editHandsTheRowOut();
    void edgesAreTold_data();
    void edgesAreTold();
    void theLastRowStays();
    void boxesOfSelectedRowsAreSet();
    void cmdIsWrittenAndTheRowComputed_data();
    void cmdIsWrittenAndTheRowComputed();
    void aRowThatIsGoneIsLeftAlone_data();
    void aRowThatIsGoneIsLeftAlone();
    void entriesAreKnownByPointerNotByText();
    void theWheelAppendsAtTheEnd();
    void theWheelBesideTheTableAppendsNothing();
    void theWheelStopsAppendingAtTheLimit();
    void clearingLeavesNineEmptyRows();

private:
    QTableWidget *table() const { return m_window->commands(); }
    RowActions *actions() const { return m_window->window().findChild<RowActions *>(); }
    QAction *entry(const QString &text) const;
    void number();
    QString order() const;
    void rightClick(int row, int column) const;
    void turnWheel() const;
    bool isChecked(int row) const;

    std::unique_ptr<WindowDriver> m_window;
    std::unique_ptr<MenuUser> m_menus;
    std::unique_ptr<MessageBoxes> m_boxes;
};

namespace {

const QStringList rowEntries{"insert", "clone", "delete", "up", "down", "delay"};
const QStringList selectEntries{"select all", "select none"};
const QStringList cmdEntries{"10", "03", "42"};

QString settingsPath()
{
    return QCoreApplication::applicationDirPath() + "/debuggerConfig.ini";
}

} // namespace

void TestRowMenus::init()
{
    m_window = std::make_unique<WindowDriver>();
    m_window->window().resize(1024, 1000);
    m_menus = std::make_unique<MenuUser>();
    m_boxes = std::make_unique<MessageBoxes>();
    number();
}

void TestRowMenus::cleanup()
{
    m_boxes.reset();
    m_menus.reset();
    m_window.reset();
}

QAction *TestRowMenus::entry(const QString &text) const
{
    for (QAction *action : m_window->window().findChildren<QAction *>()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

/// Gives each row its number as description.
void TestRowMenus::number()
{
    const QSignalBlocker blocker(table());
    for (int row = 0; row < table()->rowCount(); ++row) {
        table()->item(row, Column::Description)->setText(QString::number(row));
    }
}

/// The descriptions from top to bottom; "-" stands for a row without one, "D" for a delay row.
QString TestRowMenus::order() const
{
    QString all;
    for (int row = 0; row < table()->rowCount(); ++row) {
        const QString text = table()->item(row, Column::Description)->text();
        all.append(text.isEmpty() ? "-" : text.left(1));
    }
    return all;
}

void TestRowMenus::rightClick(int row, int column) const
{
    const QModelIndex index = table()->model()->index(row, column);
    table()->scrollTo(index);
    const QPoint position = table()->visualRect(index).center();
    QWidget *target = table()->viewport();
    QPoint inTarget = position;
    while (QWidget *child = target->childAt(inTarget)) {
        inTarget = child->mapFrom(target, inTarget);
        target = child;
    }
    QContextMenuEvent event(QContextMenuEvent::Mouse, inTarget, target->mapToGlobal(inTarget));
    QCoreApplication::sendEvent(target, &event);
}

void TestRowMenus::turnWheel() const
{
    const QPoint position(100, 100);
    const QPoint global = table()->viewport()->mapToGlobal(position);
    QWheelEvent event(position, global, {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // Only events from outside go on from the table to the window.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(table()->viewport(), &event);
}

bool TestRowMenus::isChecked(int row) const
{
    return m_window->window().findChild<CommandTable *>()->row(row).selected;
}

void TestRowMenus::menuDependsOnTheCell_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("Description") << 0 << 0 << rowEntries;
    QTest::newRow("Select") << 0 << 1 << selectEntries;
    QTest::newRow("CMD") << 0 << 2 << cmdEntries;
    QTest::newRow("Addr") << 0 << 3 << rowEntries;
    QTest::newRow("Data") << 0 << 4 << rowEntries;
    QTest::newRow("CRC") << 0 << 5 << rowEntries;
    QTest::newRow("Send") << 0 << 6 << QStringList();
    QTest::newRow("CMD of a delay row") << 1 << 2 << QStringList();
    QTest::newRow("Data of a delay row") << 1 << 4 << rowEntries;
    QTest::newRow("Select of a delay row") << 1 << 1 << selectEntries;
}

void TestRowMenus::menuDependsOnTheCell()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QStringList, entries);
    table()->item(1, Column::Cmd)->setText("++");
    rightClick(row, column);
    QCOMPARE(m_menus->entries(), entries);
    QCOMPARE(m_menus->menuCount(), entries.isEmpty() ? 0 : 1);
}

void TestRowMenus::noMenuOpensBesideTheRows()
{
    table()->setRowCount(2);
    const QPoint below = table()->viewport()->rect().bottomLeft() + QPoint(20, -5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, below);
    QCoreApplication::sendEvent(table()->viewport(), &event);
    QCOMPARE(m_menus->menuCount(), 0);
}

void TestRowMenus::menuOpensAtTheCursor()
{
    QCursor::setPos(150, 170);
    rightClick(0, Column::Addr);
    QCOMPARE(m_menus->position(), QCursor::pos());
}

void TestRowMenus::editComesFirstWhereTheSettingsSaySo()
{
    QFile file(settingsPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[set]\nisEditorFun=1\n");
    file.close();
    m_window = std::make_unique<WindowDriver>();
    file.remove();
    rightClick(0, Column::Addr);
    QCOMPARE(m_menus->entries(), QStringList{"edit"} + rowEntries);
}

void TestRowMenus::entriesActOnTheClickedRow_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("order");
    QTest::addColumn<int>("selectedRow");
    QTest::addColumn<bool>("modified");

    QTest::newRow("insert") << "insert" << 3 << "012-345678" << 3 << true;
    QTest::newRow("insert on top") << "insert" << 0 << "-012345678" << 0 << true;
    QTest::newRow("clone") << "clone" << 3 << "0123345678" << 4 << true;
    QTest::newRow("clone the last") << "clone" << 8 << "0123456788" << 9 << true;
    QTest::newRow("delete") << "delete" << 3 << "01245678" << -1 << false;
    QTest::newRow("up") << "up" << 3 << "013245678" << 2 << true;
    QTest::newRow("down") << "down" << 3 << "012435678" << 4 << true;
    QTest::newRow("delay") << "delay" << 3 << "012D345678" << 3 << true;
}

void TestRowMenus::entriesActOnTheClickedRow()
{
    QFETCH(QString, entry);
    QFETCH(int, row);
    QFETCH(int, selectedRow);
    QFETCH(bool, modified);
    QSignalSpy changes(actions(), &RowActions::modified);
    m_menus->choose(entry);
    rightClick(row, Column::Description);
    QTEST(order(), "order");
    QList<int> selected;
    for (const QModelIndex &index : table()->selectionModel()->selectedRows()) {
        selected.append(index.row());
    }
    QCOMPARE(selected, selectedRow < 0 ? QList<int>() : QList<int>{selectedRow});
    QCOMPARE(changes.count(), modified ? 1 : 0);
    QCOMPARE(m_boxes->texts(), QStringList());
}

void TestRowMenus::editHandsTheRowOut()
{
    QSignalSpy requested(actions(), &RowActions::editRequested);
    QSignalSpy changes(actions(), &RowActions::modified);
    rightClick(4, Column::Data);
    actions()->run(RowAction::Edit);
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0).at(0).toInt(), 4);
    QCOMPARE(changes.count(), 0);
}

void TestRowMenus::edgesAreTold_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("message");

    QTest::newRow("up") << "up" << 0 << "Has reached the top!";
    QTest::newRow("down") << "down" << 8 << "Has reached the bottom!";
}

void TestRowMenus::edgesAreTold()
{
    QFETCH(QString, entry);
    QFETCH(int, row);
    QFETCH(QString, message);
    QSignalSpy changes(actions(), &RowActions::modified);
    m_menus->choose(entry);
    rightClick(row, Column::Data);
    QCOMPARE(m_boxes->texts(), QStringList{message});
    QCOMPARE(m_boxes->titles(), QStringList{"Message"});
    QCOMPARE(order(), QString("012345678"));
    QCOMPARE(changes.count(), 1);
}

void TestRowMenus::theLastRowStays()
{
    table()->setRowCount(2);
    m_menus->choose("delete");
    rightClick(1, Column::Data);
    QCOMPARE(order(), QString("0"));
    rightClick(0, Column::Data);
    QCOMPARE(order(), QString("0"));
    QCOMPARE(m_boxes->texts(), QStringList{"Keep at least one line!"});
}

void TestRowMenus::boxesOfSelectedRowsAreSet()
{
    m_window->checkRow(6);
    table()->selectRow(2);
    table()->selectionModel()->select(table()->model()->index(4, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_menus->choose("select all");
    rightClick(0, Column::Select);
    for (int row = 0; row < 9; ++row) {
        QCOMPARE(isChecked(row), row == 2 || row == 4 || row == 6);
    }
    m_menus->choose("select none");
    rightClick(6, Column::Select);
    for (int row = 0; row < 9; ++row) {
        QCOMPARE(isChecked(row), row == 6);
    }
}

void TestRowMenus::cmdIsWrittenAndTheRowComputed_data()
{
    QTest::addColumn<QString>("cmd");

    for (const QString &cmd : cmdEntries) {
        QTest::newRow(qPrintable(cmd)) << cmd;
    }
}

void TestRowMenus::cmdIsWrittenAndTheRowComputed()
{
    QFETCH(QString, cmd);
    m_window->setRow(3, "77", "0300", "00 00 01");
    m_menus->choose(cmd);
    rightClick(3, Column::Cmd);
    QCOMPARE(table()->item(3, Column::Cmd)->text(), cmd);
    QCOMPARE(table()->item(3, Column::Crc)->text(), crcCellText(cmd + "0300000001"));
}

void TestRowMenus::aRowThatIsGoneIsLeftAlone_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("order");

    QTest::newRow("insert") << "insert"
                            << "01245678";
    QTest::newRow("clone") << "clone"
                           << "-01245678";
    QTest::newRow("delete") << "delete"
                            << "01245678";
    QTest::newRow("up") << "up"
                        << "01245678";
    QTest::newRow("down") << "down"
                          << "01245678";
    QTest::newRow("delay") << "delay"
                           << "01245678";
    QTest::newRow("CMD") << "10"
                         << "01245678";
}

void TestRowMenus::aRowThatIsGoneIsLeftAlone()
{
    QFETCH(QString, entry);
    const bool isCmd = cmdEntries.contains(entry);
    rightClick(3, isCmd ? Column::Cmd : Column::Data);
    table()->removeRow(3);
    QAction *action = this->entry(entry);
    const char *slot = isCmd ? "SlotCmdMenuClicked" : "SlotRegisterMenuClicked";
    QVERIFY(QMetaObject::invokeMethod(&m_window->window(), slot, Q_ARG(QAction *, action)));
    QTEST(order(), "order");
    for (int row = 0; row < table()->rowCount(); ++row) {
        QCOMPARE(table()->item(row, Column::Cmd)->text(), QString());
    }
}

void TestRowMenus::entriesAreKnownByPointerNotByText()
{
    rightClick(3, Column::Cmd);
    for (const char *text : {"insert", "select all", "10"}) {
        QAction action(text, nullptr);
        for (const char *slot :
             {"SlotRegisterMenuClicked", "SlotSelectMenuClicked", "SlotCmdMenuClicked"}) {
            QVERIFY(
                QMetaObject::invokeMethod(&m_window->window(), slot, Q_ARG(QAction *, &action)));
        }
    }
    QCOMPARE(order(), QString("012345678"));
    QCOMPARE(table()->item(3, Column::Cmd)->text(), QString());
}

void TestRowMenus::theWheelAppendsAtTheEnd()
{
    QSignalSpy changes(actions(), &RowActions::modified);
    m_window->window().resize(1024, 700);
    QCursor::setPos(m_window->window().mapToGlobal(table()->geometry().center()));
    table()->scrollToTop();
    QVERIFY(table()->verticalScrollBar()->maximum() > 0);
    turnWheel();
    QCOMPARE(order(), QString("012345678"));
    table()->scrollToBottom();
    turnWheel();
    QCOMPARE(order(), QString("012345678-"));
    QCOMPARE(table()->item(9, Column::DataType)->text(), QString("short"));
    QCOMPARE(changes.count(), 0);
}

void TestRowMenus::theWheelBesideTheTableAppendsNothing()
{
    table()->scrollToBottom();
    QCursor::setPos(m_window->window().mapToGlobal(
        QPoint(table()->geometry().right() + 2, table()->geometry().bottom() + 2)));
    turnWheel();
    QCOMPARE(order(), QString("012345678"));
}

void TestRowMenus::theWheelStopsAppendingAtTheLimit()
{
    auto *rows = m_window->window().findChild<CommandTable *>();
    rows->replaceRows(QVector<CommandRow>(512, emptyRow()));
    QCursor::setPos(m_window->window().mapToGlobal(table()->geometry().center()));
    table()->scrollToBottom();
    turnWheel();
    QCOMPARE(table()->rowCount(), 513);
    QVERIFY(!table()->signalsBlocked());
    table()->scrollToBottom();
    turnWheel();
    QCOMPARE(table()->rowCount(), 513);
    QVERIFY(table()->signalsBlocked());
}

void TestRowMenus::clearingLeavesNineEmptyRows()
{
    for (int i = 0; i < 11; ++i) {
        m_window->window().findChild<CommandTable *>()->insertDelayRow(0);
    }
    m_window->click("pushButton_ClearCommand");
    QCOMPARE(order(), QString("---------"));
    QCOMPARE(table()->item(8, Column::DataType)->text(), QString("short"));
    QCOMPARE(m_boxes->texts(), QStringList());
}

QTEST_MAIN(TestRowMenus)
#include "tst_rowmenus.moc"
