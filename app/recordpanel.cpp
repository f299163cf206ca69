#include "app/recordpanel.h"

#include "app/recordingtexts.h"
#include "app/styles.h"
#include "recording/recordingjob.h"
#include "ui_recordpanel.h"

#include <QDir>

RecordPanel::RecordPanel(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::RecordPanel>())
{
    m_form->setupUi(this);
    m_form->label_Record->hide();
    showIdle(*m_form->pushButton_Record, tr("Record…"));
    m_form->pushButton_Record->setToolTip(
        tr("Writes everything that goes over the wire into a file"));
    connect(m_form->pushButton_Record, &QPushButton::clicked, this, &RecordPanel::recordClicked);
    connect(m_form->pushButton_Export, &QPushButton::clicked, this, &RecordPanel::exportClicked);
}

RecordPanel::~RecordPanel() = default;

void RecordPanel::showStatus(const RecordingStatus &status, bool isRecording)
{
    if (isRecording) {
        showBusy(*m_form->pushButton_Record, tr("Stop recording"));
    } else {
        showIdle(*m_form->pushButton_Record, tr("Record…"));
    }
    m_form->label_Record->setText(describeRecording(status, isRecording));
    m_form->label_Record->setToolTip(QDir::toNativeSeparators(status.path));
    m_form->label_Record->setVisible(!status.path.isEmpty());
}

void RecordPanel::setExporting(bool isExporting)
{
    m_form->pushButton_Export->setEnabled(!isExporting);
}
