#include "files/messagefile.h"

#include <QtTest>

Q_DECLARE_METATYPE(MessageRow)

class TestMessageFile : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void text();
};

void TestMessageFile::lines_data()
{
    QTest::addColumn<MessageRow>("row");
    QTest::addColumn<QString>("line");

    QTest::newRow("all columns") << MessageRow{"1", "5A A5", "08", "03", "00 10", "00 01", "0A 84"}
                                 << QStringLiteral("1, 5A A5 08 03 00 10 00 01 0A 84");
    QTest::newRow("empty columns")
        << MessageRow{"2", "", "", "", "", "", ""} << QStringLiteral("2,      ");
    QTest::newRow("no number") << MessageRow{"", "a", "", "", "", "b", ""}
                               << QStringLiteral(", a    b ");
    QTest::newRow("all empty") << MessageRow{} << QStringLiteral(",      ");
    QTest::newRow("Uart") << MessageRow{"Uart", "a", "b", "c", "d", "e", "f"} << QString();
    QTest::newRow("UART") << MessageRow{"UART", "a", "", "", "", "", ""}
                          << QStringLiteral("UART, a     ");
    QTest::newRow("Uart and a blank")
        << MessageRow{"Uart ", "a", "", "", "", "", ""} << QStringLiteral("Uart , a     ");
    QTest::newRow("Uart elsewhere")
        << MessageRow{"3", "Uart", "", "", "", "", ""} << QStringLiteral("3, Uart     ");
}

void TestMessageFile::lines()
{
    QFETCH(MessageRow, row);
    QTEST(messageLine(row), "line");
}

void TestMessageFile::text()
{
    const QVector<MessageRow> rows = {{"1", "a", "b", "c", "d", "e", "f"},
                                      {"Uart", "a", "b", "c", "d", "e", "f"},
                                      {"2", "", "", "", "", "", ""}};
    QCOMPARE(messageFileText(rows), QStringLiteral("1, a b c d e f\n2,      \n"));
    QCOMPARE(messageFileText({}), QString());
}

QTEST_APPLESS_MAIN(TestMessageFile)
#include "tst_messagefile.moc"
