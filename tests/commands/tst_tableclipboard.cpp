#include "commands/rowtext.h"
#include "rowbench.h"

#include <QClipboard>
#include <QLabel>
#include <QtTest>

namespace Column = CommandColumn;

class TestTableClipboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void bytesBecomeData_data();
    void bytesBecomeData();
    void whatIsNoByteChangesNothing_data();
    void whatIsNoByteChangesNothing();
    void aPauseTakesNoBytes();
    void bytesNeedARow();
    void bytesTakeThePlaceOfWhatIsTyped();
    void bytesComeIntoARowFarAway();
    void selectedRowsAreCopied();
    void withoutASelectedRowNothingIsCopied();
    void copiedRowsArePastedBelow();
    void rowsArePastedOnTopWithoutACurrentRow();
    void aBadCellChangesNothing();
    void aFullTableTakesNoRows();
    void keysMeanTheTextInAnEditor();

private:
    QTableWidget *table() const { return m_bench->table(); }
    QString text(int row, int column) const { return table()->item(row, column)->text(); }
    bool isModified() const;
    void goTo(int row, int column) const;
    static void press(int key, int modifiers);
    static void paste(const QString &text);
    static void pasteBytes(const QString &text);
    QVector<int> selectedRows() const;

    std::unique_ptr<RowBench> m_bench;
};

void TestTableClipboard::init()
{
    m_bench = std::make_unique<RowBench>();
    m_bench->window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_bench->window.window()));
}

void TestTableClipboard::cleanup()
{
    m_bench.reset();
}

bool TestTableClipboard::isModified() const
{
    return m_bench->window.find<QLabel>("label_ListName")->text().endsWith('*');
}

void TestTableClipboard::goTo(int row, int column) const
{
    table()->setCurrentCell(row, column);
    table()->setFocus();
}

void TestTableClipboard::press(int key, int modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
}

void TestTableClipboard::paste(const QString &text)
{
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void TestTableClipboard::pasteBytes(const QString &text)
{
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, int(Qt::ControlModifier) | int(Qt::ShiftModifier));
}

QVector<int> TestTableClipboard::selectedRows() const
{
    QVector<int> rows;
    for (const QModelIndex &index : table()->selectionModel()->selectedRows()) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void TestTableClipboard::bytesBecomeData_data()
{
    QTest::addColumn<QString>("text");

    for (const char *text : {"0x10, 0x2a", "{0x10,0x2A}", "\\x10\\x2a", "10h 2Ah", "102a"}) {
        QTest::newRow(text) << text;
    }
}

void TestTableClipboard::bytesBecomeData()
{
    QFETCH(QString, text);
    table()->item(2, Column::Cmd)->setText("03");
    goTo(2, Column::Description);
    pasteBytes(text);
    QCOMPARE(this->text(2, Column::Data), QString("10 2A"));
    QCOMPARE(this->text(2, Column::Crc), crcCellText("03102A"));
    QCOMPARE(m_bench->order(), QString("012345678"));
    QVERIFY(isModified());
    QVERIFY(table()->hasFocus());
    QCOMPARE(m_bench->boxes.texts(), QStringList());
}

void TestTableClipboard::whatIsNoByteChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("words");

    QTest::newRow("nothing") << ""
                             << "There are no bytes to paste.";
    QTest::newRow("no byte") << "0x10, 0x1G"
                             << "Not bytes: \"0x1G\".";
    QTest::newRow("half a byte") << "0x10, 0x123"
                                 << "A digit is missing in \"0x123\": each byte has two.";
    QTest::newRow("mixed") << "0x10, 20"
                           << "\"20\" is written in another way than what is before it.";
    QTest::newRow("decimal?") << "[16, 32]"
                              << "[16, 32] may be decimal or hexadecimal: write 0x10 or 10h.";
    QTest::newRow("too long") << QString(2 * 65536, '1') << "More than 65535 bytes.";
}

void TestTableClipboard::whatIsNoByteChangesNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, words);
    goTo(2, Column::Data);
    pasteBytes(text);
    QCOMPARE(m_bench->boxes.texts(), QStringList{words});
    QCOMPARE(this->text(2, Column::Data), QString());
    QVERIFY(!isModified());
}

void TestTableClipboard::aPauseTakesNoBytes()
{
    m_bench->rows()->insertDelayRow(2);
    goTo(2, Column::Data);
    pasteBytes("0x10");
    QCOMPARE(m_bench->boxes.texts(),
             QStringList{"This row is a pause: its Data are milliseconds."});
    QCOMPARE(text(2, Column::Data), QString("1000"));
}

void TestTableClipboard::bytesNeedARow()
{
    goTo(2, Column::Data);
    table()->setCurrentCell(-1, -1);
    pasteBytes("0x10");
    QVERIFY(!isModified());
    QCOMPARE(m_bench->boxes.texts(), QStringList());
}

void TestTableClipboard::bytesTakeThePlaceOfWhatIsTyped()
{
    goTo(2, Column::Data);
    press(Qt::Key_F2, Qt::NoModifier);
    QTest::keyClicks(QApplication::focusWidget(), "77");
    pasteBytes("0x10");
    QCOMPARE(text(2, Column::Data), QString("10"));
    QVERIFY(table()->hasFocus());
}

void TestTableClipboard::bytesComeIntoARowFarAway()
{
    m_bench->rows()->replaceRows(QVector<CommandRow>(200, emptyRow()));
    goTo(150, Column::Description);
    table()->scrollToTop();
    pasteBytes("0x10");
    QVERIFY(table()->viewport()->rect().contains(
        table()->visualItemRect(table()->item(150, Column::Data))));
}

void TestTableClipboard::selectedRowsAreCopied()
{
    goTo(5, Column::Data);
    table()->selectionModel()->select(table()->model()->index(2, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             rowsText({m_bench->rows()->row(2), m_bench->rows()->row(5)}));
}

void TestTableClipboard::withoutASelectedRowNothingIsCopied()
{
    QApplication::clipboard()->setText("kept");
    goTo(5, Column::Data);
    table()->clearSelection();
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("kept"));
}

void TestTableClipboard::copiedRowsArePastedBelow()
{
    CommandRow row{"1st", true, "03", "0010", "01 02", {}, "int", "7", {}};
    row.crc = crcCellText(frameText(row));
    row.expectations = "//@ tarnwick-run 1\n//? 03 **\n";
    m_bench->rows()->replaceRows({row, delayRow(), emptyRow()});
    goTo(0, Column::Data);
    table()->setRangeSelected({0, 0, 1, Column::Count - 1}, true);
    press(Qt::Key_C, Qt::ControlModifier);
    goTo(2, Column::Addr);
    QVERIFY(!isModified());
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_bench->rows()->rowCount(), 11);
    QVERIFY(m_bench->rows()->row(3) == row);
    QVERIFY(m_bench->rows()->row(4) == delayRow());
    QCOMPARE(selectedRows(), (QVector<int>{3, 4}));
    QCOMPARE(table()->currentRow(), 3);
    QVERIFY(isModified());
    QVERIFY(table()->hasFocus());
    QVERIFY(!table()->signalsBlocked());
    // They are whole rows.
    QVERIFY(table()->cellWidget(4, Column::Send) != nullptr);
    QCOMPARE(table()->item(3, Column::Description)->toolTip(), QString("//? 03 **"));
}

void TestTableClipboard::rowsArePastedOnTopWithoutACurrentRow()
{
    goTo(2, Column::Data);
    table()->setCurrentCell(-1, -1);
    paste("new");
    QCOMPARE(m_bench->order(), QString("n012345678"));
}

void TestTableClipboard::aBadCellChangesNothing()
{
    goTo(2, Column::Data);
    paste("a\tselect\t03\nb\tselect\t3");
    QCOMPARE(m_bench->boxes.texts(),
             QStringList{"Row 2, CMD: A digit is missing: each byte has two."});
    QCOMPARE(m_bench->order(), QString("012345678"));
    QVERIFY(!isModified());
}

void TestTableClipboard::aFullTableTakesNoRows()
{
    m_bench->rows()->replaceRows(QVector<CommandRow>(511, emptyRow()));
    goTo(510, Column::Data);
    paste("a\nb\nc");
    QCOMPARE(table()->rowCount(), 511);
    QVERIFY(!isModified());
    const auto *status = m_bench->window.find<QLabel>("label_Status");
    QVERIFY2(status->text().contains("513"), qPrintable(status->text()));
    paste("a\nb");
    QCOMPARE(table()->rowCount(), 513);
    QVERIFY(isModified());
}

void TestTableClipboard::keysMeanTheTextInAnEditor()
{
    goTo(2, Column::Data);
    press(Qt::Key_F2, Qt::NoModifier);
    QTest::keyClicks(QApplication::focusWidget(), "77 88");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("77 88"));
    press(Qt::Key_End, Qt::NoModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(text(2, Column::Data), QString("77 8877 88"));
    QCOMPARE(m_bench->order(), QString("012345678"));
}

QTEST_MAIN(TestTableClipboard)
#include "tst_tableclipboard.moc"
