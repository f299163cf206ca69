#include "commands/rowtext.h"
#include "commands/tabtext.h"

#include <QtTest>

class TestRowText : public QObject
{
    Q_OBJECT

private slots:
    void aRowIsALine();
    void rowsComeBackAsTheyWere_data();
    void rowsComeBackAsTheyWere();
    void rowsComeBackFromASpreadsheet_data();
    void rowsComeBackFromASpreadsheet();
    void theTailMayBeMissing();
    void addressesAreBroughtIntoTheirForm_data();
    void addressesAreBroughtIntoTheirForm();
    void selectIsUnderstood_data();
    void selectIsUnderstood();
    void cellsAreKeptOnOneLine();
    void aBadCellIsNamed_data();
    void aBadCellIsNamed();
    void thereMayBeTooMuch();
};

namespace {

CommandRow fullRow()
{
    CommandRow row{"Read \"status\", all", true, "03", "0010", "00 02", {}, "short", "2", {}};
    row.crc = crcCellText(frameText(row));
    row.expectations = "//@ tarnwick-run 1\n//? 03 **\n//+ 00\n";
    return row;
}

QVector<CommandRow> variousRows()
{
    CommandRow delay = delayRow();
    CommandRow tricky = fullRow();
    tricky.description = "'=1+1";
    tricky.cmd = "1E";
    tricky.addr = "    ";
    tricky.data = "\"4\t5\" 05";
    tricky.crc = crcCellText(frameText(tricky));
    tricky.originalData = "-1,2";
    tricky.selected = false;
    CommandRow blank;
    return {fullRow(), delay, tricky, emptyRow(), blank};
}

/// What becomes of a text in a spreadsheet: numbers lose their form, rows end as Windows has them.
QString throughSpreadsheet(const QString &text, bool takesApostrophes)
{
    QString out;
    for (const QStringList &cells : readTabText(text).rows) {
        QStringList changed;
        for (QString cell : cells) {
            bool isNumber = false;
            const double number = cell.toDouble(&isNumber);
            if (isNumber) {
                cell = QString::number(number);
            } else if (takesApostrophes && cell.startsWith('\'')) {
                cell.remove(0, 1);
            } else if (cell.startsWith('=')) {
                cell = "#NAME?";
            }
            changed.append(cell);
        }
        out += tabLine(changed).chopped(1) + "\r\n";
    }
    return out;
}

} // namespace

void TestRowText::aRowIsALine()
{
    QCOMPARE(rowsText({fullRow()}),
             QString("\"Read \"\"status\"\", all\"\tselect\t'03\t'0010\t'00 02\t'%1\tshort\t'2\t"
                     "\"'//@ tarnwick-run 1\n//? 03 **\n//+ 00\n\"\n")
                 .arg(fullRow().crc));
    QCOMPARE(rowsText({emptyRow()}), QString("\tunselect\t\t\t\t\tshort\t\t\n"));
    QCOMPARE(rowsText({}), QString());
}

void TestRowText::rowsComeBackAsTheyWere_data()
{
    QTest::addColumn<int>("row");

    for (int row = 0; row < variousRows().size(); ++row) {
        QTest::addRow("%d", row) << row;
    }
}

void TestRowText::rowsComeBackAsTheyWere()
{
    QFETCH(int, row);
    const QVector<CommandRow> rows{variousRows().at(row), fullRow()};
    const PastedRows pasted = readRowsText(rowsText(rows));
    QCOMPARE(pasted.fault, QString());
    QVERIFY(pasted.rows == rows);
}

void TestRowText::rowsComeBackFromASpreadsheet_data()
{
    QTest::addColumn<bool>("takesApostrophes");

    QTest::newRow("that keeps apostrophes") << false;
    QTest::newRow("that takes them for its own") << true;
}

void TestRowText::rowsComeBackFromASpreadsheet()
{
    QFETCH(bool, takesApostrophes);
    QVector<CommandRow> rows = variousRows();
    // An apostrophe of its own goes with the one in front of it.
    rows[2].description = "=1+1";
    const PastedRows pasted = readRowsText(throughSpreadsheet(rowsText(rows), takesApostrophes));
    QCOMPARE(pasted.fault, QString());
    QVERIFY(pasted.rows == rows);
}

void TestRowText::theTailMayBeMissing()
{
    const PastedRows pasted = readRowsText("Name\n\tx\t03\nOther\tselect\t03\t0010\t01\r\n");
    QCOMPARE(pasted.fault, QString());
    QCOMPARE(pasted.rows.size(), 3);
    QCOMPARE(pasted.rows.at(0).description, QString("Name"));
    QVERIFY(!pasted.rows.at(0).selected);
    QCOMPARE(pasted.rows.at(0).dataType, QString());
    QVERIFY(pasted.rows.at(1).selected);
    QCOMPARE(pasted.rows.at(1).crc, crcCellText("03"));
    QCOMPARE(pasted.rows.at(2).data, QString("01"));
    QCOMPARE(pasted.rows.at(2).crc, crcCellText("03001001"));
}

void TestRowText::addressesAreBroughtIntoTheirForm_data()
{
    QTest::addColumn<QString>("cmd");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QString>("address");

    QTest::newRow("a number of a spreadsheet") << "03"
                                               << "10"
                                               << "0010";
    QTest::newRow("one digit") << "03"
                               << "'a"
                               << "000A";
    QTest::newRow("nothing") << "03"
                             << ""
                             << "";
    QTest::newRow("blanks") << "03"
                            << "    "
                            << "    ";
    QTest::newRow("blanks behind") << "03"
                                   << "01  "
                                   << "01  ";
    QTest::newRow("more than fit") << "03"
                                   << "0010FF"
                                   << "0010FF";
    QTest::newRow("a pause") << "++"
                             << "1"
                             << "1";
}

void TestRowText::addressesAreBroughtIntoTheirForm()
{
    QFETCH(QString, cmd);
    QFETCH(QString, cell);
    const PastedRows pasted = readRowsText("a\t\t" + cmd + '\t' + cell);
    QCOMPARE(pasted.fault, QString());
    QTEST(pasted.rows.first().addr, "address");
}

void TestRowText::selectIsUnderstood_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<bool>("selected");

    for (const char *word : {"select", "Select", "x", "X", "1", "TRUE", " true ", "'select"}) {
        QTest::newRow(word) << word << true;
    }
    for (const char *word : {"unselect", "", " ", "0", "FALSE", "'"}) {
        QTest::newRow(word) << word << false;
    }
}

void TestRowText::selectIsUnderstood()
{
    QFETCH(QString, cell);
    const PastedRows pasted = readRowsText("a\t" + cell + "\t03");
    QCOMPARE(pasted.fault, QString());
    QTEST(pasted.rows.first().selected, "selected");
}

void TestRowText::cellsAreKeptOnOneLine()
{
    const PastedRows pasted = readRowsText("\"a\r\nb\"\t\t03\t\t\"01\n02\"");
    QCOMPARE(pasted.rows.first().description, QString("a b"));
    QCOMPARE(pasted.rows.first().data, QString("01 02"));
}

void TestRowText::aBadCellIsNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fault");

    QTest::newRow("nothing") << "\n"
                             << "There are no rows to paste.";
    QTest::newRow("quote") << "a\n\"b"
                           << "Row 2, a quote is not closed.";
    QTest::newRow("Select") << "a\tyes"
                            << R"(Row 1, Select: neither "select" nor "unselect".)";
    QTest::newRow("CMD") << "a\tselect\t03\nb\tselect\t3"
                         << "Row 2, CMD: A digit is missing: each byte has two.";
    QTest::newRow("Addr") << "a\tselect\t03\tfirst"
                          << "Row 1, Addr: Not a hexadecimal number.";
    QTest::newRow("Data") << "a\t\t03\t0001\t0x01"
                          << "Row 1, Data: Not a hexadecimal number.";
    QTest::newRow("pause") << "a\t\t++\t\t1s"
                           << "Row 1, Data: Not a number of milliseconds.";
    QTest::newRow("expectations") << "a\t\t03\t\t\t\t\t\tabc"
                                  << "Row 1, Expectations: no expectation lines.";
    QTest::newRow("run line alone is one") << "a\t\t03\t\t\t\t\t\t\"//@ tarnwick-run 1\nb,03\""
                                           << "Row 1, Expectations: no expectation lines.";
    QTest::newRow("more") << "a\t\t03\t\t\t\t\t\t\tb"
                          << "Row 1, there are more cells than columns.";
}

void TestRowText::aBadCellIsNamed()
{
    QFETCH(QString, text);
    const PastedRows pasted = readRowsText(text);
    QVERIFY(pasted.rows.isEmpty());
    QTEST(pasted.fault, "fault");
}

void TestRowText::thereMayBeTooMuch()
{
    const QString most = "a\t\t03" + QString(mostRowsText - 5, '\t');
    QCOMPARE(readRowsText(most).fault, QString());
    QCOMPARE(readRowsText(most + '\t').fault,
             QString("There is more text than a command list can have."));
}

QTEST_APPLESS_MAIN(TestRowText)
#include "tst_rowtext.moc"
