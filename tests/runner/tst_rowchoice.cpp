#include "runner/rowchoice.h"

#include <QtTest>

class TestRowChoice : public QObject
{
    Q_OBJECT

private slots:
    void lists_data();
    void lists();
    void noLists_data();
    void noLists();
    void selectedAndAll();
};

void TestRowChoice::lists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<int>("highest");

    QTest::newRow("one") << "3" << QVector<int>{3} << 3;
    QTest::newRow("some") << "1,3-5" << QVector<int>{1, 3, 4, 5} << 5;
    QTest::newRow("out of order") << "6,2" << QVector<int>{2, 6} << 6;
    QTest::newRow("range of one") << "2-2" << QVector<int>{2} << 2;
    QTest::newRow("overlapping") << "1-3,2-4" << QVector<int>{1, 2, 3, 4} << 4;
}

void TestRowChoice::lists()
{
    QFETCH(QString, text);
    const std::optional<RowChoice> choice = RowChoice::listed(text);
    QVERIFY(choice);
    QVector<int> rows;
    for (int number = 1; number < 10; ++number) {
        if (choice->contains(number, false)) {
            rows.append(number);
        }
    }
    QTEST(rows, "rows");
    QTEST(choice->highest(), "highest");
}

void TestRowChoice::noLists_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", ",", "1,", "0", "-3", "3-", "5-3", "a", "1-2-3", "1 ,2", "+1", "99999999999"}) {
        QTest::newRow(text) << QString(text);
    }
}

void TestRowChoice::noLists()
{
    QFETCH(QString, text);
    QVERIFY(!RowChoice::listed(text));
}

void TestRowChoice::selectedAndAll()
{
    QVERIFY(RowChoice::selected().contains(1, true));
    QVERIFY(!RowChoice::selected().contains(1, false));
    QVERIFY(RowChoice::all().contains(1, false));
    QCOMPARE(RowChoice::all().highest(), 0);
}

QTEST_APPLESS_MAIN(TestRowChoice)

#include "tst_rowchoice.moc"
