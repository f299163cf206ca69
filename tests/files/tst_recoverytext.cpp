#include "commandrows.h"
#include "files/commandfile.h"
#include "files/recoverytext.h"

#include <QtTest>

class TestRecoveryText : public QObject
{
    Q_OBJECT

private slots:
    void holdsAllOfARow_data();
    void holdsAllOfARow();
    void keepsTheOrderAndEmptyRows();
    void isACommandFileForOthers();
    void isToldFromOtherFiles();
    void brokenLinesAreSkipped_data();
    void brokenLinesAreSkipped();
    void mostRows();
};

namespace {

QStringList cellsOf(const CommandRow &row)
{
    return {row.description, row.selected ? "x" : "", row.cmd, row.addr, row.data, row.crc,
            row.dataType,    row.originalData};
}

CommandRow rowOf(const QString &description, const QString &cmd, const QString &addr,
                 const QString &data)
{
    CommandRow row = emptyRow();
    row.description = description;
    row.cmd = cmd;
    row.addr = addr;
    row.data = data;
    row.crc = crcCellText(frameText(row));
    return row;
}

} // namespace

void TestRecoveryText::holdsAllOfARow_data()
{
    QTest::addColumn<CommandRow>("row");

    QTest::newRow("empty") << emptyRow();
    QTest::newRow("command") << rowOf("Read status", "03", "0010", "00 02");
    QTest::newRow("delay") << delayRow();
    CommandRow full = rowOf("a", "03", "0010", "41 42");
    full.selected = true;
    full.dataType = "ASCII String";
    full.originalData = "AB\n\"C\\";
    QTest::newRow("typed value") << full;
    QTest::newRow("what other command files can't hold")
        << rowOf(QString::fromUtf8("// a,b,c \xE5\x91\xBD \xF0\x9F\x94\x8C\r\n"), "3", "10", "0");
    QTest::newRow("long") << rowOf(QString(300'000, 'x'), "03", "0010", QString(200'000, '1'));
}

void TestRecoveryText::holdsAllOfARow()
{
    QFETCH(CommandRow, row);
    const CommandFile file = readCommandFile(recoveryText({row}));
    QVERIFY(file.isRecovery);
    QVERIFY(!file.hasInvalidLines);
    QCOMPARE(file.rows.size(), 1);
    QCOMPARE(cellsOf(file.rows.first()), cellsOf(row));
}

void TestRecoveryText::keepsTheOrderAndEmptyRows()
{
    const QVector<CommandRow> rows{rowOf("a", {}, {}, {}), emptyRow(), rowOf("b", {}, {}, {})};
    const QVector<CommandRow> back = readCommandFile(recoveryText(rows)).rows;
    QCOMPARE(back.size(), 3);
    QCOMPARE(back.at(1).description, QString());
    QCOMPARE(back.at(2).description, QString("b"));
}

void TestRecoveryText::isACommandFileForOthers()
{
    QByteArray text = recoveryText({rowOf("Read status", "03", "0010", "00 02"), emptyRow()});
    // Without its first line it is like any other file.
    text.remove(0, text.indexOf('\n') + 1);
    const CommandFile file = readCommandFile(text);
    QVERIFY(!file.isRecovery);
    QVERIFY(!file.hasInvalidLines);
    QCOMPARE(file.rows.size(), 1);
    QCOMPARE(file.rows.first().description, QString("Read status"));
}

void TestRecoveryText::isToldFromOtherFiles()
{
    QVERIFY(isRecoveryText(recoveryText({})));
    QVERIFY(!isRecoveryText({}));
    QVERIFY(!isRecoveryText("// Tarnwick\n//row [\"a\",true,\"03\",\"0010\",\"\",\"\",\"\"]\n"));
}

void TestRecoveryText::brokenLinesAreSkipped_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("nothing") << QByteArray("//row ");
    QTest::newRow("cut off") << QByteArray(R"(//row ["a",true,"03")");
    QTest::newRow("too few cells") << QByteArray("//row [\"a\"]");
    QTest::newRow("no list") << QByteArray("//row {}");
    QTest::newRow("deep") << "//row " + QByteArray(100'000, '[');
    QTest::newRow("no row") << QByteArray("a,select,03 0010 00 02");
}

void TestRecoveryText::brokenLinesAreSkipped()
{
    QFETCH(QByteArray, line);
    const QByteArray text = recoveryText({}) + line + '\n';
    const CommandFile file = readCommandFile(text + recoveryText({rowOf("b", {}, {}, {})}));
    QCOMPARE(file.rows.size(), 1);
    QCOMPARE(file.rows.first().description, QString("b"));
}

void TestRecoveryText::mostRows()
{
    const QVector<CommandRow> most(mostCommandRows);
    QVERIFY(!readCommandFile(recoveryText(most)).hasTooManyRows);
    QVERIFY(readCommandFile(recoveryText(most + QVector<CommandRow>(1))).hasTooManyRows);
}

QTEST_APPLESS_MAIN(TestRecoveryText)
#include "tst_recoverytext.moc"
