#include "recording/recordingjob.h"

#include "frames/timeunits.h"
#include "recording/recordingname.h"

#include <utility>

namespace {

/// More names than that are not tried.
constexpr int mostTakenNames = 10000;
const QString fullDiskWords =
    QLatin1String(QT_TRANSLATE_NOOP("Messages", "the disk is nearly full"));
const QString goneFileWords = QLatin1String(QT_TRANSLATE_NOOP("Messages", "the file is gone"));

} // namespace

RecordingJob::RecordingJob(RecordingPlan plan, RecordingSink &sink)
    : m_plan(std::move(plan))
    , m_sink(sink)
    , m_writer(makeRecordingWriter(recordingFormatOf(m_plan.path)))
{
    m_status.path = m_plan.path;
    m_waiting.reserve(2 * m_plan.limits.batchBytes);
}

bool RecordingJob::begin(ArrivalTime now)
{
    m_status.isRunning = true;
    m_plan.head.part = 1;
    return beginFile(now);
}

void RecordingJob::take(const RecordEvent &event)
{
    if (!m_status.isRunning) {
        return;
    }
    if (isOfAnotherDay(event.time)) {
        goOnInNextFile(event.time, QStringLiteral("midnight"));
    } else if (m_fileBytes + m_waiting.size() >= m_plan.limits.fileBytes) {
        goOnInNextFile(event.time, QStringLiteral("the file is full"));
    }
    if (event.kind == RecordEvent::Kind::Open) {
        m_plan.head.link = event.link;
        m_plan.head.settings = event.settings;
    }
    m_writer->append(m_waiting, event);
    m_fileTally.add(event);
    m_tally.add(event);
    ++m_status.events;
    if (m_waiting.size() >= m_plan.limits.batchBytes) {
        write();
    }
}

void RecordingJob::noteDropped(qint64 events, qint64 bytes, ArrivalTime now)
{
    m_status.droppedEvents += events;
    m_status.droppedBytes += bytes;
    RecordEvent note;
    note.time = now;
    note.text = QStringLiteral("%1 events with %2 bytes dropped: the disk is too slow")
                    .arg(events)
                    .arg(bytes);
    take(note);
}

void RecordingJob::pass(ArrivalTime now)
{
    if (m_status.isRunning && isOfAnotherDay(now)) {
        goOnInNextFile(now, QStringLiteral("midnight"));
    }
    write();
    syncIfDue(now);
    lookIfDue(now);
}

void RecordingJob::end(ArrivalTime now)
{
    if (m_status.isRunning) {
        endFile(now, QStringLiteral("stopped"));
        m_status.isRunning = false;
    }
}

bool RecordingJob::beginFile(ArrivalTime now)
{
    if (!createFile(now)) {
        stop(m_sink.error());
        return false;
    }
    m_day = localTime(now.utcUs).date();
    m_fileBytes = 0;
    m_fileTally.clear();
    m_lastSyncNs = now.monotonicNs;
    m_lastLookNs = now.monotonicNs;
    m_plan.head.time = now;
    m_waiting += m_writer->head(m_plan.head);
    write();
    if (m_status.isRunning && !hasRoom()) {
        stopInGoodOrder(now, fullDiskWords);
    }
    return m_status.isRunning;
}

bool RecordingJob::createFile(ArrivalTime now)
{
    for (int i = 0; i < mostTakenNames; ++i) {
        switch (m_sink.create(m_status.path)) {
        case RecordingSink::Created::Yes:
            return true;
        case RecordingSink::Created::No:
            return false;
        case RecordingSink::Created::NameIsTaken:
            break;
        }
        m_status.path = nextRecordingPath(m_status.path, localTime(now.utcUs));
    }
    return false;
}

void RecordingJob::endFile(ArrivalTime now, const QString &reason)
{
    RecordingTail tail;
    tail.time = now;
    tail.file = m_fileTally.sums();
    tail.recording = m_tally.sums();
    tail.droppedEvents = m_status.droppedEvents;
    tail.droppedBytes = m_status.droppedBytes;
    tail.reason = reason;
    m_waiting += m_writer->tail(tail);
    write();
    if (m_status.isRunning && !m_sink.sync()) {
        stop(m_sink.error());
    }
    m_sink.close();
}

void RecordingJob::goOnInNextFile(ArrivalTime now, const QString &reason)
{
    endFile(now, reason);
    if (m_status.isRunning) {
        ++m_plan.head.part;
        m_status.path = nextRecordingPath(m_status.path, localTime(now.utcUs));
        beginFile(now);
    }
}

void RecordingJob::write()
{
    if (!m_status.isRunning || m_waiting.isEmpty()) {
        return;
    }
    if (!m_sink.write(m_waiting)) {
        stop(m_sink.error());
        return;
    }
    m_fileBytes += m_waiting.size();
    m_status.bytes += m_waiting.size();
    // The memory stays for what comes next.
    m_waiting.resize(0);
}

void RecordingJob::syncIfDue(ArrivalTime now)
{
    if (m_status.isRunning && now.monotonicNs - m_lastSyncNs >= m_plan.limits.syncMs * nsPerMs) {
        m_lastSyncNs = now.monotonicNs;
        if (!m_sink.sync()) {
            stop(m_sink.error());
        }
    }
}

void RecordingJob::lookIfDue(ArrivalTime now)
{
    if (!m_status.isRunning || now.monotonicNs - m_lastLookNs < m_plan.limits.lookMs * nsPerMs) {
        return;
    }
    m_lastLookNs = now.monotonicNs;
    if (!m_sink.isThere()) {
        stop(goneFileWords);
    } else if (!hasRoom()) {
        stopInGoodOrder(now, fullDiskWords);
    }
}

/// Whether a day after that of the file has begun. The calendar is asked once for each second.
bool RecordingJob::isOfAnotherDay(ArrivalTime time)
{
    const qint64 second = time.utcUs / usPerSecond;
    if (second == m_secondOfDay) {
        return false;
    }
    const bool isLater = localTime(time.utcUs).date() > m_day;
    m_secondOfDay = isLater ? noSecond : second;
    return isLater;
}

bool RecordingJob::hasRoom() const
{
    return m_sink.freeBytes().value_or(m_plan.limits.freeBytes) >= m_plan.limits.freeBytes;
}

void RecordingJob::stop(const QString &error)
{
    m_status.isRunning = false;
    m_status.error = error;
    m_waiting.clear();
    m_sink.close();
}

void RecordingJob::stopInGoodOrder(ArrivalTime now, const QString &error)
{
    endFile(now, error);
    if (m_status.isRunning) {
        stop(error);
    }
}

QDateTime RecordingJob::localTime(qint64 utcUs) const
{
    return m_plan.limits.localTime ? m_plan.limits.localTime(utcUs)
                                   : QDateTime::fromMSecsSinceEpoch(utcUs / usPerMs);
}
