#include "runner/runrecording.h"

#include "runner/output.h"
#include "session/session.h"

#include <utility>

RunRecording::RunRecording(Session &session, QString path, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_path(std::move(path))
{
    connect(&m_session.tap(), &WireTap::happened, &m_recorder, &Recorder::record);
    connect(&m_recorder, &Recorder::changed, this, &RunRecording::follow);
}

RecordingHead RunRecording::head() const
{
    RecordingHead head = m_session.tap().head();
    head.version = QStringLiteral(TARNWICK_VERSION);
    return head;
}

void RunRecording::start()
{
    if (m_path.isEmpty()) {
        QMetaObject::invokeMethod(this, &RunRecording::began, Qt::QueuedConnection);
        return;
    }
    RecordingPlan plan;
    plan.path = m_path;
    plan.head = head();
    m_recorder.start(plan);
}

bool RunRecording::finish()
{
    const bool isClosed = m_recorder.finish();
    const RecordingStatus &status = m_recorder.status();
    return isClosed && status.error.isEmpty() && status.droppedEvents == 0;
}

/// A run goes on without its recording, but whoever waits for it learns that at once.
void RunRecording::follow()
{
    const RecordingStatus &status = m_recorder.status();
    if (!status.error.isEmpty()) {
        if (m_hasBegun) {
            complain(failure());
        } else {
            emit failed(failure());
        }
    } else if (status.isRunning && !std::exchange(m_hasBegun, true)) {
        if (status.path != m_path) {
            complain(QStringLiteral("Recording to %1.").arg(status.path));
        }
        emit began();
    }
}

QString RunRecording::failure() const
{
    const RecordingStatus &status = m_recorder.status();
    return QStringLiteral("%1: %2").arg(status.path, status.error);
}
