#include "app/csvjob.h"

#include "frames/messages.h"
#include "system/regularfile.h"

#include <QFile>
#include <QSaveFile>

namespace {

CsvExport exportFile(const QString &recordingPath, const QString &csvPath)
{
    CsvExport outcome;
    QFile recording;
    if (!openRegularFile(recording, recordingPath, QIODevice::ReadOnly)) {
        outcome.error = Messages::tr("the recording can't be read");
        return outcome;
    }
    QSaveFile csv(csvPath);
    if (csv.open(QIODevice::WriteOnly)) {
        outcome = exportCsv(recording, csv,
                            [] { return !QThread::currentThread()->isInterruptionRequested(); });
    }
    if (outcome.error.isEmpty() && !csv.commit()) {
        outcome.error = csv.errorString();
    }
    return outcome;
}

} // namespace

CsvJob::CsvJob(QObject *parent)
    : QObject(parent)
{}

CsvJob::~CsvJob()
{
    if (m_thread) {
        m_thread->requestInterruption();
        m_thread->wait();
    }
}

bool CsvJob::start(const QString &recording, const QString &csv)
{
    if (m_thread) {
        return false;
    }
    auto outcome = std::make_shared<CsvExport>();
    m_thread.reset(
        QThread::create([outcome, recording, csv] { *outcome = exportFile(recording, csv); }));
    connect(m_thread.get(), &QThread::finished, this, [this, outcome, csv] {
        m_thread->wait();
        m_thread.reset();
        emit finished(*outcome, csv);
    });
    m_thread->start();
    return true;
}
