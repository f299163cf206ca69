#include "rowbench.h"
#include "testfiles.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QtTest>

namespace Column = CommandColumn;

class TestRowMenus : public QObject
{
    Q_OBJECT

private slots:
    void menuDependsOnTheCell_data();
    void menuDependsOnTheCell();
    void noMenuOpensBesideTheRows();
    void menuOpensAtTheCursor();
    void editComesFirstWhereTheSettingsSaySo();
    void entriesAreKnownByPointerNotByText();
};

namespace {

const QStringList rowEntries{"insert", "clone", "delete", "up", "down", "delay"};
const QStringList selectEntries{"select all", "select none"};

QString settingsPath()
{
    return QCoreApplication::applicationDirPath() + "/debuggerConfig.ini";
}

} // namespace

void TestRowMenus::menuDependsOnTheCell_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("Description") << 0 << 0 << rowEntries;
    QTest::newRow("Select") << 0 << 1 << selectEntries;
    QTest::newRow("CMD") << 0 << 2 << cmdEntries();
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
    RowBench bench;
    bench.table()->item(1, Column::Cmd)->setText("++");
    bench.rightClick(row, column);
    QCOMPARE(bench.menus.entries(), entries);
    QCOMPARE(bench.menus.menuCount(), entries.isEmpty() ? 0 : 1);
}

void TestRowMenus::noMenuOpensBesideTheRows()
{
    RowBench bench;
    bench.table()->setRowCount(2);
    const QPoint below = bench.table()->viewport()->rect().bottomLeft() + QPoint(20, -5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, below);
    QCoreApplication::sendEvent(bench.table()->viewport(), &event);
    QCOMPARE(bench.menus.menuCount(), 0);
}

void TestRowMenus::menuOpensAtTheCursor()
{
    RowBench bench;
    QCursor::setPos(150, 170);
    bench.rightClick(0, Column::Addr);
    QCOMPARE(bench.menus.position(), QCursor::pos());
}

void TestRowMenus::editComesFirstWhereTheSettingsSaySo()
{
    writeFile(settingsPath(), "[set]\nisEditorFun=1\n");
    RowBench bench;
    QVERIFY(QFile::remove(settingsPath()));
    bench.rightClick(0, Column::Addr);
    QCOMPARE(bench.menus.entries(), QStringList{"edit"} + rowEntries);
}

void TestRowMenus::entriesAreKnownByPointerNotByText()
{
    RowBench bench;
    bench.rightClick(3, Column::Cmd);
    for (const char *text : {"insert", "select all", "10"}) {
        QAction action(text, nullptr);
        for (const char *slot :
             {"SlotRegisterMenuClicked", "SlotSelectMenuClicked", "SlotCmdMenuClicked"}) {
            QVERIFY(
                QMetaObject::invokeMethod(&bench.window.window(), slot, Q_ARG(QAction *, &action)));
        }
    }
    QCOMPARE(bench.order(), QString("012345678"));
    QCOMPARE(bench.table()->item(3, Column::Cmd)->text(), QString());
}

QTEST_MAIN(TestRowMenus)
#include "tst_rowmenus.moc"
