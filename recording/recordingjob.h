#pragma once

#include "recording/recordingfacts.h"
#include "recording/recordingsink.h"
#include "recording/recordingwriter.h"
#include "recording/wiretally.h"

#include <QDateTime>

#include <functional>
#include <limits>

/// When a recording writes, goes over to another file, and stops.
struct RecordingLimits
{
    /// With that many bytes waiting, they are written at once.
    int batchBytes = 64 * 1024;
    /// Bytes of a file before the next one begins.
    qint64 fileBytes = 256LL * 1024 * 1024;
    /// Bytes that stay free on the disk.
    qint64 freeBytes = 200LL * 1024 * 1024;
    qint64 syncMs = 5000;
    /// How often the disk is asked whether all is well.
    qint64 lookMs = 1000;
    /// The local time of a time in us since 1970 began (UTC); the system's, where there is none.
    std::function<QDateTime(qint64 utcUs)> localTime;
};

/// What is to be recorded, and where to.
struct RecordingPlan
{
    /// The first file; where it exists, the next free name after it.
    QString path;
    RecordingHead head;
    RecordingLimits limits;
};

/// The progress of a recording.
struct RecordingStatus
{
    bool isRunning = false;
    /// The file that is written, or was written last.
    QString path;
    /// Bytes in all files so far, and events in them.
    qint64 bytes = 0;
    qint64 events = 0;
    qint64 droppedEvents = 0;
    qint64 droppedBytes = 0;
    /// Why it stopped by itself; empty if it was told to stop.
    QString error;
};

/// A recording from its first file to its last. It knows neither clock nor disk: it is told the
/// time and writes to a sink. Each call may take as long as the sink takes.
class RecordingJob
{
public:
    /// The sink must outlive the job.
    RecordingJob(RecordingPlan plan, RecordingSink &sink);

    /// Begins the first file. Returns whether the recording runs.
    bool begin(ArrivalTime now);

    /// Accepts an event. It is written when enough is waiting, or in the next pass.
    void take(const RecordEvent &event);

    /// Counts events that were dropped for lack of room, and their bytes.
    void noteDropped(qint64 events, qint64 bytes, ArrivalTime now);

    /// Writes what is waiting and does whatever is due. Call it every 100 ms.
    void pass(ArrivalTime now);

    /// Completes and closes the last file.
    void end(ArrivalTime now);

    const RecordingStatus &status() const { return m_status; }

private:
    bool beginFile(ArrivalTime now);
    bool createFile(ArrivalTime now);
    void endFile(ArrivalTime now, const QString &reason);
    void goOnInNextFile(ArrivalTime now, const QString &reason);
    void write();
    void syncIfDue(ArrivalTime now);
    void lookIfDue(ArrivalTime now);
    bool isOfAnotherDay(ArrivalTime time);
    bool hasRoom() const;
    void stop(const QString &error);
    void stopInGoodOrder(ArrivalTime now, const QString &error);
    QDateTime localTime(qint64 utcUs) const;

    RecordingPlan m_plan;
    RecordingSink &m_sink;
    std::unique_ptr<RecordingWriter> m_writer;
    RecordingStatus m_status;
    QByteArray m_waiting;
    qint64 m_fileBytes = 0;
    WireTally m_fileTally;
    WireTally m_tally;
    static constexpr qint64 noSecond = std::numeric_limits<qint64>::min();

    QDate m_day;
    /// A second that is known to lie within that day, or before it.
    qint64 m_secondOfDay = noSecond;
    qint64 m_lastSyncNs = 0;
    qint64 m_lastLookNs = 0;
};
