#include "links/serial/naturalorder.h"

#include <QStringList>
#include <QtTest>

#include <algorithm>

class TestNaturalOrder : public QObject
{
    Q_OBJECT

private slots:
    void firstStandsBeforeSecond_data();
    void firstStandsBeforeSecond();
    void nothingStandsBeforeItself_data();
    void nothingStandsBeforeItself();
    void orderIsTransitive();
    void namesAreSorted();
};

void TestNaturalOrder::firstStandsBeforeSecond_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");

    QTest::newRow("number by value") << "ttyS2"
                                     << "ttyS10";
    QTest::newRow("number at the front") << "9a"
                                         << "10a";
    QTest::newRow("second number decides") << "a2b9"
                                           << "a2b10";
    QTest::newRow("first number decides") << "a2b10"
                                          << "a10b2";
    QTest::newRow("letters by code") << "ttyACM9"
                                     << "ttyS0";
    QTest::newRow("upper case before lower case") << "B"
                                                  << "a";
    QTest::newRow("digit before letter") << "tty1"
                                         << "ttya";
    QTest::newRow("shorter one") << "tty"
                                 << "tty0";
    QTest::newRow("nothing before something") << ""
                                              << "0";
    QTest::newRow("zero before one") << "a0"
                                     << "a1";
    QTest::newRow("leading zeros don't count") << "a010"
                                               << "a11";
    QTest::newRow("leading zeros don't count, what follows does") << "a1a"
                                                                  << "a01b";
    QTest::newRow("same value: by text") << "a01"
                                         << "a1";
    QTest::newRow("beyond 64 bits") << "a99999999999999999998"
                                    << "a99999999999999999999";
    QTest::newRow("more digits beyond 64 bits") << "a99999999999999999999"
                                                << "a100000000000000000000";
}

void TestNaturalOrder::firstStandsBeforeSecond()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(naturallyBefore(first, second));
    QVERIFY(!naturallyBefore(second, first));
}

void TestNaturalOrder::nothingStandsBeforeItself_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << "";
    QTest::newRow("letters") << "tty";
    QTest::newRow("number") << "ttyS10";
    QTest::newRow("leading zeros") << "a007b";
}

void TestNaturalOrder::nothingStandsBeforeItself()
{
    QFETCH(QString, name);
    QVERIFY(!naturallyBefore(name, name));
}

void TestNaturalOrder::orderIsTransitive()
{
    const QStringList names{"",   "0",   "00",   "1",    "01",   "10",   "a",   "a0",  "a00",
                            "a1", "a01", "a1a",  "a01a", "a1b",  "a01b", "a10", "a2",  "b",
                            "a-", "a-1", "a1-2", "a1-1", "a01-", "A1",   "aa",  "a1a1"};
    for (const QString &a : names) {
        for (const QString &b : names) {
            QCOMPARE(naturallyBefore(a, b), a != b && !naturallyBefore(b, a));
            for (const QString &c : names) {
                QVERIFY(!naturallyBefore(a, b) || !naturallyBefore(b, c) || naturallyBefore(a, c));
            }
        }
    }
}

void TestNaturalOrder::namesAreSorted()
{
    QStringList names{"ttyUSB0", "ttyS11", "ttyS1", "ttyACM0", "ttyS2", "ttyS0"};
    std::sort(names.begin(), names.end(), naturallyBefore);
    QCOMPARE(names, QStringList({"ttyACM0", "ttyS0", "ttyS1", "ttyS2", "ttyS11", "ttyUSB0"}));
}

QTEST_APPLESS_MAIN(TestNaturalOrder)
#include "tst_naturalorder.moc"
