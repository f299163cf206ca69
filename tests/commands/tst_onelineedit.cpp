#include "commands/onelineedit.h"

#include <QLineEdit>
#include <QtTest>

class TestOneLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void lineBreaksBecomeBlanks_data();
    void lineBreaksBecomeBlanks();
    void theCursorStaysBehindWhatWasInserted();
};

void TestOneLineEdit::lineBreaksBecomeBlanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");

    QTest::newRow("none") << "a b"
                          << "a b";
    QTest::newRow("line feed") << "a\nb\n"
                               << "a b ";
    QTest::newRow("both make one") << "a\r\nb"
                                   << "a b";
    QTest::newRow("Unicode's own") << QStringLiteral("a\u2028b\u2029c") << "a b c";
    QTest::newRow("a tab is none") << "a\tb"
                                   << "a\tb";
}

void TestOneLineEdit::lineBreaksBecomeBlanks()
{
    QFETCH(QString, text);
    QLineEdit edit;
    keepOnOneLine(edit);
    edit.insert(text);
    QTEST(edit.text(), "line");
}

void TestOneLineEdit::theCursorStaysBehindWhatWasInserted()
{
    QLineEdit edit("ad");
    keepOnOneLine(edit);
    edit.setCursorPosition(1);
    edit.insert("b\r\nc");
    QCOMPARE(edit.text(), QString("ab cd"));
    QCOMPARE(edit.cursorPosition(), 4);
    QVERIFY(edit.isModified());
}

QTEST_MAIN(TestOneLineEdit)
#include "tst_onelineedit.moc"
