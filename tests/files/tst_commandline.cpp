#include "commandrows.h"
#include "files/commandline.h"
#include "frames/delaymarker.h"

#include <QtTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void ignoredLines_data();
    void ignoredLines();
    void fields_data();
    void fields();
    void placeholders_data();
    void placeholders();
    void frameFilter_data();
    void frameFilter();
    void cutting_data();
    void cutting();
    void delays_data();
    void delays();
    void crc_data();
    void crc();
    void shortDelaysComeBackAsTheyWere_data();
    void shortDelaysComeBackAsTheyWere();
    void leavesHiddenCellsEmpty();
    void invalid_data();
    void invalid();
    void written_data();
    void written();
    void notWritten_data();
    void notWritten();
};

namespace {

CommandRow rowOf(const QString &description, bool selected, const QString &cmd, const QString &addr,
                 const QString &data)
{
    CommandRow row;
    row.description = description;
    row.selected = selected;
    row.cmd = cmd;
    row.addr = addr;
    row.data = data;
    return row;
}

} // namespace

void TestCommandLine::ignoredLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("ignored");

    QTest::newRow("empty") << QString() << true;
    QTest::newRow("comment") << QStringLiteral("// a,b") << true;
    QTest::newRow("two slashes alone") << QStringLiteral("//") << true;
    QTest::newRow("one slash") << QStringLiteral("/a,5A") << false;
    QTest::newRow("slashes behind a blank") << QStringLiteral(" //a,5A") << false;
    QTest::newRow("a blank") << QStringLiteral(" ") << false;
}

void TestCommandLine::ignoredLines()
{
    QFETCH(QString, line);
    QTEST(isIgnoredLine(line), "ignored");
}

namespace {

void addParseColumns()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("description");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<QString>("cmd");
    QTest::addColumn<QString>("addr");
    QTest::addColumn<QString>("data");
}

void add(const char *name, const char *line, const char *description, bool selected,
         const char *cmd, const char *addr, const char *data)
{
    QTest::newRow(name) << QString::fromUtf8(line) << QString::fromUtf8(description) << selected
                        << QString::fromUtf8(cmd) << QString::fromUtf8(addr)
                        << QString::fromUtf8(data);
}

void checkParsedRow()
{
    QFETCH(QString, line);
    const std::optional<CommandRow> row = parseCommandLine(line);
    QVERIFY(row.has_value());
    QTEST(row->description, "description");
    QTEST(row->selected, "selected");
    QTEST(row->cmd, "cmd");
    QTEST(row->addr, "addr");
    QTEST(row->data, "data");
}

} // namespace

void TestCommandLine::fields_data()
{
    addParseColumns();
    add("three fields", "Read status,select,5A 0010 01 02", "Read status", true, "5A", "0010",
        "01 02");
    add("two fields", "Reset,5A001001", "Reset", false, "5A", "0010", "01");
    add("unselected", "a,unselect,5A001001", "a", false, "5A", "0010", "01");
    add("selection in capitals", "Test,Select,5A00010203", "Test", false, "5A", "0001", "02 03");
    add("selection behind a blank", "Test, select,5A0001", "Test", false, "5A", "0001", "");
    add("selection empty", "Test,,5A0001", "Test", false, "5A", "0001", "");
    add("blanks of the description", "  a b  ,5A0001", "  a b  ", false, "5A", "0001", "");
    add("description of any script", "读 é \"q\",5A0001", "读 é \"q\"", false, "5A", "0001", "");
}

void TestCommandLine::fields()
{
    checkParsedRow();
}

void TestCommandLine::placeholders_data()
{
    addParseColumns();
    add("only a description", "Reset,unselect,%% %%%% ", "Reset", false, "", "", "");
    add("empty address", "Row,unselect,5A %%%% 01", "Row", false, "5A", "", "01");
    add("empty CMD", "Row,unselect,%% 0010 01", "Row", false, "", "0010", "01");
    add("a placeholder elsewhere", "Row,5A 0010 %% %%", "Row", false, "5A", "0010", "%% %%");
    add("half a placeholder", "Row,%5 %%%0 01", "Row", false, "%5", "%%%0", "01");
}

void TestCommandLine::placeholders()
{
    checkParsedRow();
}

void TestCommandLine::frameFilter_data()
{
    addParseColumns();
    add("remark in parentheses", "X,5A 0001 0102 (read two bytes)", "X", false, "5A", "0001",
        "01 02");
    add("nothing counts behind a parenthesis", "X,5A0001(a)02", "X", false, "5A", "0001", "");
    add("remark beyond ASCII", "X,5A0001 01é02", "X", false, "5A", "0001", "01");
    add("the last ASCII character is dropped",
        "X,5A0001 01\x7F"
        "02",
        "X", false, "5A", "0001", "01 02");
    add("punctuation is dropped", "X,5A/00-01:0\t1;\"2\")3*", "X", false, "5A", "0001", "01 23");
    add("letters of both cases stay", "X,zZ00gG aZ", "X", false, "zZ", "00gG", "aZ");
    add("digits at the ends of their range", "X,09 AZaz 0", "X", false, "09", "AZaz", "0");
    add("plus signs stay", "X,5+ +++1 +2", "X", false, "5+", "+++1", "+2");
}

void TestCommandLine::frameFilter()
{
    checkParsedRow();
}

void TestCommandLine::cutting_data()
{
    addParseColumns();
    add("data of one character", "X,5A00010", "X", false, "5A", "0001", "0");
    add("data of two", "X,5A000101", "X", false, "5A", "0001", "01");
    add("data of three", "X,5A0001010", "X", false, "5A", "0001", "0 10");
    add("data of seven", "X,5A00010102030", "X", false, "5A", "0001", "0 10 20 30");
    add("data of eight", "X,5A000101020304", "X", false, "5A", "0001", "01 02 03 04");

    add("short address", "X,5A01", "X", false, "5A", "01  ", "");
    add("CMD alone", "X,5A", "X", false, "5A", "    ", "");
    add("half a CMD", "X,5", "X", false, "5 ", "    ", "");
    add("no frame", "X,", "X", false, "  ", "    ", "");
    add("nothing but the separator", ",", "", false, "  ", "    ", "");
}

void TestCommandLine::cutting()
{
    checkParsedRow();
}

void TestCommandLine::delays_data()
{
    addParseColumns();
    add("delay", "Daley(ms),unselect,++  1000", "Daley(ms)", false, "++", "", "1000");
    add("delay of three digits", "d,++500", "d", false, "++", "", "500 ");
    add("delay of one digit", "d,select,++  5", "d", true, "++", "", "5   ");
    add("delay without a number", "d,++", "d", false, "++", "", "    ");
    add("delay of five digits", "d,++  12345", "d", false, "++", "", "1234");
    add("delay and data", "d,++ 0100 01 02", "d", false, "++", "", "0100");
}

void TestCommandLine::delays()
{
    checkParsedRow();
}

void TestCommandLine::shortDelaysComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("milliseconds");

    QTest::newRow("three digits") << QStringLiteral("d,select,++500") << 500;
    QTest::newRow("one digit") << QStringLiteral("d,select,++7") << 7;
    QTest::newRow("four digits") << QStringLiteral("d,select,++  1000") << 1000;
    QTest::newRow("no digit") << QStringLiteral("d,select,++") << 0;
}

void TestCommandLine::shortDelaysComeBackAsTheyWere()
{
    QFETCH(QString, line);
    const std::optional<CommandRow> row = parseCommandLine(line);
    QVERIFY(row.has_value());
    QTEST(delayMilliseconds(frameText(*row)), "milliseconds");
    QCOMPARE(commandLine(*row), line);
}

void TestCommandLine::crc_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("crc");

    QTest::newRow("high byte first")
        << QStringLiteral("a,01 0300 00 00 01") << QStringLiteral("0A 84");
    QTest::newRow("without CMD") << QStringLiteral("a,%% 0103 00 00 00 01")
                                 << QStringLiteral("0A 84");
    QTest::newRow("nothing to send") << QStringLiteral("a,%% %%%% ") << QString();
    QTest::newRow("only blanks") << QStringLiteral("a,") << QString();
    QTest::newRow("delay") << QStringLiteral("a,++  1000") << QString();
}

void TestCommandLine::crc()
{
    QFETCH(QString, line);
    QTEST(parseCommandLine(line)->crc, "crc");
}

void TestCommandLine::leavesHiddenCellsEmpty()
{
    for (const QString &line : {QStringLiteral("a,5A0001"), QStringLiteral("a,++  1000")}) {
        const std::optional<CommandRow> row = parseCommandLine(line);
        QVERIFY(row->dataType.isEmpty());
        QVERIFY(row->originalData.isEmpty());
    }
}

void TestCommandLine::invalid_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("one field") << QStringLiteral("5A 0001");
    QTest::newRow("four fields") << QStringLiteral("a,b,c,d");
    QTest::newRow("four empty fields") << QStringLiteral(",,,");
    QTest::newRow("five fields") << QStringLiteral("a,select,5A0001,b,c");
    QTest::newRow("another comma") << QStringLiteral("a，5A0001");
}

void TestCommandLine::invalid()
{
    QFETCH(QString, line);
    QVERIFY(!parseCommandLine(line));
}

void TestCommandLine::written_data()
{
    QTest::addColumn<CommandRow>("row");
    QTest::addColumn<QString>("line");

    const auto add = [](const char *name, const CommandRow &row, const char *line) {
        QTest::newRow(name) << row << QString::fromUtf8(line);
    };

    add("all cells", rowOf("Read status", true, "5A", "0010", "01 02"),
        "Read status,select,5A 0010 01 02");
    add("unselected", rowOf("a", false, "5A", "0010", "01"), "a,unselect,5A 0010 01");
    add("only a description", rowOf("Name", false, "", "", ""), "Name,unselect,%% %%%% ");
    add("a selected description", rowOf("Name", true, "", "", ""), "Name,select,%% %%%% ");
    add("no address", rowOf("Row", false, "5A", "", "01"), "Row,unselect,5A %%%% 01");
    add("no CMD", rowOf("Row", false, "", "0010", "01"), "Row,unselect,%% 0010 01");
    add("no description", rowOf("", true, "5A", "", ""), ",select,5A %%%% ");
    add("only data", rowOf("", false, "", "", "01"), ",unselect,%% %%%% 01");
    add("only a blank", rowOf("", false, "", "", " "), ",unselect,%% %%%%  ");
    add("blanks of the data", rowOf(" a ", false, "5A", "0010", " 1  2 "),
        " a ,unselect,5A 0010  1  2 ");
    add("a comma", rowOf("a,b", false, "5A", "0010", ""), "a,b,unselect,5A 0010 ");
    add("delay", delayRow(), "Daley(ms),unselect,++  1000");
    add("delay filled up with blanks", rowOf("d", false, "++", "", "500 "), "d,unselect,++500");
    add("delay of blanks", rowOf("d", false, "++", "", "    "), "d,unselect,++");
    add("delay as typed", rowOf("d", false, "++", "", "500"), "d,unselect,++  500");
    add("delay with an address", rowOf("d", false, "++", "0010", "5"), "d,unselect,++ 0010 5");
    add("CMD that begins like a delay", rowOf("d", false, "++1", "", "5"), "d,unselect,++1 %%%% 5");
    add("description of any script", rowOf(QStringLiteral("读 é"), false, "5A", "0010", ""),
        "读 é,unselect,5A 0010 ");
}

void TestCommandLine::written()
{
    QFETCH(CommandRow, row);
    QTEST(commandLine(row), "line");
}

void TestCommandLine::notWritten_data()
{
    QTest::addColumn<CommandRow>("row");

    QTest::newRow("untouched") << emptyRow();
    QTest::newRow("selected") << rowOf("", true, "", "", "");
    QTest::newRow("the placeholders as they stand") << rowOf("", false, "%%", "%%%%", "");
}

void TestCommandLine::notWritten()
{
    QFETCH(CommandRow, row);
    QCOMPARE(commandLine(row), QString());
}

QTEST_APPLESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
