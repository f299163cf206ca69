#include "commands/oneline.h"

#include <QtTest>

class TestOneLine : public QObject
{
    Q_OBJECT

private slots:
    void lineBreaksBecomeBlanks_data();
    void lineBreaksBecomeBlanks();
};

void TestOneLine::lineBreaksBecomeBlanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");

    QTest::newRow("none") << "a b"
                          << "a b";
    QTest::newRow("line feed") << "a\nb\n"
                               << "a b ";
    QTest::newRow("carriage return") << "a\rb"
                                     << "a b";
    QTest::newRow("both make one") << "a\r\nb"
                                   << "a b";
    QTest::newRow("two lines") << "a\n\nb"
                               << "a  b";
    QTest::newRow("Unicode's own") << QStringLiteral("a\u2028b\u2029c") << "a b c";
    QTest::newRow("a tab is none") << "a\tb"
                                   << "a\tb";
}

void TestOneLine::lineBreaksBecomeBlanks()
{
    QFETCH(QString, text);
    QTEST(onOneLine(text), "line");
}

QTEST_APPLESS_MAIN(TestOneLine)
#include "tst_oneline.moc"
