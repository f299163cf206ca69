#include "codec/directeditor.h"

#include "codec/numbercodec.h"
#include "frames/hextext.h"
#include "ui_directeditor.h"

#include <QScreen>
#include <QShowEvent>
#include <QSignalBlocker>

namespace {

constexpr auto editorStyle =
    "QPushButton{background: #ffffff;border: 2px solid #d9dfe7;border-radius: 4px;color: #333333;}"
    "QPushButton:hover{background: #0090ff;border-radius: 4px;color: #fefefe;}"
    "QPushButton:disabled{background: #cccccc;color:#666666}"
    "QComboBox{background: #ffffff;border: 1px solid rgba(51,51,51,0.30);border-radius: 4px;}"
    "QComboBox::drop-down{border:none;}"
    "QComboBox::down-arrow{width: 21px;height: 11px;right:7px;"
    "image: url(:/Image/ComboBox-downArrow.png)}"
    "QComboBox QAbstractItemView {background-color: #ffffff;}"
    "QLineEdit{background: #ffffff;border: 1px solid rgba(51,51,51,0.30);border-radius: 4px;}"
    "QCheckBox::indicator {width :  26px ;height :  26px ;}"
    "QCheckBox::indicator:unchecked {image:url(:/Image/Checkbox_uncheck.png);}"
    "QCheckBox::indicator:unchecked:hover {image:url(:/Image/Checkbox_uncheck_hover.png);}"
    "QCheckBox::indicator:checked{image:url(:/Image/Checkbox_check.png);}"
    "QCheckBox::indicator:checked:hover{image:url(:/Image/Checkbox_check_hover.png);}"
    "QLabel{color: #313c61;}";

/// The dialog's own style sheet gives every box one edge, with the focus or without it, and would
/// win over any rule from further out.
constexpr auto focusStyle =
    "QLineEdit:focus,QComboBox:focus,QPushButton:focus{border: 2px solid #006fcf;}";

void showFocus(const QDialog &dialog)
{
    for (QWidget *widget : dialog.findChildren<QWidget *>()) {
        if (widget->focusPolicy() & Qt::TabFocus) {
            widget->setStyleSheet(QLatin1String(focusStyle));
        }
    }
}

/// A field that cannot be edited is still read: its text must not fade into the background.
void keepReadable(QLineEdit *field)
{
    QPalette palette = field->palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x66, 0x66, 0x66));
    field->setPalette(palette);
}

/// What a line edit needs besides the width of its text: its size hint is seventeen "x" and that.
int widthAroundText(const QLineEdit *field)
{
    return field->sizeHint().width() -
           17 * field->fontMetrics().horizontalAdvance(QLatin1Char('x'));
}

/// The width of a line edit that shows this many pairs of hex digits whole, whichever they are.
int widthForPairs(const QLineEdit *field, int pairs)
{
    const QFontMetrics metrics = field->fontMetrics();
    int digitWidth = 0;
    for (const QChar digit : QStringLiteral("0123456789ABCDEF")) {
        digitWidth = qMax(digitWidth, metrics.horizontalAdvance(digit));
    }
    const int textWidth =
        2 * pairs * digitWidth + (pairs - 1) * metrics.horizontalAdvance(QLatin1Char(' '));
    return textWidth + widthAroundText(field);
}

/// A text that is too long for its field is shown from its beginning.
void goToBeginningOfLong(QLineEdit *field)
{
    const int textWidth = field->fontMetrics().horizontalAdvance(field->text());
    if (textWidth + widthAroundText(field) > field->width()) {
        field->setCursorPosition(0);
    }
}

const NumberKind &numberKindOfItem(int type)
{
    return numberKinds.at(static_cast<std::size_t>(type));
}

} // namespace

DirectEditor::DirectEditor(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::DirectEditor>())
{
    m_ui->setupUi(this);
    m_ui->comboBox_dataType->addItems(editorTypes());
    connectFields();
    m_ui->comboBox_dataType->setCurrentIndex(shortTypeIndex);
    setWindowTitle(tr("edit"));
    setStyleSheet(QLatin1String(editorStyle));
    showFocus(*this);
    keepReadable(m_ui->lineEdit_Data);
    resize(qMin(widthForValues(), screen()->availableGeometry().width()), height());
}

DirectEditor::~DirectEditor() = default;

void DirectEditor::loadFromMembers()
{
    m_unencodableTold = false;
    m_ui->lineEdit_Od->setText(editCmd);
    m_ui->lineEdit_Addr->setText(editAddr);
    m_ui->lineEdit_Data->setText(groupPairsFromRight(withoutBlanks(editData.toUpper())));
    m_ui->lineEdit_Data->setCursorPosition(0);
    showValueOfHex();
    selectType(editType);
}

void DirectEditor::on_originalDataChange()
{
    const QString decimals = m_ui->lineEdit_originalData->text();
    m_ui->lineEdit_originalData->setText(encodeNumbers(decimals, intKind));
}

void DirectEditor::on_lineEdit_originalData_textChanged()
{
    const EncodedText encoded = encodedValue();
    const QSignalBlocker blocker(m_ui->lineEdit_Data);
    m_ui->lineEdit_Data->setText(encoded.hex);
    tellUnencodable(encoded.unencodable);
}

void DirectEditor::on_pushButton_ok_clicked()
{
    const bool isString = m_ui->comboBox_dataType->currentIndex() == stringTypeIndex;
    editData = withoutBlanks(m_ui->lineEdit_Data->text());
    editCmd = m_ui->lineEdit_Od->text();
    editAddr = m_ui->lineEdit_Addr->text();
    editType = (isString ? m_ui->comboBox_encode : m_ui->comboBox_dataType)->currentText();
    emit SendData();
    accept();
}

void DirectEditor::on_comboBox_dataType_currentIndexChanged()
{
    showValueOfHex();
}

void DirectEditor::on_comboBox_encode_currentIndexChanged()
{
    showValueOfHex();
}

void DirectEditor::on_pushButton_cancel_clicked()
{
    close();
}

void DirectEditor::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        // Only now the fields have their widths.
        goToBeginningOfLong(m_ui->lineEdit_Addr);
        goToBeginningOfLong(m_ui->lineEdit_originalData);
        QLineEdit &first = *m_ui->lineEdit_Od;
        first.setFocus();
        // From its end, so that its beginning is in view.
        first.setSelection(first.text().size(), -first.text().size());
    }
}

/// Not connected by name: Qt could not tell which of a box's two signals is meant.
void DirectEditor::connectFields()
{
    const auto typeChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_ui->lineEdit_originalData, &QLineEdit::textChanged, this,
            &DirectEditor::on_lineEdit_originalData_textChanged);
    connect(m_ui->comboBox_dataType, typeChanged, this,
            &DirectEditor::on_comboBox_dataType_currentIndexChanged);
    connect(m_ui->comboBox_encode, typeChanged, this,
            &DirectEditor::on_comboBox_encode_currentIndexChanged);
    connect(m_ui->pushButton_ok, &QPushButton::clicked, this,
            &DirectEditor::on_pushButton_ok_clicked);
    connect(m_ui->pushButton_cancel, &QPushButton::clicked, this,
            &DirectEditor::on_pushButton_cancel_clicked);
}

/// Reads the hex in the chosen type. The hex itself stays: only typing a value changes it.
void DirectEditor::showValueOfHex()
{
    const QSignalBlocker blocker(m_ui->lineEdit_originalData);
    const int type = m_ui->comboBox_dataType->currentIndex();
    const bool isString = type == stringTypeIndex;
    const QString hex = m_ui->lineEdit_Data->text();
    m_ui->comboBox_encode->setEnabled(isString);
    m_ui->lineEdit_originalData->setText(isString ? withoutTerminator(decodeString(hex, encoding()))
                                                  : decodeNumbers(hex, numberKindOfItem(type)));
    if (isVisible()) {
        goToBeginningOfLong(m_ui->lineEdit_originalData);
    }
}

void DirectEditor::selectType(const QString &rowType)
{
    const EditorSelection selection = editorSelection(rowType);
    m_ui->comboBox_dataType->setCurrentIndex(selection.type);
    m_ui->comboBox_encode->setCurrentIndex(selection.encoding);
}

/// The hex of the value as typed; nothing, not even a terminator, for an empty field.
EncodedText DirectEditor::encodedValue() const
{
    const QString value = m_ui->lineEdit_originalData->text();
    const int type = m_ui->comboBox_dataType->currentIndex();
    if (value.isEmpty()) {
        return {};
    }
    if (type != stringTypeIndex) {
        return {encodeNumbers(value, numberKindOfItem(type)), {}};
    }
    EncodedText encoded = encodeString(value, encoding());
    encoded.hex = withTerminator(encoded.hex);
    return encoded;
}

/// Tells once, not with every further character. The flag changes first: whoever is told may run
/// an event loop.
void DirectEditor::tellUnencodable(const QString &unencodable)
{
    const bool toldBefore = m_unencodableTold;
    m_unencodableTold = !unencodable.isEmpty();
    if (m_unencodableTold && !toldBefore) {
        emit unencodableTyped(unencodableReport(unencodable, encoding(), textCodec(encoding())));
    }
}

StringEncoding DirectEditor::encoding() const
{
    return static_cast<StringEncoding>(m_ui->comboBox_encode->currentIndex());
}

/// The dialog width at which the hex of eight "int" values can be seen whole.
int DirectEditor::widthForValues() const
{
    constexpr int pairs = 8 * 4;
    QLineEdit *hex = m_ui->lineEdit_Data;
    hex->ensurePolished();
    hex->setMinimumWidth(widthForPairs(hex, pairs));
    const int width = minimumSizeHint().width();
    hex->setMinimumWidth(0);
    return width;
}
