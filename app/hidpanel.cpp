#include "app/hidpanel.h"

#include "app/datafolder.h"
#include "app/linktexts.h"
#include "app/openlist.h"
#include "app/styles.h"
#include "links/hid/hidlink.h"
#include "ui_dialog.h"

#include <QDir>
#include <QStandardItemModel>

namespace {

constexpr int hexBase = 16;
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

HidPanel::HidPanel(Ui::Dialog &form, HidLink &link, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_link(link)
{
    connect(&m_link, &Link::openChanged, this, &HidPanel::showOpen);
    showIdle(*m_form.pushButton_ConnectHID, tr("Open HID Device"));
    // Whether there is a device is not known before the first look.
    m_form.label_Hid_Hint->hide();
    m_form.label_Hid_Hint->setToolTip(QDir::toNativeSeparators(dataFile(typesFile)));
}

void HidPanel::refreshDevices()
{
    QComboBox &box = *m_form.comboBox_Hid_Device;
    const QStringList paths = m_link.listDevices();
    const int chosen = paths.indexOf(box.currentText());
    // The box frees the model that it had, since that one was its own, too.
    box.setModel(modelOf(paths, &box));
    if (chosen >= 0) {
        box.setCurrentIndex(chosen);
    }
    box.setPlaceholderText(tr("No device, see %1").arg(typesFile));
    m_form.label_Hid_Hint->setVisible(paths.isEmpty());
    adjustOpenList(box);
}

void HidPanel::open()
{
    const auto reportId =
        static_cast<quint8>(m_form.lineEdit_RpID->text().toUInt(nullptr, hexBase));
    const QString path = m_form.comboBox_Hid_Device->currentText();
    if (!m_link.open(path, reportId)) {
        emit failed(whyHidFailed(path, m_link.idsOf(path), m_link.failure()));
    }
}

void HidPanel::toggle()
{
    if (m_link.isOpen()) {
        m_link.close();
    } else {
        open();
    }
}

void HidPanel::showOpen(bool open)
{
    if (open) {
        showBusy(*m_form.pushButton_ConnectHID, tr("Linking..."));
        m_form.pushButton_ConnectHID->setFocus();
    } else {
        showIdle(*m_form.pushButton_ConnectHID, tr("Open HID Device"));
    }
    m_form.lineEdit_RpID->setEnabled(!open);
    m_form.comboBox_Hid_Device->setEnabled(!open);
}
