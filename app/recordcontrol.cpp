#include "app/recordcontrol.h"

#include "app/recordingtexts.h"
#include "app/recordpanel.h"
#include "app/statusline.h"
#include "app/windowmemory.h"
#include "recording/recordingname.h"
#include "session/session.h"
#include "version.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

const QString jsonLinesFilter = QStringLiteral("JSON Lines (*.jsonl)");
const QString pcapngFilter = QStringLiteral("pcapng (*.pcapng)");

QString withRecordingSuffix(const QString &path, const QString &filter)
{
    if (!QFileInfo(path).suffix().isEmpty()) {
        return path;
    }
    return path + (filter == pcapngFilter ? QLatin1String(".pcapng") : QLatin1String(".jsonl"));
}

} // namespace

RecordControl::RecordControl(RecordPanel &panel, Session &session, StatusLine &status,
                             WindowMemory &memory, QObject *parent)
    : QObject(parent)
    , m_panel(panel)
    , m_session(session)
    , m_status(status)
    , m_memory(memory)
{
    connect(&m_panel, &RecordPanel::recordClicked, this, &RecordControl::startOrStop);
    connect(&m_panel, &RecordPanel::exportClicked, this, &RecordControl::exportRecording);
    connect(&m_session.tap(), &WireTap::happened, &m_recorder, &Recorder::record);
    connect(&m_recorder, &Recorder::changed, this, &RecordControl::showStatus);
    connect(&m_recorder, &Recorder::ended, this, &RecordControl::tellEnd);
    connect(&m_export, &CsvJob::finished, this,
            [this](const CsvExport &outcome, const QString &fileName) {
                m_panel.setExporting(false);
                m_status.tell(describeExport(outcome, fileName));
            });
}

RecordControl::~RecordControl()
{
    m_session.tap().stop();
    m_recorder.disconnect(this);
}

QString RecordControl::file() const
{
    return m_recorder.isRecording() ? QDir::toNativeSeparators(m_recorder.status().path)
                                    : QString();
}

void RecordControl::startOrStop()
{
    if (m_recorder.isRecording()) {
        stop();
    } else {
        start();
    }
}

void RecordControl::start()
{
    const QString proposed = proposedRecordingName(
        QDateTime::currentDateTime(), m_session.tap().head().link, RecordingFormat::JsonLines);
    QString filter = jsonLinesFilter;
    // A file that exists isn't overwritten, so there is nothing to ask.
    const QString chosen = QFileDialog::getSaveFileName(
        m_panel.window(), tr("Record"), QDir(folder()).filePath(proposed),
        jsonLinesFilter + QStringLiteral(";;") + pcapngFilter, &filter,
        QFileDialog::DontConfirmOverwrite);
    if (chosen.isEmpty()) {
        return;
    }
    m_memory.setRecordingFolder(QFileInfo(chosen).absolutePath());
    RecordingPlan plan;
    plan.path = withRecordingSuffix(chosen, filter);
    plan.head = m_session.tap().head();
    plan.head.version = QLatin1String(programVersion);
    m_session.tap().start();
    m_toldFile.clear();
    tellFile(plan.path);
    m_recorder.start(plan);
    showStatus();
}

void RecordControl::stop()
{
    m_session.tap().stop();
    m_recorder.stop();
    showStatus();
}

void RecordControl::showStatus()
{
    m_panel.showStatus(m_recorder.status(), m_recorder.isRecording());
    if (m_recorder.status().isRunning) {
        tellFile(m_recorder.status().path);
    }
}

/// The name that was chosen, and the one that is taken instead where there is such a file.
void RecordControl::tellFile(const QString &path)
{
    if (std::exchange(m_toldFile, path) != path) {
        m_status.tell(tr("Recording to %1").arg(QDir::toNativeSeparators(path)));
    }
}

void RecordControl::tellEnd()
{
    const RecordingStatus &status = m_recorder.status();
    if (status.error.isEmpty()) {
        m_status.tell(tr("Recorded: %1").arg(QDir::toNativeSeparators(status.path)));
    } else {
        m_session.tap().stop();
        m_status.tell(whyRecordingStopped(status));
    }
}

void RecordControl::exportRecording()
{
    const QString recording = QFileDialog::getOpenFileName(
        m_panel.window(), tr("Export a recording"), folder(), tr("Recordings (*.jsonl *.pcapng)"));
    if (recording.isEmpty()) {
        return;
    }
    const QFileInfo file(recording);
    const QString csv = QFileDialog::getSaveFileName(
        m_panel.window(), tr("Export to"),
        QDir(file.path()).filePath(file.completeBaseName() + QStringLiteral(".csv")),
        QStringLiteral("CSV (*.csv)"));
    if (!csv.isEmpty() && m_export.start(recording, csv)) {
        m_panel.setExporting(true);
    }
}

QString RecordControl::folder() const
{
    const QString last = m_memory.recordingFolder();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString &folder : {last, documents}) {
        if (QFileInfo(folder).isDir()) {
            return folder;
        }
    }
    return QDir::homePath();
}
