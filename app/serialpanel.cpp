#include "app/serialpanel.h"

#include "app/linktexts.h"
#include "app/openlist.h"
#include "app/styles.h"
#include "links/serial/portlist.h"
#include "links/serial/seriallink.h"
#include "links/serial/serialoptions.h"
#include "ui_dialog.h"
#include "widgets/countvalidator.h"

#include <QSignalBlocker>

SerialPanel::SerialPanel(Ui::Dialog &form, SerialLink &link, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_link(link)
{
    connect(&m_link, &Link::openChanged, this, &SerialPanel::showOpen);
    fillOptions();
    showIdle(*m_form.pushButton_OpenCom, tr("Open Com Port"));
}

void SerialPanel::refreshPorts(const QString &linksFolder)
{
    const PortList ports = listPorts(linksFolder);
    QComboBox &box = *m_form.comboBox_Comm;
    const QSignalBlocker blocker(box);
    box.clear();
    box.insertItems(box.count(), ports.names);
    for (int i = 0; i < box.count(); ++i) {
        box.setItemData(i, box.itemText(i), Qt::ToolTipRole);
    }
    selectPort(ports.names.indexOf(m_chosenPortName));
    const bool isUsbPort = ports.names.value(ports.usbSerialIndex) == m_chosenPortName;
    if (ports.usbSerialIndex >= 0 && !m_link.isOpen() && isUsbPort) {
        selectPort(ports.usbSerialIndex);
    }
    adjustOpenList(box);
}

void SerialPanel::open()
{
    const SerialSettings settings = chosenSettings();
    m_chosenPortName = settings.portName;
    if (!m_link.open(settings)) {
        emit failed(whyPortFailed(settings.portName, m_link.failure()));
    }
}

void SerialPanel::toggle()
{
    if (m_link.isOpen()) {
        m_link.close();
    } else {
        open();
    }
}

void SerialPanel::prepareBaudRate(int index)
{
    QComboBox &box = *m_form.comboBox_Baudrate;
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
}

void SerialPanel::fillOptions()
{
    const QSignalBlocker blocker(*m_form.comboBox_Baudrate);
    m_form.comboBox_Baudrate->addItems(SerialOptions::baudRates());
    m_form.comboBox_Baudrate->setCurrentIndex(SerialOptions::defaultBaudRate);
    m_form.comboBox_DataBit->addItems(SerialOptions::dataBits());
    m_form.comboBox_DataBit->setCurrentIndex(SerialOptions::defaultDataBits);
    m_form.comboBox_Parity->addItems(SerialOptions::parities());
    m_form.comboBox_StopBit->addItems(SerialOptions::stopBits());
    m_form.comboBox_StopBit->setEditable(false);
}

SerialSettings SerialPanel::chosenSettings() const
{
    SerialSettings settings;
    settings.portName = m_form.comboBox_Comm->currentText();
    settings.baudRate = baudRate();
    settings.dataBits = SerialOptions::dataBitsAt(m_form.comboBox_DataBit->currentIndex());
    settings.parity = SerialOptions::parityAt(m_form.comboBox_Parity->currentIndex());
    settings.stopBits = SerialOptions::stopBitsAt(m_form.comboBox_StopBit->currentIndex());
    return settings;
}

qint32 SerialPanel::baudRate() const
{
    const QComboBox &box = *m_form.comboBox_Baudrate;
    const bool custom = box.currentIndex() == SerialOptions::customBaudRate;
    const QString text =
        custom && box.lineEdit() != nullptr ? box.lineEdit()->text() : box.currentText();
    return static_cast<qint32>(text.toUInt());
}

void SerialPanel::selectPort(int index)
{
    if (index >= 0) {
        m_form.comboBox_Comm->setCurrentIndex(index);
    }
}

void SerialPanel::showOpen(bool open)
{
    if (open) {
        showBusy(*m_form.pushButton_OpenCom, tr("Linking..."));
        // A box that is disabled hands its focus on to the next field.
        m_form.pushButton_OpenCom->setFocus();
    } else {
        showIdle(*m_form.pushButton_OpenCom, tr("Open Com Port"));
    }
    const QList<QWidget *> settings{m_form.comboBox_Comm, m_form.comboBox_Parity,
                                    m_form.comboBox_Baudrate, m_form.comboBox_DataBit,
                                    m_form.comboBox_StopBit};
    for (QWidget *box : settings) {
        box->setEnabled(!open);
    }
}
