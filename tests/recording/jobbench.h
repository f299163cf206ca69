#pragma once

#include "frames/timeunits.h"
#include "recording/recordingjob.h"
#include "recordingsamples.h"

#include <QMap>
#include <QtTest>

/// Files in memory, with the faults of a disk.
class MemorySink : public RecordingSink
{
public:
    Created create(const QString &path) override
    {
        if (files.contains(path)) {
            return Created::NameIsTaken;
        }
        if (refusesFiles) {
            return Created::No;
        }
        files.insert(path, {});
        names.append(path);
        isOpen = true;
        return Created::Yes;
    }

    bool write(const QByteArray &bytes) override
    {
        ++writes;
        if (takesNothing) {
            return false;
        }
        files[names.last()] += bytes;
        return true;
    }

    bool sync() override
    {
        ++syncs;
        return !failsToSync;
    }

    bool isThere() const override { return !isGone; }
    std::optional<qint64> freeBytes() const override { return free; }
    void close() override { isOpen = false; }
    QString error() const override { return "no luck"; }

    ReadFile read(int file) const { return readBytes(files.value(names.at(file))); }

    QMap<QString, QByteArray> files;
    QStringList names;
    int writes = 0;
    int syncs = 0;
    bool isOpen = false;
    bool refusesFiles = false;
    bool takesNothing = false;
    bool failsToSync = false;
    bool isGone = false;
    std::optional<qint64> free = 1LL << 40;
};

/// A job on such a disk, which has begun at the sample's time.
class JobBench
{
public:
    explicit JobBench(const QString &path = "/a/run.jsonl")
    {
        plan.path = path;
        plan.head = sampleHead();
        plan.limits.localTime = [](qint64 utcUs) {
            return QDateTime::fromMSecsSinceEpoch(utcUs / usPerMs, Qt::UTC);
        };
    }

    RecordingJob &begun()
    {
        m_job.emplace(plan, sink).begin(sampleTime());
        return *m_job;
    }

    RecordingPlan plan;
    MemorySink sink;

private:
    std::optional<RecordingJob> m_job;
};

inline RecordEvent frameAt(qint64 us)
{
    return sampleEvent(RecordEvent::Kind::Received, "5AA50142", us);
}

/// Microseconds from the sample's time to midnight: 2 h 15 min 58.876544 s.
constexpr qint64 toMidnight = ((2 * 60 + 15) * 60 + 58) * usPerSecond + 876544;
