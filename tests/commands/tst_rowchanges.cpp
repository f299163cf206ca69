#include "tablefixture.h"

#include <QSet>
#include <QSignalSpy>
#include <QtTest>

namespace Column = CommandColumn;

class TestRowChanges : public QObject
{
    Q_OBJECT

private slots:
    void emptyRowIsInserted();
    void insertionEndsBeyondIndex512();
    void delayRowIsInsertedWithSignals();
    void delayRowBeyondIndex512OverwritesNothing();
    void cloneCopiesEverything_data();
    void cloneCopiesEverything();
    void cloneOfNoRowIsBlank();
    void expectationsGoWithTheirRow();
    void moveMakesANewRow_data();
    void moveMakesANewRow();
    void movesEndAtTheEdges();
    void movesGoOnBeyondIndex512();
    void clearLeavesNineEmptyRows();
    void replacedRowsAreFilledUpToNine();
    void manyRowsAreReplaced();
    void missingItemsReadAsEmpty();
    void aRowIsTheSameWhereverItStands();
    void copiesAndNewRowsAreOthers();
    void aRowThatIsPutBackIsTheSame();
    void editedValueIsTakenOver_data();
    void editedValueIsTakenOver();
};

void TestRowChanges::emptyRowIsInserted()
{
    TableFixture f(3);
    f.rows.replaceRows({numberedRow(0), numberedRow(1), numberedRow(2)});
    QSignalSpy changed(&f.table, &QTableWidget::cellChanged);
    QVERIFY(f.rows.insertEmptyRow(1));
    QCOMPARE(changed.count(), 0);
    QVERIFY(!f.table.signalsBlocked());
    QCOMPARE(texts(f.rows.row(1)), emptyTexts());
    QCOMPARE(f.addresses().mid(0, 4), QStringList({"0", "", "1", "2"}));
}

void TestRowChanges::insertionEndsBeyondIndex512()
{
    TableFixture f(600);
    QVERIFY(f.rows.insertEmptyRow(512));
    QCOMPARE(f.rows.rowCount(), 601);
    QVERIFY(!f.table.signalsBlocked());
    QVERIFY(!f.rows.insertEmptyRow(513));
    QCOMPARE(f.rows.rowCount(), 601);
    QVERIFY(f.table.signalsBlocked());
    QVERIFY(f.rows.insertEmptyRow(0));
    QVERIFY(!f.table.signalsBlocked());
}

void TestRowChanges::delayRowIsInsertedWithSignals()
{
    TableFixture f;
    QSignalSpy changed(&f.table, &QTableWidget::cellChanged);
    f.rows.insertDelayRow(4);
    QCOMPARE(texts(f.rows.row(4)), QStringList({"Daley(ms)", "", "++", "", "1000", "", "", ""}));
    QVERIFY(changed.count() > 0);
    QCOMPARE(f.rows.rowCount(), 10);
}

void TestRowChanges::delayRowBeyondIndex512OverwritesNothing()
{
    TableFixture f(600);
    f.rows.insertDelayRow(513);
    QCOMPARE(f.rows.rowCount(), 600);
    QCOMPARE(texts(f.rows.row(513)), texts(numberedRow(513)));
    f.rows.cloneRow(512);
    QCOMPARE(f.rows.rowCount(), 600);
    QCOMPARE(texts(f.rows.row(513)), texts(numberedRow(513)));
}

void TestRowChanges::cloneCopiesEverything_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("selected") << 2;
    QTest::newRow("not selected") << 3;
    QTest::newRow("last") << 9;
}

void TestRowChanges::cloneCopiesEverything()
{
    QFETCH(int, row);
    TableFixture f(10);
    f.rows.cloneRow(row);
    QCOMPARE(f.rows.rowCount(), 11);
    QCOMPARE(texts(f.rows.row(row)), texts(numberedRow(row)));
    QCOMPARE(texts(f.rows.row(row + 1)), texts(numberedRow(row)));
    QVERIFY(f.table.cellWidget(row + 1, Column::Send) != nullptr);
}

void TestRowChanges::cloneOfNoRowIsBlank()
{
    TableFixture f(10);
    f.rows.cloneRow(-1);
    QCOMPARE(f.rows.rowCount(), 11);
    QCOMPARE(texts(f.rows.row(0)), QStringList({"", "", "", "", "", "", "", ""}));
}

void TestRowChanges::moveMakesANewRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("order");

    QTest::newRow("up") << 2 << true << "021345678";
    QTest::newRow("up to the top") << 1 << true << "102345678";
    QTest::newRow("last one up") << 8 << true << "012345687";
    QTest::newRow("down") << 2 << false << "013245678";
    QTest::newRow("down to the bottom") << 7 << false << "012345687";
    QTest::newRow("top one down") << 0 << false << "102345678";
}

void TestRowChanges::moveMakesANewRow()
{
    QFETCH(int, row);
    QFETCH(bool, up);
    QFETCH(QString, order);
    TableFixture f(9);
    QSignalSpy changed(&f.table, &QTableWidget::cellChanged);
    const QPointer<QWidget> button = f.table.cellWidget(row, Column::Send);
    QVERIFY(up ? f.rows.moveUp(row) : f.rows.moveDown(row));
    QCOMPARE(f.addresses().join(""), order);
    const int target = up ? row - 1 : row + 1;
    QCOMPARE(texts(f.rows.row(target)), texts(numberedRow(row)));
    QVERIFY(f.table.cellWidget(target, Column::Send) != button);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!f.table.signalsBlocked());
}

void TestRowChanges::movesEndAtTheEdges()
{
    TableFixture f(9);
    QVERIFY(!f.rows.moveUp(0));
    QVERIFY(!f.rows.moveDown(8));
    QVERIFY(f.rows.moveUp(-1));
    QVERIFY(f.rows.moveDown(-1));
    QCOMPARE(f.addresses().join(""), QString("012345678"));
}

void TestRowChanges::movesGoOnBeyondIndex512()
{
    TableFixture f(600);
    QVERIFY(f.rows.moveDown(550));
    QCOMPARE(f.addresses().mid(549, 3), QStringList({"549", "551", "550"}));
    QVERIFY(f.rows.moveUp(580));
    QCOMPARE(f.addresses().mid(579, 2), QStringList({"580", "579"}));
}

void TestRowChanges::clearLeavesNineEmptyRows()
{
    TableFixture f(20);
    f.rows.clear();
    QCOMPARE(f.rows.rowCount(), 9);
    for (const CommandRow &row : f.rows.rows()) {
        QCOMPARE(texts(row), emptyTexts());
    }
    QVERIFY(!f.table.signalsBlocked());
}

void TestRowChanges::replacedRowsAreFilledUpToNine()
{
    const TableFixture f(4);
    QCOMPARE(f.rows.rowCount(), 9);
    QCOMPARE(texts(f.rows.row(3)), texts(numberedRow(3)));
    QCOMPARE(texts(f.rows.row(4)), emptyTexts());
}

void TestRowChanges::manyRowsAreReplaced()
{
    TableFixture f(2000);
    QCOMPARE(f.rows.rowCount(), 2000);
    QCOMPARE(texts(f.rows.row(1999)), texts(numberedRow(1999)));
    QCOMPARE(f.rows.checkedRows().size(), 1000);
    QCOMPARE(f.rows.checkedRows().last().number, 1999);
    QCOMPARE(f.rows.checkedRows().last().frameText, QString("031998001998"));
    QVERIFY(f.table.updatesEnabled());
    QVERIFY(!f.table.signalsBlocked());
}

void TestRowChanges::missingItemsReadAsEmpty()
{
    TableFixture f;
    delete f.table.takeItem(0, Column::Data);
    f.table.removeCellWidget(0, Column::Select);
    QCOMPARE(texts(f.rows.row(0)), emptyTexts());
    QCOMPARE(texts(f.rows.row(-1)), QStringList({"", "", "", "", "", "", "", ""}));
    QCOMPARE(f.rows.currentFrameText(), QString());
}

void TestRowChanges::aRowIsTheSameWhereverItStands()
{
    TableFixture f(4);
    const int id = f.rows.row(2).id;
    QVERIFY(id != 0);
    QCOMPARE(f.rows.rowWithId(id), 2);
    f.rows.insertEmptyRow(0);
    QCOMPARE(f.rows.rowWithId(id), 3);
    f.rows.moveUp(3);
    QCOMPARE(f.rows.rowWithId(id), 2);
    f.rows.moveUp(2);
    f.rows.moveDown(1);
    f.rows.moveDown(2);
    QCOMPARE(f.rows.rowWithId(id), 3);
    f.table.removeRow(0);
    f.table.item(2, Column::Description)->setText("other");
    QCOMPARE(f.rows.rowWithId(id), 2);
    f.rows.setSelected(2, true);
    QCOMPARE(f.rows.checkedRows().at(1).id, id);
    f.table.setCurrentCell(2, Column::Cmd);
    QCOMPARE(f.rows.currentRow().id, id);
    f.table.removeRow(2);
    QCOMPARE(f.rows.rowWithId(id), -1);
    QCOMPARE(f.rows.rowWithId(0), -1);
}

void TestRowChanges::copiesAndNewRowsAreOthers()
{
    TableFixture f(2);
    f.rows.cloneRow(0);
    f.rows.insertDelayRow(0);
    f.rows.insertEmptyRow(f.rows.rowCount());
    QSet<int> ids;
    for (const CommandRow &row : f.rows.rows()) {
        QVERIFY(row.id != 0);
        ids.insert(row.id);
    }
    QCOMPARE(ids.size(), f.rows.rowCount());
    f.rows.clear();
    for (const CommandRow &row : f.rows.rows()) {
        QVERIFY(!ids.contains(row.id));
    }
}

void TestRowChanges::aRowThatIsPutBackIsTheSame()
{
    TableFixture f(3);
    const QVector<CommandRow> before = f.rows.rows();
    f.rows.clear();
    QCOMPARE(f.rows.rowWithId(before.at(1).id), -1);
    f.rows.replaceRows(before);
    QCOMPARE(f.rows.rowWithId(before.at(1).id), 1);
}

void TestRowChanges::editedValueIsTakenOver_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("cell");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("one pair") << "01"
                              << "01";
    QTest::newRow("pairs from the right") << "12345"
                                          << "1 23 45";
    QTest::newRow("three pairs") << "0000FF"
                                 << "00 00 FF";
}

void TestRowChanges::editedValueIsTakenOver()
{
    QFETCH(QString, data);
    QFETCH(QString, cell);
    TableFixture f(9);
    CommandRow edited;
    edited.cmd = "10";
    edited.addr = "0300";
    edited.data = data;
    edited.dataType = "INT";
    QSignalSpy changed(&f.table, &QTableWidget::cellChanged);
    f.rows.takeEdited(1, edited);
    QCOMPARE(texts(f.rows.row(1)),
             QStringList({"name 1", "", "10", "0300", cell, "crc1", "INT", "1"}));
    QCOMPARE(f.table.item(1, Column::Data)->textAlignment(), 129);
    QVERIFY(changed.count() > 0);
    f.rows.takeEdited(-1, edited);
    f.rows.takeEdited(9, edited);
    QCOMPARE(texts(f.rows.row(0)), texts(numberedRow(0)));
    QCOMPARE(f.rows.rowCount(), 9);
}

void TestRowChanges::expectationsGoWithTheirRow()
{
    const QString expected("//@ tarnwick-run 1\n//? 03 **\n");
    TableFixture f(3);
    CommandRow row = numberedRow(0);
    row.expectations = expected;
    f.rows.replaceRows({row, numberedRow(1), numberedRow(2)});
    QCOMPARE(f.rows.row(0).expectations, expected);
    QCOMPARE(f.table.item(0, Column::Description)->toolTip(), QString("//? 03 **"));
    f.rows.takeEdited(0, numberedRow(5));
    f.rows.cloneRow(0);
    QCOMPARE(f.rows.row(0).expectations, expected);
    QCOMPARE(f.rows.row(1).expectations, expected);
    QCOMPARE(f.rows.row(2).expectations, QString());
    QVERIFY(f.rows.moveDown(1));
    QCOMPARE(f.rows.row(1).expectations, QString());
    QCOMPARE(f.rows.row(2).expectations, expected);
    f.rows.replaceRows({numberedRow(1)});
    QCOMPARE(f.rows.row(0).expectations, QString());
    QCOMPARE(f.table.item(0, Column::Description)->toolTip(), QString());
}

QTEST_MAIN(TestRowChanges)
#include "tst_rowchanges.moc"
