#include "app/serialtab.h"

#include "app/openlist.h"
#include "app/styles.h"
#include "links/serial/serialoptions.h"
#include "ui_serialtab.h"
#include "widgets/countvalidator.h"

#include <QSignalBlocker>

SerialTab::SerialTab(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::SerialTab>())
{
    m_form->setupUi(this);
    fillOptions();
    watchChoices();
    showIdle(*m_form->pushButton_OpenCom, tr("Open Com Port"));
}

SerialTab::~SerialTab() = default;

void SerialTab::showPorts(const QStringList &names, int selected)
{
    QComboBox &box = *m_form->comboBox_Comm;
    const QSignalBlocker blocker(box);
    box.clear();
    box.addItems(names);
    for (int i = 0; i < box.count(); ++i) {
        box.setItemData(i, box.itemText(i), Qt::ToolTipRole);
    }
    if (selected >= 0) {
        box.setCurrentIndex(selected);
    }
    adjustOpenList(box);
}

SerialSettings SerialTab::settings() const
{
    SerialSettings settings;
    settings.portName = m_form->comboBox_Comm->currentText();
    settings.baudRate = baudRate();
    settings.dataBits = SerialOptions::dataBitsAt(m_form->comboBox_DataBit->currentIndex());
    settings.parity = SerialOptions::parityAt(m_form->comboBox_Parity->currentIndex());
    settings.stopBits = SerialOptions::stopBitsAt(m_form->comboBox_StopBit->currentIndex());
    return settings;
}

void SerialTab::prepareBaudRate(int index)
{
    QComboBox &box = *m_form->comboBox_Baudrate;
    const bool custom = index == SerialOptions::customBaudRate;
    box.setEditable(custom);
    if (!custom) {
        return;
    }
    // The rate is what was typed: no listed rate is put in its place, and none is added to the
    // list.
    box.setCompleter(nullptr);
    box.setInsertPolicy(QComboBox::NoInsert);
    constexpr int editWidth = 70;
    constexpr int editPoints = 11;
    QLineEdit &edit = *box.lineEdit();
    edit.setValidator(new CountValidator(SerialOptions::highestBaudRate, &edit));
    edit.setStyleSheet(customBaudRateStyle());
    edit.setMaximumWidth(editWidth);
    edit.setFont(QFont(QStringLiteral("Arial"), editPoints));
    edit.setText(QString());
    connect(&edit, &QLineEdit::textEdited, this, &SerialTab::lineChosen);
}

void SerialTab::showOpen(bool open)
{
    if (open) {
        showBusy(*m_form->pushButton_OpenCom, tr("Linking..."));
        // A box that is disabled hands its focus on to the next field.
        m_form->pushButton_OpenCom->setFocus();
    } else {
        showIdle(*m_form->pushButton_OpenCom, tr("Open Com Port"));
    }
    const QList<QComboBox *> settings{m_form->comboBox_Comm, m_form->comboBox_Baudrate,
                                      m_form->comboBox_DataBit, m_form->comboBox_StopBit,
                                      m_form->comboBox_Parity};
    for (QComboBox *box : settings) {
        box->setEnabled(!open);
    }
}

void SerialTab::setResting(bool resting)
{
    m_form->pushButton_OpenCom->setDisabled(resting);
    m_form->pushButton_SendAll->setDisabled(resting);
    m_form->checkBox_CRC_EN->setDisabled(resting);
    m_form->lineEdit_SBytes->setDisabled(resting);
}

bool SerialTab::wantsCrc() const
{
    return m_form->checkBox_CRC_EN->isChecked();
}

void SerialTab::enableCrcBox()
{
    m_form->checkBox_CRC_EN->setEnabled(true);
}

void SerialTab::setReopens(bool reopens)
{
    m_form->checkBox_Reopen->setChecked(reopens);
}

HeaderField &SerialTab::header() const
{
    return *m_form->lineEdit_SBytes;
}

QLabel &SerialTab::statusLabel() const
{
    return *m_form->label_Status;
}

void SerialTab::fillOptions()
{
    m_form->comboBox_Baudrate->addItems(SerialOptions::baudRates());
    m_form->comboBox_Baudrate->setCurrentIndex(SerialOptions::defaultBaudRate);
    m_form->comboBox_DataBit->addItems(SerialOptions::dataBits());
    m_form->comboBox_DataBit->setCurrentIndex(SerialOptions::defaultDataBits);
    m_form->comboBox_Parity->addItems(SerialOptions::parities());
    m_form->comboBox_StopBit->addItems(SerialOptions::stopBits());
    m_form->comboBox_StopBit->setEditable(false);
}

void SerialTab::watchChoices()
{
    for (const QComboBox *box : {m_form->comboBox_Baudrate, m_form->comboBox_DataBit,
                                 m_form->comboBox_Parity, m_form->comboBox_StopBit}) {
        connect(box, QOverload<int>::of(&QComboBox::activated), this, &SerialTab::lineChosen);
    }
    connect(m_form->checkBox_Reopen, &QCheckBox::toggled, this, &SerialTab::reopensChanged);
}

qint32 SerialTab::baudRate() const
{
    const QComboBox &box = *m_form->comboBox_Baudrate;
    const bool custom = box.currentIndex() == SerialOptions::customBaudRate;
    const QString text =
        custom && box.lineEdit() != nullptr ? box.lineEdit()->text() : box.currentText();
    return static_cast<qint32>(text.toUInt());
}
