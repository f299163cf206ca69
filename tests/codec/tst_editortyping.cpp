#include "editordriver.h"

#include <QSignalSpy>
#include <QtTest>

class TestEditorTyping : public QObject
{
    Q_OBJECT

private slots:
    void typedValuesBecomeHex_data();
    void typedValuesBecomeHex();
    void clearingClearsHex();
    void longValuesStayWhole();
    void originalDataChangeShowsIntHex();

    void anotherTypeReadsTheSameBytes();
    void anotherEncodingReadsTheSameBytes();
    void encodingsAreForStringsOnly();
    void editingALoadedStringReplacesItsTerminator();

    void unencodableIsToldOnce();
    void unencodableIsToldAgainAfterALoad();
    void numbersAreNeverUnencodable();
};

void TestEditorTyping::typedValuesBecomeHex_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("hex");

    const auto row = [](const char *type, const char *encoding, const char *typed,
                        const char *hex) {
        QTest::newRow(qPrintable(QString("%1 %2 %3").arg(type, encoding, typed)))
            << QString(type) << QString(encoding) << QString::fromUtf8(typed) << QString(hex);
    };
    row("int", "", "1,-1", "00 00 00 01 FF FF FF FF");
    row("uint", "", "305419896", "12 34 56 78");
    row("char", "", "-1", "00 FF");
    row("uchar", "", "255", "00 FF");
    row("short", "", "1,,2", "00 01 00 00 00 02");
    row("ushort", "", "65535", "FF FF");
    row("longlong", "", "1", "00 00 00 00 00 00 00 01");
    row("int", "", "nonsense", "00 00 00 00");
    row("string", "GB2312", "AB", "41 42 00 00");
    row("string", "GB2312", "A", "41 00");
    row("string", "GB2312", "啊", "B0 A1 00 00");
    row("string", "GBK", "镕A", "E9 46 41 00");
    row("string", "Unicode", "A", "00 41 00 00");
    row("string", "Unicode", "%%1%%", "00 25 00 25 00 31 00 25 00 25 00 00");
}

void TestEditorTyping::typedValuesBecomeHex()
{
    QFETCH(QString, type);
    QFETCH(QString, encoding);
    QFETCH(QString, typed);
    EditorDriver driver;
    driver.show();
    driver.chooseType(type);
    if (!encoding.isEmpty()) {
        driver.chooseEncoding(encoding);
    }
    QSignalSpy hexChanges(driver.hex(), &QLineEdit::textChanged);
    driver.type(typed);
    QTEST(driver.hex()->text(), "hex");
    QCOMPARE(hexChanges.count(), 0);
}

void TestEditorTyping::clearingClearsHex()
{
    EditorDriver driver;
    driver.show();
    for (const QString type : {"int", "string"}) {
        driver.chooseType(type);
        driver.type("12");
        QVERIFY(!driver.hex()->text().isEmpty());
        QTest::keyClick(driver.value(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(driver.value(), Qt::Key_Delete);
        QCOMPARE(driver.value()->text(), QString());
        QCOMPARE(driver.hex()->text(), QString());
    }
}

void TestEditorTyping::longValuesStayWhole()
{
    EditorDriver driver;
    const QString digits = QString("00000001").repeated(20000);
    driver.load(digits, "int");
    QCOMPARE(driver.value()->text().count(','), 19999);
    driver.value()->setText(driver.value()->text() + ",2");
    driver.editor().on_pushButton_ok_clicked();
    QCOMPARE(driver.editor().editData, digits + "00000002");
}

void TestEditorTyping::originalDataChangeShowsIntHex()
{
    EditorDriver driver;
    driver.load("", "string");
    driver.value()->setText("258");
    QVERIFY(QMetaObject::invokeMethod(&driver.editor(), "on_originalDataChange"));
    QCOMPARE(driver.value()->text(), QString("00 00 01 02"));
}

void TestEditorTyping::anotherTypeReadsTheSameBytes()
{
    EditorDriver driver;
    driver.load("00 00 00 01", "int");
    driver.show();
    QCOMPARE(driver.value()->text(), QString("1"));
    QSignalSpy valueChanges(driver.value(), &QLineEdit::textChanged);
    driver.chooseType("short");
    QCOMPARE(driver.value()->text(), QString("0,1"));
    driver.chooseType("longlong");
    QCOMPARE(driver.value()->text(), QString("1"));
    driver.chooseType("uchar");
    QCOMPARE(driver.value()->text(), QString("0,1"));
    driver.chooseType("int");
    QCOMPARE(driver.value()->text(), QString("1"));
    QCOMPARE(driver.hex()->text(), QString("00 00 00 01"));
    QCOMPARE(valueChanges.count(), 0);
}

void TestEditorTyping::anotherEncodingReadsTheSameBytes()
{
    EditorDriver driver;
    driver.load("55 4A 00 00", "Unicode");
    driver.show();
    QCOMPARE(driver.value()->text(), QString::fromUtf8("啊"));
    driver.chooseEncoding("GBK");
    QCOMPARE(driver.value()->text(), QString("UJ"));
    driver.chooseEncoding("Unicode");
    QCOMPARE(driver.value()->text(), QString::fromUtf8("啊"));
    QCOMPARE(driver.hex()->text(), QString("55 4A 00 00"));
}

void TestEditorTyping::encodingsAreForStringsOnly()
{
    EditorDriver driver;
    driver.show();
    for (int i = 0; i < driver.types()->count(); ++i) {
        driver.types()->setCurrentIndex(i);
        QCOMPARE(driver.encodings()->isEnabled(), driver.types()->currentText() == "string");
    }
    driver.types()->setCurrentIndex(0);
    QVERIFY(!driver.encodings()->isEnabled());
}

void TestEditorTyping::editingALoadedStringReplacesItsTerminator()
{
    EditorDriver driver;
    driver.load("41 00", "GB2312");
    driver.show();
    QCOMPARE(driver.value()->text(), QString("A"));
    driver.value()->setFocus();
    QTest::keyClick(driver.value(), Qt::Key_End);
    driver.type("B");
    QCOMPARE(driver.hex()->text(), QString("41 42 00 00"));
}

void TestEditorTyping::unencodableIsToldOnce()
{
    EditorDriver driver;
    driver.load("", "GBK");
    driver.show();
    QSignalSpy told(&driver.editor(), &DirectEditor::unencodableTyped);
    driver.type(QString::fromUtf8("a한"));
    QCOMPARE(driver.hex()->text(), QString("61 3F 00 00"));
    QCOMPARE(told.count(), 1);
    QVERIFY(told.first().first().toString().contains(QString::fromUtf8("한")));

    driver.type(QString::fromUtf8("국b"));
    QCOMPARE(told.count(), 1);

    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(driver.value(), Qt::Key_Backspace);
    }
    QCOMPARE(driver.value()->text(), QString("a"));
    driver.type(QString::fromUtf8("한"));
    QCOMPARE(told.count(), 2);
}

void TestEditorTyping::unencodableIsToldAgainAfterALoad()
{
    EditorDriver driver;
    QSignalSpy told(&driver.editor(), &DirectEditor::unencodableTyped);
    for (int round = 1; round <= 2; ++round) {
        driver.load("", "GBK");
        driver.value()->setText(QString::fromUtf8("한"));
        QCOMPARE(told.count(), round);
    }
}

void TestEditorTyping::numbersAreNeverUnencodable()
{
    EditorDriver driver;
    QSignalSpy told(&driver.editor(), &DirectEditor::unencodableTyped);
    driver.load("", "int");
    driver.value()->setText(QString::fromUtf8("한"));
    driver.load("", "Unicode");
    driver.value()->setText(QString::fromUtf8("한"));
    QCOMPARE(told.count(), 0);
}

QTEST_MAIN(TestEditorTyping)
#include "tst_editortyping.moc"
