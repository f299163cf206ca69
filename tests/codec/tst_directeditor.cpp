#include "directeditor.h"

#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class TestDirectEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void freshState();
    void listsAndCaptions();
    void sizesAndNesting();
    void styleSheetIsExact();
    void slotsInOrder();
    void showsEightValues();
    void nothingOverlaps();

    void typingConverts_data();
    void typingConverts();
    void clearingClearsHex();
    void longValuesStayWhole();
    void originalDataChangeShowsIntHex();

    void typeChangeReadsSameBytes();
    void encodingChangeReadsSameBytes();
    void encodingListOnlyForStrings();
    void editingLoadedStringReplacesTerminator();

    void load_data();
    void load();
    void loadGroupsFromTheRight();
    void loadAgainOverwrites();
    void loadKeepsBytesOfUnreadableHex();

    void firstFieldIsFocused();
    void tabOrder();
    void enterIsOk_data();
    void enterIsOk();
    void enterOnCancelCancels();
    void handBack_data();
    void handBack();
    void membersAreSetBeforeTheSignal();
    void waysOutWithoutResult_data();
    void waysOutWithoutResult();
    void isReused();

    void unencodableIsToldOnce();
    void unencodableIsToldAgainAfterLoad();
    void numbersAreNeverUnencodable();

private:
    template<typename T>
    T *widget(const char *name) const
    {
        auto *found = m_editor->findChild<T *>(name);
        if (!found) {
            qFatal("no widget %s", name);
        }
        return found;
    }
    QLineEdit *value() const { return widget<QLineEdit>("lineEdit_originalData"); }
    QLineEdit *hex() const { return widget<QLineEdit>("lineEdit_Data"); }
    QComboBox *types() const { return widget<QComboBox>("comboBox_dataType"); }
    QComboBox *encodings() const { return widget<QComboBox>("comboBox_encode"); }
    void load(const QString &data, const QString &type);
    void show();
    void chooseByKeyboard(QComboBox *list, const QString &item);
    void typeValue(const QString &text);

    std::unique_ptr<DirectEditor> m_editor;
};

void TestDirectEditor::init()
{
    m_editor = std::make_unique<DirectEditor>();
}

void TestDirectEditor::cleanup()
{
    m_editor.reset();
}

void TestDirectEditor::load(const QString &data, const QString &type)
{
    m_editor->editCmd = "01";
    m_editor->editAddr = "0A10";
    m_editor->editData = data;
    m_editor->editType = type;
    m_editor->loadFromMembers();
}

void TestDirectEditor::show()
{
    m_editor->show();
    m_editor->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
}

void TestDirectEditor::chooseByKeyboard(QComboBox *list, const QString &item)
{
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = list->findText(item); i > 0; --i) {
        QTest::keyClick(list, Qt::Key_Down);
    }
    QCOMPARE(list->currentText(), item);
}

/// Types into the value field; characters that no key has come as from an input method.
void TestDirectEditor::typeValue(const QString &text)
{
    value()->setFocus();
    for (const QChar character : text) {
        if (character.unicode() < 0x80) {
            QTest::keyClick(value(), character.toLatin1());
        } else {
            QInputMethodEvent event;
            event.setCommitString(character);
            QCoreApplication::sendEvent(value(), &event);
        }
    }
}

void TestDirectEditor::freshState()
{
    QCOMPARE(types()->currentText(), QString("short"));
    QVERIFY(!encodings()->isEnabled());
    QVERIFY(!hex()->isEnabled());
    QCOMPARE(value()->text(), QString());
    QCOMPARE(hex()->text(), QString());
    QVERIFY(!m_editor->isModal());
    QCOMPARE(m_editor->windowTitle(), QString("edit"));
}

void TestDirectEditor::listsAndCaptions()
{
    const auto items = [](const QComboBox *list) {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i) {
            texts.append(list->itemText(i));
        }
        return texts;
    };
    QCOMPARE(items(types()), QStringList({"int", "uint", "char", "uchar", "short", "ushort",
                                          "longlong", "string"}));
    QCOMPARE(items(encodings()), QStringList({"GB2312", "GBK", "Unicode"}));
    QCOMPARE(widget<QPushButton>("pushButton_ok")->text(), QString("ok"));
    QCOMPARE(widget<QPushButton>("pushButton_cancel")->text(), QString("cancel"));
    QCOMPARE(widget<QGroupBox>("groupBox_2")->title(), QString("####"));
    QCOMPARE(widget<QGroupBox>("groupBox")->title(), QString("Data Type"));
    QCOMPARE(widget<QLabel>("label")->text(), QString("CMD:"));
    QCOMPARE(widget<QLabel>("label_2")->text(), QString("Addr:"));
    QCOMPARE(widget<QLabel>("label_3")->text(), QString("Data:"));
    QCOMPARE(widget<QLabel>("label_4")->text(), QString("Hex:"));
}

void TestDirectEditor::sizesAndNesting()
{
    show();
    QCOMPARE(m_editor->height(), 256);
    QCOMPARE(m_editor->minimumHeight(), 256);
    QCOMPARE(m_editor->maximumHeight(), 256);
    QVERIFY(m_editor->maximumWidth() == QWIDGETSIZE_MAX);
    QCOMPARE(widget<QPushButton>("pushButton_ok")->height(), 30);
    QCOMPARE(widget<QPushButton>("pushButton_cancel")->height(), 30);

    auto *command = widget<QGroupBox>("groupBox_2");
    QCOMPARE(command->parentWidget(), widget<QFrame>("frame"));
    QCOMPARE(command->width(), 300);
    QCOMPARE(command->minimumHeight(), 120);
    QCOMPARE(command->maximumHeight(), 150);
    QCOMPARE(widget<QLineEdit>("lineEdit_Od")->size(), QSize(60, 25));
    QCOMPARE(widget<QLineEdit>("lineEdit_Addr")->size(), QSize(60, 25));
    QCOMPARE(widget<QLineEdit>("lineEdit_Od")->parentWidget(), command);
    QCOMPARE(widget<QLineEdit>("lineEdit_Addr")->parentWidget(), command);
    QCOMPARE(widget<QLabel>("label")->height(), 25);
    QCOMPARE(widget<QLabel>("label")->maximumWidth(), 50);

    auto *type = widget<QGroupBox>("groupBox");
    QCOMPARE(type->size(), QSize(120, 100));
    QCOMPARE(types()->parentWidget(), type);
    QCOMPARE(encodings()->parentWidget(), type);
    QCOMPARE(types()->maximumWidth(), 100);
    QCOMPARE(encodings()->maximumSize(), QSize(100, 30));
    QVERIFY(types()->y() < encodings()->y());

    auto *data = widget<QFrame>("frame_2");
    QCOMPARE(data->maximumHeight(), 100);
    QCOMPARE(value()->parentWidget(), data);
    QCOMPARE(hex()->parentWidget(), data);
    QCOMPARE(value()->height(), 30);
    QCOMPARE(hex()->height(), 30);
}

void TestDirectEditor::styleSheetIsExact()
{
    QCOMPARE(
        m_editor->styleSheet(),
        QString(
            "QPushButton{background: #ffffff;border: 2px solid #d9dfe7;border-radius: 4px;color: "
            "#333333;}QPushButton:hover{background: #0090ff;border-radius: 4px;color: "
            "#fefefe;}QPushButton:disabled{background: #cccccc;color:#666666}QComboBox{background: "
            "#ffffff;border: 1px solid rgba(51,51,51,0.30);border-radius: "
            "4px;}QComboBox::drop-down{border:none;}QComboBox::down-arrow{width: 21px;height: "
            "11px;right:7px;image: url(:/Image/ComboBox-downArrow.png)}QComboBox QAbstractItemView "
            "{background-color: #ffffff;}QLineEdit{background: #ffffff;border: 1px solid "
            "rgba(51,51,51,0.30);border-radius: 4px;}QCheckBox::indicator {width :  26px ;height : "
            " 26px ;}QCheckBox::indicator:unchecked "
            "{image:url(:/Image/Checkbox_uncheck.png);}QCheckBox::indicator:unchecked:hover "
            "{image:url(:/Image/"
            "Checkbox_uncheck_hover.png);}QCheckBox::indicator:checked{image:url(:/Image/"
            "Checkbox_check.png);}QCheckBox::indicator:checked:hover{image:url(:/Image/"
            "Checkbox_check_hover.png);}QLabel{color: #313c61;}"));
}

void TestDirectEditor::slotsInOrder()
{
    const QMetaObject &meta = DirectEditor::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Slot) {
            slotNames.append(meta.method(i).methodSignature());
        }
    }
    QCOMPARE(slotNames,
             QStringList(
                 {"on_originalDataChange()", "on_lineEdit_originalData_textChanged()",
                  "on_pushButton_ok_clicked()", "on_comboBox_dataType_currentIndexChanged()",
                  "on_comboBox_encode_currentIndexChanged()", "on_pushButton_cancel_clicked()"}));
}

void TestDirectEditor::showsEightValues()
{
    const QFont usual = QApplication::font();
    QFont small = usual;
    small.setPixelSize(10); // so that the eight values fit onto the screen of any test platform
    QApplication::setFont(small);
    init();
    QApplication::setFont(usual);
    show();
    const int framed = 2 * 4;
    const QString widest = QString("DD ").repeated(8 * 4).trimmed();
    const int needed = hex()->fontMetrics().horizontalAdvance(widest) + framed;
    QVERIFY(hex()->width() >= needed);
    QVERIFY(hex()->width() < needed * 5 / 4);
    m_editor->resize(1, 256);
    QVERIFY(m_editor->width() < needed);
}

void TestDirectEditor::nothingOverlaps()
{
    show();
    for (const char *name : {"pushButton_ok", "pushButton_cancel", "label", "label_2", "label_3",
                             "label_4", "comboBox_dataType", "comboBox_encode"}) {
        const auto *shown = widget<QWidget>(name);
        const auto *around = shown->parentWidget();
        QVERIFY2(around->contentsRect().contains(shown->geometry()), name);
        QVERIFY2(shown->width() >= shown->minimumSizeHint().width(), name);
        QVERIFY2(shown->height() >= shown->fontMetrics().height(), name);
    }
    QVERIFY(widget<QFrame>("frame")->geometry().bottom() < widget<QFrame>("frame_2")->y());
    QVERIFY(widget<QFrame>("frame_2")->geometry().bottom() <
            widget<QPushButton>("pushButton_ok")->y());
}

void TestDirectEditor::typingConverts_data()
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

void TestDirectEditor::typingConverts()
{
    QFETCH(QString, type);
    QFETCH(QString, encoding);
    QFETCH(QString, typed);
    show();
    chooseByKeyboard(types(), type);
    if (!encoding.isEmpty()) {
        chooseByKeyboard(encodings(), encoding);
    }
    QSignalSpy hexChanges(hex(), &QLineEdit::textChanged);
    typeValue(typed);
    QTEST(hex()->text(), "hex");
    QCOMPARE(hexChanges.count(), 0);
}

void TestDirectEditor::clearingClearsHex()
{
    show();
    for (const QString type : {"int", "string"}) {
        chooseByKeyboard(types(), type);
        typeValue("12");
        QVERIFY(!hex()->text().isEmpty());
        QTest::keyClick(value(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(value(), Qt::Key_Delete);
        QCOMPARE(value()->text(), QString());
        QCOMPARE(hex()->text(), QString());
    }
}

void TestDirectEditor::longValuesStayWhole()
{
    const QString digits = QString("00000001").repeated(20000);
    load(digits, "int");
    QCOMPARE(value()->text().count(','), 19999);
    value()->setText(value()->text() + ",2");
    m_editor->on_pushButton_ok_clicked();
    QCOMPARE(m_editor->editData, digits + "00000002");
}

void TestDirectEditor::originalDataChangeShowsIntHex()
{
    load("", "string");
    value()->setText("258");
    QVERIFY(QMetaObject::invokeMethod(m_editor.get(), "on_originalDataChange"));
    QCOMPARE(value()->text(), QString("00 00 01 02"));
}

void TestDirectEditor::typeChangeReadsSameBytes()
{
    load("00 00 00 01", "int");
    show();
    QCOMPARE(value()->text(), QString("1"));
    QSignalSpy valueChanges(value(), &QLineEdit::textChanged);
    chooseByKeyboard(types(), "short");
    QCOMPARE(value()->text(), QString("0,1"));
    chooseByKeyboard(types(), "longlong");
    QCOMPARE(value()->text(), QString("1"));
    chooseByKeyboard(types(), "uchar");
    QCOMPARE(value()->text(), QString("0,1"));
    chooseByKeyboard(types(), "int");
    QCOMPARE(value()->text(), QString("1"));
    QCOMPARE(hex()->text(), QString("00 00 00 01"));
    QCOMPARE(valueChanges.count(), 0);
}

void TestDirectEditor::encodingChangeReadsSameBytes()
{
    load("55 4A 00 00", "Unicode");
    show();
    QCOMPARE(value()->text(), QString::fromUtf8("啊"));
    chooseByKeyboard(encodings(), "GBK");
    QCOMPARE(value()->text(), QString("UJ"));
    chooseByKeyboard(encodings(), "Unicode");
    QCOMPARE(value()->text(), QString::fromUtf8("啊"));
    QCOMPARE(hex()->text(), QString("55 4A 00 00"));
}

void TestDirectEditor::encodingListOnlyForStrings()
{
    show();
    for (int i = 0; i < types()->count(); ++i) {
        types()->setCurrentIndex(i);
        QCOMPARE(encodings()->isEnabled(), types()->currentText() == "string");
    }
    types()->setCurrentIndex(0);
    QVERIFY(!encodings()->isEnabled());
}

void TestDirectEditor::editingLoadedStringReplacesTerminator()
{
    load("41 00", "GB2312");
    show();
    QCOMPARE(value()->text(), QString("A"));
    value()->setFocus();
    QTest::keyClick(value(), Qt::Key_End);
    typeValue("B");
    QCOMPARE(hex()->text(), QString("41 42 00 00"));
}

void TestDirectEditor::load_data()
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

void TestDirectEditor::load()
{
    QFETCH(QString, data);
    QFETCH(QString, rowType);
    load(data, rowType);
    QCOMPARE(widget<QLineEdit>("lineEdit_Od")->text(), QString("01"));
    QCOMPARE(widget<QLineEdit>("lineEdit_Addr")->text(), QString("0A10"));
    QTEST(types()->currentText(), "type");
    QTEST(encodings()->currentText(), "encoding");
    QTEST(value()->text(), "value");
    QCOMPARE(encodings()->isEnabled(), types()->currentText() == "string");
    QCOMPARE(hex()->text().remove(' '), data.toUpper().remove(' '));
}

void TestDirectEditor::loadGroupsFromTheRight()
{
    load("a 0b 0", "int");
    QCOMPARE(hex()->text(), QString("A0 B0"));
    load("10002", "short");
    QCOMPARE(hex()->text(), QString("1 00 02"));
    QCOMPARE(value()->text(), QString("1,2"));
}

void TestDirectEditor::loadAgainOverwrites()
{
    load("00410000", "Unicode");
    load("0001", "");
    QCOMPARE(types()->currentText(), QString("short"));
    QCOMPARE(encodings()->currentText(), QString("GB2312"));
    QCOMPARE(value()->text(), QString("1"));
    load("0002", "");
    QCOMPARE(value()->text(), QString("2"));
}

void TestDirectEditor::loadKeepsBytesOfUnreadableHex()
{
    load("00ZZ0002", "short");
    QCOMPARE(value()->text(), QString("0,2"));
    m_editor->on_pushButton_ok_clicked();
    QCOMPARE(m_editor->editData, QString("00ZZ0002"));
}

void TestDirectEditor::firstFieldIsFocused()
{
    show();
    auto *command = widget<QLineEdit>("lineEdit_Od");
    QTRY_VERIFY(command->hasFocus());
    value()->setFocus();
    m_editor->hide();
    m_editor->show();
    QCOMPARE(m_editor->focusWidget(), command);
}

void TestDirectEditor::tabOrder()
{
    load("41420000", "GBK");
    show();
    QStringList names;
    for (int i = 0; i < 8; ++i) {
        names.append(m_editor->focusWidget()->objectName());
        QTest::keyClick(m_editor->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names, QStringList({"lineEdit_Od", "lineEdit_Addr", "comboBox_dataType",
                                 "comboBox_encode", "lineEdit_originalData", "pushButton_ok",
                                 "pushButton_cancel", "lineEdit_Od"}));
}

void TestDirectEditor::enterIsOk_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Qt::Key>("key");

    for (const char *name : {"lineEdit_Od", "lineEdit_Addr", "comboBox_dataType",
                             "lineEdit_originalData", "pushButton_ok"}) {
        QTest::newRow(name) << QByteArray(name) << Qt::Key_Return;
    }
    QTest::newRow("keypad") << QByteArray("lineEdit_originalData") << Qt::Key_Enter;
}

void TestDirectEditor::enterIsOk()
{
    QFETCH(QByteArray, name);
    QFETCH(Qt::Key, key);
    load("0001", "short");
    show();
    QSignalSpy sent(m_editor.get(), &DirectEditor::SendData);
    auto *focused = widget<QWidget>(name);
    focused->setFocus();
    QTest::keyClick(focused, key);
    QCOMPARE(sent.count(), 1);
    QVERIFY(!m_editor->isVisible());
}

void TestDirectEditor::enterOnCancelCancels()
{
    show();
    QSignalSpy sent(m_editor.get(), &DirectEditor::SendData);
    auto *cancel = widget<QPushButton>("pushButton_cancel");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    QCOMPARE(sent.count(), 0);
    QVERIFY(!m_editor->isVisible());
}

void TestDirectEditor::handBack_data()
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

void TestDirectEditor::handBack()
{
    QFETCH(QString, type);
    QFETCH(QString, encoding);
    QFETCH(QString, typed);
    load("", "");
    show();
    QTest::keyClicks(widget<QLineEdit>("lineEdit_Od"), "06");
    auto *address = widget<QLineEdit>("lineEdit_Addr");
    address->setFocus();
    QTest::keyClicks(address, "F");
    chooseByKeyboard(types(), type);
    if (!encoding.isEmpty()) {
        chooseByKeyboard(encodings(), encoding);
    }
    typeValue(typed);
    QTest::mouseClick(widget<QPushButton>("pushButton_ok"), Qt::LeftButton);
    QTEST(m_editor->editData, "editData");
    QTEST(m_editor->editType, "editType");
    QCOMPARE(m_editor->editCmd, QString("06"));
    QCOMPARE(m_editor->editAddr, QString("0A10F"));
    QVERIFY(!m_editor->isVisible());
}

void TestDirectEditor::membersAreSetBeforeTheSignal()
{
    load("0001", "short");
    show();
    typeValue(",2");
    QString seen;
    bool visible = false;
    connect(m_editor.get(), &DirectEditor::SendData, this, [&] {
        seen = m_editor->editCmd + ' ' + m_editor->editAddr + ' ' + m_editor->editData + ' ' +
               m_editor->editType;
        visible = m_editor->isVisible();
    });
    QTest::keyClick(value(), Qt::Key_Return);
    QCOMPARE(seen, QString("01 0A10 00010002 short"));
    QVERIFY(visible);
}

void TestDirectEditor::waysOutWithoutResult_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("cancel") << "cancel";
    QTest::newRow("escape") << "escape";
    QTest::newRow("window button") << "window button";
}

void TestDirectEditor::waysOutWithoutResult()
{
    QFETCH(QString, way);
    load("00 01", "short");
    m_editor->setModal(true);
    show();
    QSignalSpy sent(m_editor.get(), &DirectEditor::SendData);
    QTest::keyClicks(widget<QLineEdit>("lineEdit_Od"), "06");
    typeValue(",2");
    chooseByKeyboard(types(), "int");
    if (way == "cancel") {
        QTest::mouseClick(widget<QPushButton>("pushButton_cancel"), Qt::LeftButton);
    } else if (way == "escape") {
        QTest::keyClick(m_editor->focusWidget(), Qt::Key_Escape);
    } else {
        m_editor->close();
    }
    QVERIFY(!m_editor->isVisible());
    QCOMPARE(sent.count(), 0);
    QCOMPARE(m_editor->editData, QString("00 01"));
    QCOMPARE(m_editor->editCmd, QString("01"));
    QCOMPARE(m_editor->editAddr, QString("0A10"));
    QCOMPARE(m_editor->editType, QString("short"));
}

void TestDirectEditor::isReused()
{
    load("0001", "short");
    show();
    QTest::keyClick(value(), Qt::Key_Return);
    load("00410000", "Unicode");
    show();
    QCOMPARE(value()->text(), QString("A"));
    typeValue("B");
    QTest::keyClick(value(), Qt::Key_Return);
    QCOMPARE(m_editor->editData, QString("004100420000"));
    QCOMPARE(m_editor->editType, QString("Unicode"));
}

void TestDirectEditor::unencodableIsToldOnce()
{
    load("", "GBK");
    show();
    QSignalSpy told(m_editor.get(), &DirectEditor::unencodableTyped);
    typeValue(QString::fromUtf8("a한"));
    QCOMPARE(hex()->text(), QString("61 3F 00 00"));
    QCOMPARE(told.count(), 1);
    QVERIFY(told.first().first().toString().contains(QString::fromUtf8("한")));

    typeValue(QString::fromUtf8("국b"));
    QCOMPARE(told.count(), 1);

    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(value(), Qt::Key_Backspace);
    }
    QCOMPARE(value()->text(), QString("a"));
    typeValue(QString::fromUtf8("한"));
    QCOMPARE(told.count(), 2);
}

void TestDirectEditor::unencodableIsToldAgainAfterLoad()
{
    QSignalSpy told(m_editor.get(), &DirectEditor::unencodableTyped);
    for (int round = 1; round <= 2; ++round) {
        load("", "GBK");
        value()->setText(QString::fromUtf8("한"));
        QCOMPARE(told.count(), round);
    }
}

void TestDirectEditor::numbersAreNeverUnencodable()
{
    QSignalSpy told(m_editor.get(), &DirectEditor::unencodableTyped);
    load("", "int");
    value()->setText(QString::fromUtf8("한"));
    load("", "Unicode");
    value()->setText(QString::fromUtf8("한"));
    QCOMPARE(told.count(), 0);
}

QTEST_MAIN(TestDirectEditor)
#include "tst_directeditor.moc"
