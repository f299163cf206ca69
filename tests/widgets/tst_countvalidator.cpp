#include "widgets/countvalidator.h"

#include <QLineEdit>
#include <QtTest>

class TestCountValidator : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void isAnIntValidatorFromZero();
    void judgesTexts_data();
    void judgesTexts();
    void fromABottomOn_data();
    void fromABottomOn();
    void separatorsAreRefusedInEveryLocale_data();
    void separatorsAreRefusedInEveryLocale();
};

void TestCountValidator::isAnIntValidatorFromZero()
{
    const CountValidator validator(10000);
    QCOMPARE(validator.bottom(), 0);
    QCOMPARE(validator.top(), 10000);
}

void TestCountValidator::judgesTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("nothing yet") << "" << QValidator::Intermediate;
    QTest::newRow("zero") << "0" << QValidator::Acceptable;
    QTest::newRow("top") << "10000" << QValidator::Acceptable;
    QTest::newRow("leading zeros") << "00500" << QValidator::Acceptable;
    QTest::newRow("one above") << "10001" << QValidator::Invalid;
    QTest::newRow("as many digits") << "99999" << QValidator::Invalid;
    QTest::newRow("more digits") << "100000" << QValidator::Invalid;
    QTest::newRow("more than an int") << "4294967296" << QValidator::Invalid;
    QTest::newRow("more than any integer") << QString("9").repeated(40) << QValidator::Invalid;
    QTest::newRow("minus") << "-" << QValidator::Invalid;
    QTest::newRow("minus zero") << "-0" << QValidator::Invalid;
    QTest::newRow("plus") << "+" << QValidator::Invalid;
    QTest::newRow("plus a number") << "+5" << QValidator::Invalid;
    QTest::newRow("blank") << " " << QValidator::Invalid;
    QTest::newRow("blank before") << " 5" << QValidator::Invalid;
    QTest::newRow("blank after") << "5 " << QValidator::Invalid;
    QTest::newRow("letter") << "1e3" << QValidator::Invalid;
    QTest::newRow("other digits") << QString::fromUtf8("١٢٣") << QValidator::Invalid;
    QTest::newRow("wide digits") << QString::fromUtf8("１２") << QValidator::Invalid;
}

void TestCountValidator::judgesTexts()
{
    QFETCH(QString, text);
    int position = 0;
    QTEST(CountValidator(10000).validate(text, position), "state");
}

void TestCountValidator::fromABottomOn_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("nothing yet") << 1 << "" << QValidator::Intermediate;
    QTest::newRow("zero") << 1 << "0" << QValidator::Invalid;
    QTest::newRow("leading zero") << 1 << "05" << QValidator::Invalid;
    QTest::newRow("bottom") << 1 << "1" << QValidator::Acceptable;
    QTest::newRow("top") << 1 << "500" << QValidator::Acceptable;
    QTest::newRow("one above") << 1 << "501" << QValidator::Invalid;
    QTest::newRow("below") << 20 << "5" << QValidator::Intermediate;
    QTest::newRow("higher bottom") << 20 << "20" << QValidator::Acceptable;
}

void TestCountValidator::fromABottomOn()
{
    QFETCH(int, bottom);
    QFETCH(QString, text);
    int position = 0;
    QTEST(CountValidator(bottom, 500).validate(text, position), "state");
}

void TestCountValidator::separatorsAreRefusedInEveryLocale_data()
{
    QTest::addColumn<QString>("separator");

    for (const char *locale : {"C", "de_DE", "zh_CN", "en_US", "de_CH", "fr_FR", "ar_EG"}) {
        for (const char *separator : {",", ".", "'", "’", " ", "\u00A0", "\u202F", "٬"}) {
            QTest::addRow("%s %s", locale, separator) << QString::fromUtf8(separator);
        }
    }
}

void TestCountValidator::separatorsAreRefusedInEveryLocale()
{
    QFETCH(QString, separator);
    QLocale::setDefault(QLocale(QString(QTest::currentDataTag()).section(' ', 0, 0)));
    CountValidator validator(10000);
    QLineEdit edit;
    edit.setValidator(&validator);
    QTest::keyClicks(&edit, "1");
    edit.insert(separator);
    QTest::keyClicks(&edit, "000");
    QCOMPARE(edit.text(), QString("1000"));
    QVERIFY(edit.hasAcceptableInput());
}

QTEST_MAIN(TestCountValidator)
#include "tst_countvalidator.moc"
