#include "commands/tabtext.h"

#include <QtTest>

class TestTabText : public QObject
{
    Q_OBJECT

private slots:
    void cellsAreRead_data();
    void cellsAreRead();
    void anOpenQuoteIsFound_data();
    void anOpenQuoteIsFound();
    void linesAreReadBack_data();
    void linesAreReadBack();
};

void TestTabText::cellsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<QStringList>>("rows");

    using Rows = QVector<QStringList>;
    QTest::newRow("nothing") << "" << Rows();
    QTest::newRow("blank lines") << "\n\r\n\r" << Rows();
    QTest::newRow("a cell") << "a" << Rows{{"a"}};
    QTest::newRow("a row") << "a\tb\tc\n" << Rows{{"a", "b", "c"}};
    QTest::newRow("empty cells") << "\t\t\n" << Rows{{"", "", ""}};
    QTest::newRow("line ends") << "a\r\nb\nc\rd" << Rows{{"a"}, {"b"}, {"c"}, {"d"}};
    QTest::newRow("a blank line between") << "a\r\n\r\nb\r\n" << Rows{{"a"}, {"b"}};
    QTest::newRow("a blank") << " \n" << Rows{{" "}};
    QTest::newRow("quotes") << "\"a\tb\"\t\"c\r\nd\"\n" << Rows{{"a\tb", "c\r\nd"}};
    QTest::newRow("doubled quotes") << "\"a\"\"b\"\t\"\"\"\"\n" << Rows{{"a\"b", "\""}};
    QTest::newRow("empty quotes") << "\"\"\tb\n" << Rows{{"", "b"}};
    QTest::newRow("a quote later on") << "a\"b\tc\n" << Rows{{"a\"b", "c"}};
    QTest::newRow("text behind quotes") << "\"a\"b\tc\n" << Rows{{"ab", "c"}};
}

void TestTabText::cellsAreRead()
{
    QFETCH(QString, text);
    const TabText read = readTabText(text);
    QTEST(read.rows, "rows");
    QCOMPARE(read.openQuoteRow, 0);
}

void TestTabText::anOpenQuoteIsFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");

    QTest::newRow("only a quote") << "\"" << 1;
    QTest::newRow("later") << "a\n\n\"b\"\t\"c\nd" << 2;
    QTest::newRow("a doubled one at the end") << R"("a"")" << 1;
}

void TestTabText::anOpenQuoteIsFound()
{
    QFETCH(QString, text);
    QTEST(readTabText(text).openQuoteRow, "row");
}

void TestTabText::linesAreReadBack_data()
{
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<QString>("line");

    QTest::newRow("plain") << QStringList{"a", "", "b c"} << "a\t\tb c\n";
    QTest::newRow("tab") << QStringList{"a\tb"} << "\"a\tb\"\n";
    QTest::newRow("line ends") << QStringList{"a\nb", "c\rd"} << "\"a\nb\"\t\"c\rd\"\n";
    QTest::newRow("quotes") << QStringList{"\"a\"", "b\""} << "\"\"\"a\"\"\"\t\"b\"\"\"\n";
}

void TestTabText::linesAreReadBack()
{
    QFETCH(QStringList, cells);
    QFETCH(QString, line);
    QCOMPARE(tabLine(cells), line);
    QCOMPARE(readTabText(line).rows, QVector<QStringList>{cells});
}

QTEST_APPLESS_MAIN(TestTabText)
#include "tst_tabtext.moc"
