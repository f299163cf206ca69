#include "files/commandfile.h"
#include "runner/testfile.h"

#include <QtTest>

class TestTestFile : public QObject
{
    Q_OBJECT

private slots:
    void rowsHaveTheirExpectations();
    void withoutTheRunLineTheyAreComments();
    void aByteOrderMarkIsNoPartOfTheFirstLine();
    void faults_data();
    void faults();
    void allFaultsAreTold();
    void loadsLikeAnyCommandFile();
    void tooManyRows();
};

namespace {

const QByteArray testedList("//@ tarnwick-run 1 crc=on\r\n"
                            "// A comment.\n"
                            "Read,select,03 0010 00 02\n"
                            "//? 03 0010 ??  within 200\n"
                            "//? 83 **\n"
                            "//+ 10 **\n"
                            "//! 90 **\n"
                            "\n"
                            "Pause,select,++ 100\n"
                            "Write,unselect,10 0020 01 F4\n");

} // namespace

void TestTestFile::rowsHaveTheirExpectations()
{
    const TestFile file = readTestFile("list.txt", testedList);
    QVERIFY(file.faults.isEmpty());
    QCOMPARE(file.name, QString("list.txt"));
    QCOMPARE(file.settings.withCrc, std::optional(true));
    QCOMPARE(file.rows.size(), 3);
    const Expectation &expectation = file.rows.at(0).expectation;
    QCOMPARE(file.rows.at(0).number, 1);
    QCOMPARE(file.rows.at(0).line, 3);
    QCOMPARE(expectation.replies.size(), 2);
    QCOMPARE(expectation.replies.at(0).size(), 2);
    QCOMPARE(expectation.replies.at(0).at(0).withinMs, std::optional(200));
    QCOMPARE(expectation.replies.at(0).at(1).pattern.text(), QString("83 **"));
    QCOMPARE(expectation.replies.at(1).at(0).pattern.text(), QString("10 **"));
    QCOMPARE(expectation.forbidden.size(), 1);
    QVERIFY(file.rows.at(1).expectation.isEmpty());
    QVERIFY(file.rows.at(2).expectation.isEmpty());
    QCOMPARE(file.rows.at(2).number, 3);
    QCOMPARE(file.rows.at(2).line, 10);
}

void TestTestFile::withoutTheRunLineTheyAreComments()
{
    const TestFile file = readTestFile("list.txt", "//? nonsense\nRead,03 0010\n//? 03\n//+ x\n");
    QVERIFY(file.faults.isEmpty());
    QCOMPARE(file.rows.size(), 1);
    QVERIFY(file.rows.first().expectation.isEmpty());
}

void TestTestFile::aByteOrderMarkIsNoPartOfTheFirstLine()
{
    const TestFile file = readTestFile("list.txt", "\xEF\xBB\xBF" + testedList);
    QCOMPARE(file.settings.withCrc, std::optional(true));
}

void TestTestFile::faults_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("where");

    const auto row = [](const char *name, const char *text, const char *where) {
        QTest::newRow(name) << QByteArray(text) << QString(where);
    };
    row("bad bytes", "//@ tarnwick-run 1\nRead,03 0010\n//? 03 0G\n", "f:3:8: ");
    row("bad setting", "//@ tarnwick-run 1 crc\nRead,03 0010\n", "f:1:20: ");
    row("no row above", "//@ tarnwick-run 1\n//? 03\nRead,03 0010\n", "f:2:1: ");
    row("a pause above", "//@ tarnwick-run 1\nPause,++ 100\n//? 03\n", "f:3:1: ");
    row("further without a first", "//@ tarnwick-run 1\nRead,03 0010\n//+ 03\n", "f:3:1: ");
    row("run line behind a row", "Read,03 0010\n//@ tarnwick-run 1\n", "f:2:1: ");
    row("two run lines", "//@ tarnwick-run 1\n//@ tarnwick-run 1\nRead,03 0010\n", "f:2:1: ");
    row("no fields", "Read,03 0010\nnonsense\n", "f:2:1: ");
    row("too many fields", "a,b,c,d\n", "f:1:1: ");
}

void TestTestFile::faults()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, where);
    const TestFile file = readTestFile("f", text);
    QCOMPARE(file.faults.size(), 1);
    QVERIFY2(faultText(file.name, file.faults.first()).startsWith(where),
             qPrintable(faultText(file.name, file.faults.first())));
}

void TestTestFile::allFaultsAreTold()
{
    const TestFile file = readTestFile(
        "f", "//@ tarnwick-run 1\nnonsense\nRead,03 0010\nmore nonsense\n//? 0\n//? 03\n//+ 1\n");
    QVector<int> lines;
    for (const FileFault &fault : file.faults) {
        lines.append(fault.line);
    }
    QCOMPARE(lines, QVector<int>({2, 4, 5, 7}));
}

void TestTestFile::loadsLikeAnyCommandFile()
{
    const CommandFile loaded = readCommandFile(testedList);
    QVERIFY(!loaded.hasInvalidLines);
    QCOMPARE(loaded.rows.size(), 3);
}

void TestTestFile::tooManyRows()
{
    const QByteArray rows = QByteArray("Read,03 0010\n").repeated(mostCommandRows);
    QVERIFY(readTestFile("f", rows).faults.isEmpty());
    QCOMPARE(readTestFile("f", rows + "Read,03 0010\n").faults.size(), 1);
}

QTEST_APPLESS_MAIN(TestTestFile)

#include "tst_testfile.moc"
