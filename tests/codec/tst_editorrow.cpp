#include "editordriver.h"

#include <QSignalSpy>
#include <QtTest>

class TestEditorRow : public QObject
{
    Q_OBJECT

private slots:
    void loadedRowsAreShownInTheirType_data();
    void loadedRowsAreShownInTheirType();
    void loadedHexIsGroupedFromTheRight();
    void anotherLoadOverwritesTheFirst();
    void longTextsOpenAtTheirBeginning();
    void unreadableHexIsKeptUntilEdited();

    void enterIsOk_data();
    void enterIsOk();
    void enterOnCancelCancels();
    void okHandsTheEditedRowBack_data();
    void okHandsTheEditedRowBack();
    void theResultIsSetBeforeTheSignal();
    void otherWaysOutLeaveTheRowAsItWas_data();
    void otherWaysOutLeaveTheRowAsItWas();
    void theEditorIsUsedAgain();
};

void TestEditorRow::loadedRowsAreShownInTheirType_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("rowType");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("value");

    const auto row = [](const char *data, const char *rowType, const char *type,
                        const char *encoding, const char *value) {
        QTest::newRow(qPrintable(QString("'%1' %2").arg(rowType, data)))
            << QString(data) << QString(rowType) << QString(type) << QString(encoding)
            << QString::fromUtf8(value);
    };
    row("FFFFFFFF", "int", "int", "GB2312", "-1");
    row("FFFFFFFF", "uint", "uint", "GB2312", "4294967295");
    row("00FF0041", "char", "char", "GB2312", "-1,65");
    row("00FF0041", "uchar", "uchar", "GB2312", "255,65");
    row("00FF0041", "UCHAR", "uchar", "GB2312", "255,65");
    row("FFFE0001", "short", "short", "GB2312", "-2,1");
    row("FFFE0001", "SHORT", "short", "GB2312", "-2,1");
    row("FFFE0001", "ushort", "ushort", "GB2312", "65534,1");
    row("FFFFFFFFFFFFFFFF", "longlong", "longlong", "GB2312", "-1");
    row("41420000", "GB2312", "string", "GB2312", "AB");
    row("E9460000", "GBK", "string", "GBK", "镕");
    row("00410000", "Unicode", "string", "Unicode", "A");
    row("00410000", "unicode", "string", "Unicode", "A");
    row("00010002", "", "short", "GB2312", "1,2");
    row("00010002", "float", "short", "GB2312", "1,2");
    row("00010002", "string", "short", "GB2312", "1,2");
    row("00 0a 00 0B", "ushort", "ushort", "GB2312", "10,11");
    row("", "int", "int", "GB2312", "");
    row("", "Unicode", "string", "Unicode", "");
}

void TestEditorRow::loadedRowsAreShownInTheirType()
{
    QFETCH(QString, data);
    QFETCH(QString, rowType);
    EditorDriver driver;
    driver.load(data, rowType);
    QCOMPARE(driver.command()->text(), QString("01"));
    QCOMPARE(driver.address()->text(), QString("0A10"));
    QTEST(driver.types()->currentText(), "type");
    QTEST(driver.encodings()->currentText(), "encoding");
    QTEST(driver.value()->text(), "value");
    QCOMPARE(driver.encodings()->isEnabled(), driver.types()->currentText() == "string");
    QCOMPARE(driver.hex()->text().remove(' '), data.toUpper().remove(' '));
}

void TestEditorRow::loadedHexIsGroupedFromTheRight()
{
    EditorDriver driver;
    driver.load("a 0b 0", "int");
    QCOMPARE(driver.hex()->text(), QString("A0 B0"));
    driver.load("10002", "short");
    QCOMPARE(driver.hex()->text(), QString("1 00 02"));
    QCOMPARE(driver.value()->text(), QString("1,2"));
}

void TestEditorRow::anotherLoadOverwritesTheFirst()
{
    EditorDriver driver;
    driver.load("00410000", "Unicode");
    driver.load("0001", "");
    QCOMPARE(driver.types()->currentText(), QString("short"));
    QCOMPARE(driver.encodings()->currentText(), QString("GB2312"));
    QCOMPARE(driver.value()->text(), QString("1"));
    driver.load("0002", "");
    QCOMPARE(driver.value()->text(), QString("2"));
}

void TestEditorRow::longTextsOpenAtTheirBeginning()
{
    EditorDriver driver;
    driver.load(QString("30390001").repeated(200), "ushort");
    driver.command()->setText(QString("01 02 ").repeated(10));
    driver.address()->setText(QString("0A10").repeated(10));
    driver.show();
    for (const QLineEdit *field :
         {driver.command(), driver.address(), driver.value(), driver.hex()}) {
        QCOMPARE(field->cursorPosition(), 0);
    }
    QCOMPARE(driver.command()->selectedText(), driver.command()->text());
    driver.chooseType("uint");
    QCOMPARE(driver.value()->cursorPosition(), 0);
    driver.editor().close();

    // What is seen whole is gone on with.
    driver.load("3039", "ushort");
    driver.show();
    QCOMPARE(driver.value()->cursorPosition(), 5);
}

void TestEditorRow::unreadableHexIsKeptUntilEdited()
{
    EditorDriver driver;
    driver.load("00ZZ0002", "short");
    QCOMPARE(driver.value()->text(), QString("0,2"));
    driver.editor().on_pushButton_ok_clicked();
    QCOMPARE(driver.editor().editData, QString("00ZZ0002"));
}

void TestEditorRow::enterIsOk_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Qt::Key>("key");

    for (const char *name : {"lineEdit_Od", "lineEdit_Addr", "comboBox_dataType",
                             "lineEdit_originalData", "pushButton_ok"}) {
        QTest::newRow(name) << QByteArray(name) << Qt::Key_Return;
    }
    QTest::newRow("keypad") << QByteArray("lineEdit_originalData") << Qt::Key_Enter;
}

void TestEditorRow::enterIsOk()
{
    QFETCH(QByteArray, name);
    QFETCH(Qt::Key, key);
    EditorDriver driver;
    driver.load("0001", "short");
    driver.show();
    QSignalSpy sent(&driver.editor(), &DirectEditor::SendData);
    auto *focused = driver.find<QWidget>(name);
    focused->setFocus();
    QTest::keyClick(focused, key);
    QCOMPARE(sent.count(), 1);
    QVERIFY(!driver.editor().isVisible());
}

void TestEditorRow::enterOnCancelCancels()
{
    EditorDriver driver;
    driver.show();
    QSignalSpy sent(&driver.editor(), &DirectEditor::SendData);
    auto *cancel = driver.cancel();
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    QCOMPARE(sent.count(), 0);
    QVERIFY(!driver.editor().isVisible());
}

void TestEditorRow::okHandsTheEditedRowBack_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("editData");
    QTest::addColumn<QString>("editType");

    QTest::newRow("int") << "int"
                         << ""
                         << "1,-1"
                         << "00000001FFFFFFFF"
                         << "int";
    QTest::newRow("uchar") << "uchar"
                           << ""
                           << "7"
                           << "0007"
                           << "uchar";
    QTest::newRow("GB2312") << "string"
                            << "GB2312"
                            << "AB"
                            << "41420000"
                            << "GB2312";
    QTest::newRow("GBK") << "string"
                         << "GBK"
                         << "A"
                         << "4100"
                         << "GBK";
    QTest::newRow("Unicode") << "string"
                             << "Unicode"
                             << "A"
                             << "00410000"
                             << "Unicode";
    QTest::newRow("nothing") << "string"
                             << "GBK"
                             << ""
                             << ""
                             << "GBK";
}

void TestEditorRow::okHandsTheEditedRowBack()
{
    QFETCH(QString, type);
    QFETCH(QString, encoding);
    QFETCH(QString, typed);
    EditorDriver driver;
    driver.load("", "");
    driver.show();
    QTest::keyClicks(driver.command(), "06");
    auto *address = driver.address();
    address->setFocus();
    QTest::keyClicks(address, "F");
    driver.chooseType(type);
    if (!encoding.isEmpty()) {
        driver.chooseEncoding(encoding);
    }
    driver.type(typed);
    QTest::mouseClick(driver.ok(), Qt::LeftButton);
    QTEST(driver.editor().editData, "editData");
    QTEST(driver.editor().editType, "editType");
    QCOMPARE(driver.editor().editCmd, QString("06"));
    QCOMPARE(driver.editor().editAddr, QString("0A10F"));
    QVERIFY(!driver.editor().isVisible());
}

void TestEditorRow::theResultIsSetBeforeTheSignal()
{
    EditorDriver driver;
    driver.load("0001", "short");
    driver.show();
    driver.type(",2");
    QString seen;
    bool visible = false;
    connect(&driver.editor(), &DirectEditor::SendData, this, [&] {
        seen = driver.editor().editCmd + ' ' + driver.editor().editAddr + ' ' +
               driver.editor().editData + ' ' + driver.editor().editType;
        visible = driver.editor().isVisible();
    });
    QTest::keyClick(driver.value(), Qt::Key_Return);
    QCOMPARE(seen, QString("01 0A10 00010002 short"));
    QVERIFY(visible);
}

void TestEditorRow::otherWaysOutLeaveTheRowAsItWas_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("cancel") << "cancel";
    QTest::newRow("escape") << "escape";
    QTest::newRow("window button") << "window button";
}

void TestEditorRow::otherWaysOutLeaveTheRowAsItWas()
{
    QFETCH(QString, way);
    EditorDriver driver;
    driver.load("00 01", "short");
    driver.editor().setModal(true);
    driver.show();
    QSignalSpy sent(&driver.editor(), &DirectEditor::SendData);
    QTest::keyClicks(driver.command(), "06");
    driver.type(",2");
    driver.chooseType("int");
    if (way == "cancel") {
        QTest::mouseClick(driver.cancel(), Qt::LeftButton);
    } else if (way == "escape") {
        QTest::keyClick(driver.editor().focusWidget(), Qt::Key_Escape);
    } else {
        driver.editor().close();
    }
    QVERIFY(!driver.editor().isVisible());
    QCOMPARE(sent.count(), 0);
    QCOMPARE(driver.editor().editData, QString("00 01"));
    QCOMPARE(driver.editor().editCmd, QString("01"));
    QCOMPARE(driver.editor().editAddr, QString("0A10"));
    QCOMPARE(driver.editor().editType, QString("short"));
}

void TestEditorRow::theEditorIsUsedAgain()
{
    EditorDriver driver;
    driver.load("0001", "short");
    driver.show();
    QTest::keyClick(driver.value(), Qt::Key_Return);
    driver.load("00410000", "Unicode");
    driver.show();
    QCOMPARE(driver.value()->text(), QString("A"));
    driver.type("B");
    QTest::keyClick(driver.value(), Qt::Key_Return);
    QCOMPARE(driver.editor().editData, QString("004100420000"));
    QCOMPARE(driver.editor().editType, QString("Unicode"));
}

QTEST_MAIN(TestEditorRow)
#include "tst_editorrow.moc"
