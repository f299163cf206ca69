#pragma once

#include "recording/recordevent.h"

#include <QMutex>
#include <QVector>
#include <QWaitCondition>

/// What waits between the thread that events happen in and the one that writes them. It has room
/// for so many bytes; an event that it has no room for is dropped and counted.
class EventQueue
{
public:
    /// What has been gathered since the last time.
    struct Batch
    {
        QVector<RecordEvent> events;
        qint64 droppedEvents = 0;
        qint64 droppedBytes = 0;
        /// Nothing follows this batch.
        bool isLast = false;
    };

    static constexpr qint64 mostBytes = 8LL * 1024 * 1024;
    /// With so many bytes, a waiting reader is woken.
    static constexpr qint64 bytesToWake = 64LL * 1024;

    /// Appends an event without waiting for anybody; false where there is no room, and after
    /// `close`.
    bool put(const RecordEvent &event);

    /// Nothing more will be put in; a waiting reader is woken.
    void close();

    /// Takes all that is there, after at most so many ms: sooner once enough has been gathered, and
    /// where the queue is closed.
    Batch take(int patienceMs);

    /// What an event counts for, in bytes: about what it needs in memory.
    static qint64 weightOf(const RecordEvent &event);

private:
    QMutex m_lock;
    QWaitCondition m_enough;
    Batch m_batch;
    qint64 m_bytes = 0;
};
