#include "app/hidtab.h"

#include "app/datafolder.h"
#include "app/openlist.h"
#include "app/styles.h"
#include "ui_hidtab.h"

#include <QDir>
#include <QStandardItemModel>

namespace {

constexpr int reportIdBase = 16;
const QString typesFile = QStringLiteral("hidDeviceID.ini");

/// The paths, each with itself as tool tip, so that a long one can be read in full.
QStandardItemModel *modelOf(const QStringList &paths, QObject *owner)
{
    auto *model = new QStandardItemModel(owner);
    for (const QString &path : paths) {
        auto *item = new QStandardItem(path);
        item->setToolTip(path);
        model->appendRow(item);
    }
    return model;
}

} // namespace

HidTab::HidTab(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::HidTab>())
{
    m_form->setupUi(this);
    showIdle(*m_form->pushButton_ConnectHID, tr("Open HID Device"));
    // Whether there is a device is not known before the first look.
    m_form->label_Hid_Hint->hide();
    m_form->label_Hid_Hint->setToolTip(QDir::toNativeSeparators(dataFile(typesFile)));
}

HidTab::~HidTab() = default;

void HidTab::showDevices(const QStringList &paths)
{
    QComboBox &box = *m_form->comboBox_Hid_Device;
    const int selected = paths.indexOf(box.currentText());
    // The box frees the model that it had, since that one was its own, too.
    box.setModel(modelOf(paths, &box));
    if (selected >= 0) {
        box.setCurrentIndex(selected);
    }
    box.setPlaceholderText(tr("No device, see %1").arg(typesFile));
    m_form->label_Hid_Hint->setVisible(paths.isEmpty());
    adjustOpenList(box);
}

QString HidTab::devicePath() const
{
    return m_form->comboBox_Hid_Device->currentText();
}

quint8 HidTab::reportId() const
{
    return static_cast<quint8>(m_form->lineEdit_RpID->text().toUInt(nullptr, reportIdBase));
}

void HidTab::showOpen(bool open)
{
    if (open) {
        showBusy(*m_form->pushButton_ConnectHID, tr("Linking..."));
        m_form->pushButton_ConnectHID->setFocus();
    } else {
        showIdle(*m_form->pushButton_ConnectHID, tr("Open HID Device"));
    }
    m_form->lineEdit_RpID->setEnabled(!open);
    m_form->comboBox_Hid_Device->setEnabled(!open);
}

void HidTab::setResting(bool resting)
{
    m_form->pushButton_ConnectHID->setDisabled(resting);
    m_form->checkBox_CRC_EN_2->setDisabled(resting);
    m_form->pushButton_SendAll_2->setDisabled(resting);
    m_form->lineEdit_SBytes_2->setDisabled(resting);
}

bool HidTab::wantsCrc() const
{
    return m_form->checkBox_CRC_EN_2->isChecked();
}

QLabel &HidTab::statusLabel() const
{
    return *m_form->label_Status_2;
}
