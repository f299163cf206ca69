#include "rowbench.h"

#include <QSignalSpy>
#include <QtTest>

namespace Column = CommandColumn;

class TestRowEntries : public QObject
{
    Q_OBJECT

private slots:
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
};

void TestRowEntries::entriesActOnTheClickedRow_data()
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

void TestRowEntries::entriesActOnTheClickedRow()
{
    QFETCH(QString, entry);
    QFETCH(int, row);
    QFETCH(int, selectedRow);
    QFETCH(bool, modified);
    RowBench bench;
    QSignalSpy changes(bench.actions(), &RowActions::modified);
    bench.menus.choose(entry);
    bench.rightClick(row, Column::Description);
    QTEST(bench.order(), "order");
    QList<int> selected;
    for (const QModelIndex &index : bench.table()->selectionModel()->selectedRows()) {
        selected.append(index.row());
    }
    QCOMPARE(selected, selectedRow < 0 ? QList<int>() : QList<int>{selectedRow});
    QCOMPARE(changes.count(), modified ? 1 : 0);
    QCOMPARE(bench.boxes.texts(), QStringList());
}

void TestRowEntries::editHandsTheRowOut()
{
    RowBench bench;
    QSignalSpy requested(bench.actions(), &RowActions::editRequested);
    QSignalSpy changes(bench.actions(), &RowActions::modified);
    bench.rightClick(4, Column::Data);
    bench.actions()->run(RowAction::Edit);
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0).at(0).toInt(), 4);
    QCOMPARE(changes.count(), 0);
}

void TestRowEntries::edgesAreTold_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("message");

    QTest::newRow("up") << "up" << 0 << "Has reached the top!";
    QTest::newRow("down") << "down" << 8 << "Has reached the bottom!";
}

void TestRowEntries::edgesAreTold()
{
    QFETCH(QString, entry);
    QFETCH(int, row);
    QFETCH(QString, message);
    RowBench bench;
    QSignalSpy changes(bench.actions(), &RowActions::modified);
    bench.menus.choose(entry);
    bench.rightClick(row, Column::Data);
    QCOMPARE(bench.boxes.texts(), QStringList{message});
    QCOMPARE(bench.boxes.titles(), QStringList{"Message"});
    QCOMPARE(bench.order(), QString("012345678"));
    QCOMPARE(changes.count(), 1);
}

void TestRowEntries::theLastRowStays()
{
    RowBench bench;
    bench.table()->setRowCount(2);
    bench.menus.choose("delete");
    bench.rightClick(1, Column::Data);
    QCOMPARE(bench.order(), QString("0"));
    bench.rightClick(0, Column::Data);
    QCOMPARE(bench.order(), QString("0"));
    QCOMPARE(bench.boxes.texts(), QStringList{"Keep at least one line!"});
}

void TestRowEntries::boxesOfSelectedRowsAreSet()
{
    RowBench bench;
    bench.window.checkRow(6);
    bench.table()->selectRow(2);
    bench.table()->selectionModel()->select(bench.table()->model()->index(4, 0),
                                            QItemSelectionModel::Select |
                                                QItemSelectionModel::Rows);
    bench.menus.choose("select all");
    bench.rightClick(0, Column::Select);
    for (int row = 0; row < 9; ++row) {
        QCOMPARE(bench.isChecked(row), row == 2 || row == 4 || row == 6);
    }
    bench.menus.choose("select none");
    bench.rightClick(6, Column::Select);
    for (int row = 0; row < 9; ++row) {
        QCOMPARE(bench.isChecked(row), row == 6);
    }
}

void TestRowEntries::cmdIsWrittenAndTheRowComputed_data()
{
    QTest::addColumn<QString>("cmd");

    for (const QString &cmd : cmdEntries()) {
        QTest::newRow(qPrintable(cmd)) << cmd;
    }
}

void TestRowEntries::cmdIsWrittenAndTheRowComputed()
{
    QFETCH(QString, cmd);
    RowBench bench;
    bench.window.setRow(3, "77", "0300", "00 00 01");
    bench.menus.choose(cmd);
    bench.rightClick(3, Column::Cmd);
    QCOMPARE(bench.table()->item(3, Column::Cmd)->text(), cmd);
    QCOMPARE(bench.table()->item(3, Column::Crc)->text(), crcCellText(cmd + "0300000001"));
}

void TestRowEntries::aRowThatIsGoneIsLeftAlone_data()
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

void TestRowEntries::aRowThatIsGoneIsLeftAlone()
{
    QFETCH(QString, entry);
    RowBench bench;
    const bool isCmd = cmdEntries().contains(entry);
    bench.rightClick(3, isCmd ? Column::Cmd : Column::Data);
    bench.table()->removeRow(3);
    QAction *action = bench.entry(entry);
    QVERIFY(action != nullptr);
    const char *slot = isCmd ? "SlotCmdMenuClicked" : "SlotRegisterMenuClicked";
    QVERIFY(QMetaObject::invokeMethod(&bench.window.window(), slot, Q_ARG(QAction *, action)));
    QTEST(bench.order(), "order");
    for (int row = 0; row < bench.table()->rowCount(); ++row) {
        QCOMPARE(bench.table()->item(row, Column::Cmd)->text(), QString());
    }
}

QTEST_MAIN(TestRowEntries)
#include "tst_rowentries.moc"
