#include "editordriver.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QMetaMethod>
#include <QStyleOptionFrame>
#include <QtTest>

class TestEditorForm : public QObject
{
    Q_OBJECT

private slots:
    void beginsAsAnEmptyShort();
    void listsAndCaptionsAreThoseOfTheForm();
    void widgetsHaveTheirSizesAndParents();
    void styleSheetIsExact();
    void slotsStandInTheirOrder();
    void aNewEditorShowsEightValues();
    void nothingOverlaps();

    void theFirstFieldHasTheFocus();
    void tabGoesFromFieldToFieldAndRound();
    void theFocusIsSeen_data();
    void theFocusIsSeen();
};

namespace {

/// In pixels, without the frame that the style draws and the margins inside it.
int widthForText(const QLineEdit &field)
{
    constexpr int innerMargin = 2;
    const QStyle &style = *field.style();
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    return style.subElementRect(QStyle::SE_LineEditContents, &option, &field).width() -
           2 * innerMargin;
}

} // namespace

void TestEditorForm::beginsAsAnEmptyShort()
{
    EditorDriver driver;
    QCOMPARE(driver.types()->currentText(), QString("short"));
    QVERIFY(!driver.encodings()->isEnabled());
    QVERIFY(!driver.hex()->isEnabled());
    QCOMPARE(driver.value()->text(), QString());
    QCOMPARE(driver.hex()->text(), QString());
    QVERIFY(!driver.editor().isModal());
    QCOMPARE(driver.editor().windowTitle(), QString("edit"));
}

void TestEditorForm::listsAndCaptionsAreThoseOfTheForm()
{
    EditorDriver driver;
    const auto items = [](const QComboBox *list) {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i) {
            texts.append(list->itemText(i));
        }
        return texts;
    };
    QCOMPARE(items(driver.types()), QStringList({"int", "uint", "char", "uchar", "short", "ushort",
                                                 "longlong", "string"}));
    QCOMPARE(items(driver.encodings()), QStringList({"GB2312", "GBK", "Unicode"}));
    QCOMPARE(driver.ok()->text(), QString("ok"));
    QCOMPARE(driver.cancel()->text(), QString("cancel"));
    QCOMPARE(driver.find<QGroupBox>("groupBox_2")->title(), QString("####"));
    QCOMPARE(driver.find<QGroupBox>("groupBox")->title(), QString("Data Type"));
    QCOMPARE(driver.find<QLabel>("label")->text(), QString("CMD:"));
    QCOMPARE(driver.find<QLabel>("label_2")->text(), QString("Addr:"));
    QCOMPARE(driver.find<QLabel>("label_3")->text(), QString("Data:"));
    QCOMPARE(driver.find<QLabel>("label_4")->text(), QString("Hex:"));
}

void TestEditorForm::widgetsHaveTheirSizesAndParents()
{
    EditorDriver driver;
    driver.show();
    QCOMPARE(driver.editor().height(), 256);
    QCOMPARE(driver.editor().minimumHeight(), 256);
    QCOMPARE(driver.editor().maximumHeight(), 256);
    QVERIFY(driver.editor().maximumWidth() == QWIDGETSIZE_MAX);
    QCOMPARE(driver.ok()->height(), 30);
    QCOMPARE(driver.cancel()->height(), 30);

    auto *command = driver.find<QGroupBox>("groupBox_2");
    QCOMPARE(command->parentWidget(), driver.find<QFrame>("frame"));
    QCOMPARE(command->width(), 300);
    QCOMPARE(command->minimumHeight(), 120);
    QCOMPARE(command->maximumHeight(), 150);
    QCOMPARE(driver.command()->size(), QSize(60, 25));
    QCOMPARE(driver.address()->size(), QSize(60, 25));
    QCOMPARE(driver.command()->parentWidget(), command);
    QCOMPARE(driver.address()->parentWidget(), command);
    QCOMPARE(driver.find<QLabel>("label")->height(), 25);
    QCOMPARE(driver.find<QLabel>("label")->maximumWidth(), 50);

    auto *type = driver.find<QGroupBox>("groupBox");
    QCOMPARE(type->size(), QSize(120, 100));
    QCOMPARE(driver.types()->parentWidget(), type);
    QCOMPARE(driver.encodings()->parentWidget(), type);
    QCOMPARE(driver.types()->maximumWidth(), 100);
    QCOMPARE(driver.encodings()->maximumSize(), QSize(100, 30));
    QVERIFY(driver.types()->y() < driver.encodings()->y());

    auto *data = driver.find<QFrame>("frame_2");
    QCOMPARE(data->maximumHeight(), 100);
    QCOMPARE(driver.value()->parentWidget(), data);
    QCOMPARE(driver.hex()->parentWidget(), data);
    QCOMPARE(driver.value()->height(), 30);
    QCOMPARE(driver.hex()->height(), 30);
}

void TestEditorForm::styleSheetIsExact()
{
    EditorDriver driver;
    QCOMPARE(
        driver.editor().styleSheet(),
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

void TestEditorForm::slotsStandInTheirOrder()
{
    EditorDriver driver;
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

void TestEditorForm::aNewEditorShowsEightValues()
{
    const QFont usual = QApplication::font();
    QFont small = usual;
    small.setPixelSize(10); // so that the eight values fit onto the screen of any test platform
    QApplication::setFont(small);
    EditorDriver driver;
    QApplication::setFont(usual);
    driver.show();
    const QString widest = QString("DD ").repeated(8 * 4).trimmed();
    const int needed = driver.hex()->fontMetrics().horizontalAdvance(widest);
    QVERIFY(widthForText(*driver.hex()) >= needed);
    QVERIFY(widthForText(*driver.hex()) < needed * 5 / 4);
    driver.editor().resize(1, 256);
    QVERIFY(driver.editor().width() < needed);
}

void TestEditorForm::nothingOverlaps()
{
    EditorDriver driver;
    driver.show();
    for (const char *name : {"pushButton_ok", "pushButton_cancel", "label", "label_2", "label_3",
                             "label_4", "comboBox_dataType", "comboBox_encode"}) {
        const auto *shown = driver.find<QWidget>(name);
        const auto *around = shown->parentWidget();
        QVERIFY2(around->contentsRect().contains(shown->geometry()), name);
        QVERIFY2(shown->width() >= shown->minimumSizeHint().width(), name);
        QVERIFY2(shown->height() >= shown->fontMetrics().height(), name);
    }
    QVERIFY(driver.find<QFrame>("frame")->geometry().bottom() <
            driver.find<QFrame>("frame_2")->y());
    QVERIFY(driver.find<QFrame>("frame_2")->geometry().bottom() < driver.ok()->y());
}

void TestEditorForm::theFirstFieldHasTheFocus()
{
    EditorDriver driver;
    driver.show();
    auto *command = driver.command();
    QTRY_VERIFY(command->hasFocus());
    driver.value()->setFocus();
    driver.editor().hide();
    driver.editor().show();
    QCOMPARE(driver.editor().focusWidget(), command);
}

void TestEditorForm::tabGoesFromFieldToFieldAndRound()
{
    EditorDriver driver;
    driver.load("41420000", "GBK");
    driver.show();
    QStringList names;
    for (int i = 0; i < 8; ++i) {
        names.append(driver.editor().focusWidget()->objectName());
        QTest::keyClick(driver.editor().focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names, QStringList({"lineEdit_Od", "lineEdit_Addr", "comboBox_dataType",
                                 "comboBox_encode", "lineEdit_originalData", "pushButton_ok",
                                 "pushButton_cancel", "lineEdit_Od"}));
}

void TestEditorForm::theFocusIsSeen_data()
{
    QTest::addColumn<int>("unused");

    for (const char *name : {"lineEdit_Od", "lineEdit_Addr", "comboBox_dataType", "comboBox_encode",
                             "lineEdit_originalData", "pushButton_ok", "pushButton_cancel"}) {
        QTest::newRow(name) << 0;
    }
}

void TestEditorForm::theFocusIsSeen()
{
    EditorDriver driver;
    driver.load("41420000", "GBK");
    driver.show();
    auto *widget = driver.find<QWidget>(QTest::currentDataTag());
    const auto edge = [&] { return widget->grab().toImage().pixelColor(widget->width() / 2, 0); };
    const QColor ring(0x00, 0x6F, 0xCF);
    widget->clearFocus();
    QTRY_VERIFY(!widget->hasFocus());
    QVERIFY(edge() != ring);
    widget->setFocus();
    QTRY_VERIFY(widget->hasFocus());
    QCOMPARE(edge(), ring);
}

QTEST_MAIN(TestEditorForm)
#include "tst_editorform.moc"
