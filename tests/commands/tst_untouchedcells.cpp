#include "cellbench.h"
#include "commands/commandtable.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QtTest>

namespace Column = CommandColumn;

class TestUntouchedCells : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void openingAndLeavingChangesNothing_data();
    void openingAndLeavingChangesNothing();
    void enterConfirmsAnAddress();
    void escapeAddsNothingToWhatWasTyped_data();
    void escapeAddsNothingToWhatWasTyped();
    void anAddressIsProposedOverBlanks();
    void noAddressIsProposedUnderBlanks();
    void blanksGiveWayToAnAddress();
    void typingGoesOnInTheMiddle_data();
    void typingGoesOnInTheMiddle();
    void pastedLineBreaksBecomeBlanks_data();
    void pastedLineBreaksBecomeBlanks();
    void closingTakesInTheOpenEdit_data();
    void closingTakesInTheOpenEdit();

private:
    QString text(int row, int column) const { return m_bench->text(row, column); }
    void leave(const QString &way) const;

    std::unique_ptr<CellBench> m_bench;
};

namespace {

/// As they come from a file: the first has no room for an address, the second one too short.
QVector<CommandRow> loadedRows()
{
    CommandRow blankAddress = emptyRow();
    blankAddress.cmd = "5A";
    blankAddress.addr = "    ";
    CommandRow shortAddress = blankAddress;
    shortAddress.addr = "01  ";
    shortAddress.data = "01 02";
    return {blankAddress, shortAddress};
}

QStringList allTexts(const CellBench &bench)
{
    QStringList texts;
    for (int row = 0; row < bench.table()->rowCount(); ++row) {
        for (int column = 0; column < Column::Count; ++column) {
            texts.append(bench.text(row, column));
        }
    }
    return texts;
}

} // namespace

void TestUntouchedCells::init()
{
    m_bench = std::make_unique<CellBench>();
    m_bench->window.window().findChild<CommandTable *>()->replaceRows(loadedRows());
}

void TestUntouchedCells::leave(const QString &way) const
{
    if (way == "focus") {
        m_bench->window.edit("lineEdit_SBytes")->setFocus();
    } else if (way == "click") {
        QTest::mouseClick(
            m_bench->table()->viewport(), Qt::LeftButton, {},
            m_bench->table()->visualRect(m_bench->table()->model()->index(5, 0)).center());
    } else if (way == "Tab") {
        CellBench::press(Qt::Key_Tab);
    } else if (way == "Backtab") {
        CellBench::press(Qt::Key_Backtab);
    } else if (way == "Enter") {
        CellBench::press(Qt::Key_Enter);
    } else {
        CellBench::press(Qt::Key_Escape);
    }
}

void TestUntouchedCells::openingAndLeavingChangesNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("way");

    for (const char *way : {"Escape", "focus", "click", "Tab", "Backtab", "Enter"}) {
        for (const int column : {int(Column::Description), int(Column::Cmd), int(Column::Addr),
                                 int(Column::Data), int(Column::Crc)}) {
            QTest::addRow("%s, blank row, %d", way, column) << 0 << column << way;
            if (column != Column::Addr || way != QLatin1String("Enter")) {
                QTest::addRow("%s, %d", way, column) << 1 << column << way;
            }
        }
    }
}

void TestUntouchedCells::openingAndLeavingChangesNothing()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, way);
    MessageBoxes boxes;
    const QStringList before = allTexts(*m_bench);
    QSignalSpy changed(m_bench->table(), &QTableWidget::cellChanged);
    QVERIFY(m_bench->edit(row, column) != nullptr);
    QVERIFY(m_bench->editedItem() != nullptr);
    leave(way);
    QTRY_VERIFY(!m_bench->table()->isPersistentEditorOpen(m_bench->table()->item(row, column)));
    QCOMPARE(allTexts(*m_bench), before);
    QCOMPARE(changed.count(), 0);
    boxes.takeTexts();
    m_bench->window.window().close();
    QCOMPARE(boxes.texts(), QStringList());
}

void TestUntouchedCells::enterConfirmsAnAddress()
{
    m_bench->edit(1, Column::Addr);
    CellBench::press(Qt::Key_Return);
    QCOMPARE(text(1, Column::Addr), QString("0001"));
}

void TestUntouchedCells::escapeAddsNothingToWhatWasTyped_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("after");

    QTest::newRow("Addr") << int(Column::Addr) << "1a";
    QTest::newRow("Data") << int(Column::Data) << "1a";
    QTest::newRow("Description is taken back") << int(Column::Description) << "";
}

void TestUntouchedCells::escapeAddsNothingToWhatWasTyped()
{
    QFETCH(int, column);
    m_bench->edit(3, column);
    CellBench::type("1a");
    CellBench::press(Qt::Key_Escape);
    QVERIFY(m_bench->editedItem() == nullptr);
    QTEST(text(3, column), "after");
}

void TestUntouchedCells::anAddressIsProposedOverBlanks()
{
    m_bench->table()->item(0, Column::Addr)->setText("000F");
    m_bench->table()->item(1, Column::Addr)->setText("    ");
    m_bench->edit(1, Column::Addr);
    CellBench::press(Qt::Key_Return);
    QCOMPARE(text(1, Column::Addr), QString("0010"));
}

void TestUntouchedCells::noAddressIsProposedUnderBlanks()
{
    m_bench->table()->item(1, Column::Addr)->setText({});
    m_bench->edit(1, Column::Addr);
    CellBench::press(Qt::Key_Return);
    QCOMPARE(text(1, Column::Addr), QString());
}

void TestUntouchedCells::blanksGiveWayToAnAddress()
{
    const QLineEdit *editor = m_bench->edit(0, Column::Addr);
    QCOMPARE(editor->text(), QString());
    CellBench::press(Qt::Key_End);
    CellBench::type("12345");
    CellBench::press(Qt::Key_Return);
    QCOMPARE(text(0, Column::Addr), QString("1234"));
}

void TestUntouchedCells::typingGoesOnInTheMiddle_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("Addr") << int(Column::Addr);
    QTest::newRow("Data") << int(Column::Data);
}

void TestUntouchedCells::typingGoesOnInTheMiddle()
{
    QFETCH(int, column);
    m_bench->edit(4, column);
    CellBench::type("14");
    CellBench::press(Qt::Key_Left);
    CellBench::type("23");
    CellBench::press(Qt::Key_Return);
    QCOMPARE(text(4, column), QString("1234"));
}

void TestUntouchedCells::pastedLineBreaksBecomeBlanks_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("Description") << int(Column::Description);
    QTest::newRow("CMD") << int(Column::Cmd);
    QTest::newRow("Data") << int(Column::Data);
    QTest::newRow("CRC") << int(Column::Crc);
}

void TestUntouchedCells::pastedLineBreaksBecomeBlanks()
{
    QFETCH(int, column);
    QApplication::clipboard()->setText("01\r\n02\n03\n");
    QLineEdit *editor = m_bench->edit(3, column);
    QTest::keySequence(editor, QKeySequence::Paste);
    QCOMPARE(editor->text(), QString("01 02 03 "));
    leave("Tab");
    if (column != Column::Crc) {
        QCOMPARE(text(3, column), QString("01 02 03 "));
    }
    for (const QString &cell : allTexts(*m_bench)) {
        QVERIFY(!cell.contains('\n') && !cell.contains('\r'));
    }
}

void TestUntouchedCells::closingTakesInTheOpenEdit_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("after");

    QTest::newRow("Description") << int(Column::Description) << "1a";
    QTest::newRow("CMD") << int(Column::Cmd) << "1a";
    QTest::newRow("Addr") << int(Column::Addr) << "001A";
    QTest::newRow("Data") << int(Column::Data) << "1a";
}

void TestUntouchedCells::closingTakesInTheOpenEdit()
{
    QFETCH(int, column);
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    QString whenAsked;
    connect(&boxes, &MessageBoxes::shown, this, [&] { whenAsked = text(3, column); });
    m_bench->edit(3, column);
    CellBench::type("1a");
    m_bench->window.window().close();
    QCOMPARE(boxes.texts(), QStringList{"Do you want to save your command?"});
    QTEST(whenAsked, "after");
}

QTEST_MAIN(TestUntouchedCells)
#include "tst_untouchedcells.moc"
