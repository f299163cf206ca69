#include "files/commandfile.h"

#include <QtTest>

class TestExpectationLines : public QObject
{
    Q_OBJECT

private slots:
    void stayWithTheirRows();
    void keepEachCharacter_data();
    void keepEachCharacter();
    void withoutTheRunLineCommentsAreDropped();
    void emptyRowsKeepNone();
};

void TestExpectationLines::stayWithTheirRows()
{
    const QByteArray bytes("//@ tarnwick-run 1 crc=on\n"
                           "Read,select,03 0010 00 02\n"
                           "//? 03 0010 ??  within 200  the reply\n"
                           "//! 8? **\n"
                           "Write,select,10 0020 01 F4\n"
                           "Echo,unselect,42 0000 01\n"
                           "//? 42 **\n");
    const CommandFile file = readCommandFile(bytes);
    QVERIFY(!file.hasInvalidLines);
    QCOMPARE(commandFileText(file.rows).toLatin1(), bytes);
    // Deleted or moved, a row takes its own along, and they count as before.
    QVector<CommandRow> rows = file.rows;
    rows.removeFirst();
    rows.move(1, 0);
    QCOMPARE(commandFileText(rows), QString("//@ tarnwick-run 1 crc=on\nEcho,unselect,42 0000 01\n"
                                            "//? 42 **\nWrite,select,10 0020 01 F4\n"));
    const QByteArray settingsOnly("//@ tarnwick-run 1\nRead,select,03 0010 00 02\n");
    QCOMPARE(commandFileText(readCommandFile(settingsOnly).rows).toLatin1(), settingsOnly);
}

void TestExpectationLines::keepEachCharacter_data()
{
    QTest::addColumn<QByteArray>("remark");
    QTest::addColumn<QString>("kept");
    QTest::newRow("a zero byte") << QByteArray("a\0b", 3) << QString("a%1b").arg(QChar(0));
    QTest::newRow("a zero byte at the end")
        << QByteArray("a\t\0", 3) << QString("a\t%1").arg(QChar(0));
    QTest::newRow("UTF-8") << QByteArray("\xC2\xB0"
                                         "C")
                           << QString::fromUtf8("°C");
    QTest::newRow("GBK") << QByteArray("\xB0\xA1") << QString::fromUtf8("啊");
}

void TestExpectationLines::keepEachCharacter()
{
    QFETCH(QByteArray, remark);
    QFETCH(QString, kept);
    const CommandFile file = readCommandFile(
        "//@ tarnwick-run 1 " + remark + "\nRead,select,03 0010 00 02\n//? 03  " + remark + "\r\n");
    const QString saved = commandFileText(file.rows);
    QCOMPARE(saved, QString("//@ tarnwick-run 1 " + kept + "\nRead,select,03 0010 00 02\n//? 03  " +
                            kept + "\n"));
    QCOMPARE(commandFileText(readCommandFile(saved.toUtf8()).rows), saved);
}

void TestExpectationLines::withoutTheRunLineCommentsAreDropped()
{
    const CommandFile file = readCommandFile("// A comment\n//? 99\nRead,select,03 0010 00 02\n"
                                             "//? 03\n//@ tarnwick-run 1\n//? 04\n");
    QCOMPARE(commandFileText(file.rows), QString("Read,select,03 0010 00 02\n"));
}

void TestExpectationLines::emptyRowsKeepNone()
{
    // The row is left out, and what stands behind it counts for no other.
    const CommandFile empty = readCommandFile("//@ tarnwick-run 1\n,unselect,%% %%%% \n//? 03\n");
    QCOMPARE(empty.rows.size(), 1);
    QCOMPARE(commandFileText(empty.rows), QString());
    const CommandFile mixed = readCommandFile("//@ tarnwick-run 1\n,unselect,%% %%%% \n//? 03\n"
                                              "Read,select,03 0010 00 02\n");
    QCOMPARE(commandFileText(mixed.rows),
             QString("//@ tarnwick-run 1\nRead,select,03 0010 00 02\n"));
}

QTEST_GUILESS_MAIN(TestExpectationLines)
#include "tst_expectationlines.moc"
