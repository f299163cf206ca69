#include "commands/rowexchange.h"

#include <QtTest>

class TestRowExchange : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreExchangedAndBack_data();
    void rowsAreExchangedAndBack();
    void equalEndsAreLeftOut_data();
    void equalEndsAreLeftOut();
    void memoryIsCounted();
};

namespace {

/// A row for each letter.
QVector<CommandRow> rowsOf(const QString &letters)
{
    QVector<CommandRow> rows;
    for (const QChar letter : letters) {
        CommandRow row;
        row.description = letter;
        rows.append(row);
    }
    return rows;
}

QString lettersOf(const QVector<CommandRow> &rows)
{
    QString letters;
    for (const CommandRow &row : rows) {
        letters += row.description;
    }
    return letters;
}

} // namespace

void TestRowExchange::rowsAreExchangedAndBack_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("after");

    QTest::newRow("nothing") << 2 << 0 << ""
                             << "abcd";
    QTest::newRow("insertion") << 1 << 0 << "xyz"
                               << "axyzbcd";
    QTest::newRow("at the end") << 4 << 0 << "xy"
                                << "abcdxy";
    QTest::newRow("removal") << 1 << 2 << ""
                             << "ad";
    QTest::newRow("as many") << 0 << 2 << "xy"
                             << "xycd";
    QTest::newRow("more") << 3 << 1 << "xyz"
                          << "abcxyz";
    QTest::newRow("fewer") << 1 << 3 << "x"
                           << "ax";
    QTest::newRow("all") << 0 << 4 << "x"
                         << "x";
}

void TestRowExchange::rowsAreExchangedAndBack()
{
    QFETCH(int, row);
    QFETCH(int, removed);
    QFETCH(QString, rows);
    QVector<CommandRow> list = rowsOf("abcd");
    const RowExchange back = exchange(list, {row, removed, rowsOf(rows)});
    QTEST(lettersOf(list), "after");
    exchange(list, back);
    QCOMPARE(lettersOf(list), QString("abcd"));
}

void TestRowExchange::equalEndsAreLeftOut_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("rows");

    QTest::newRow("equal") << "abc"
                           << "abc" << 13 << 0 << "";
    QTest::newRow("one changed") << "abc"
                                 << "axc" << 11 << 1 << "x";
    QTest::newRow("inserted among equal ones") << "aa"
                                               << "aaa" << 12 << 0 << "a";
    QTest::newRow("removed") << "abcd"
                             << "ad" << 11 << 2 << "";
    QTest::newRow("moved") << "abcd"
                           << "acbd" << 11 << 2 << "cb";
    QTest::newRow("all") << "ab"
                         << "xyz" << 10 << 2 << "xyz";
}

void TestRowExchange::equalEndsAreLeftOut()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const RowExchange change = withoutEqualEnds({10, before.size(), rowsOf(after)}, rowsOf(before));
    QTEST(change.row, "row");
    QTEST(change.removed, "removed");
    QTEST(lettersOf(change.rows), "rows");
    QCOMPARE(isNothing(change), before == after);
}

void TestRowExchange::memoryIsCounted()
{
    QCOMPARE(memoryOf({}), qint64(0));
    const qint64 one = memoryOf(rowsOf("a"));
    QVERIFY(one >= qint64(sizeof(CommandRow)) + 2);
    QCOMPARE(memoryOf(rowsOf("ab")), 2 * one);
    CommandRow large;
    large.data = QString(1000, '0');
    QVERIFY(memoryOf({large}) >= 2000);
}

QTEST_APPLESS_MAIN(TestRowExchange)
#include "tst_rowexchange.moc"
