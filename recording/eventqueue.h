#pragma once

#include "recording/recordevent.h"

#include <QMutex>
#include <QVector>
#include <QWaitCondition>

/// The queue between the thread in which events happen and the thread that writes them. Its room is
/// limited, in bytes. An event that doesn't fit is dropped and counted.
class EventQueue
{
public:
    /// The events that came in since the last batch.
    struct Batch
    {
        QVector<RecordEvent> events;
        qint64 droppedEvents = 0;
        qint64 droppedBytes = 0;
        /// Nothing follows this batch.
        bool isLast = false;
    };

    static constexpr qint64 mostBytes = 8LL * 1024 * 1024;
    /// From this number of bytes on, a waiting reader is woken.
    static constexpr qint64 bytesToWake = 64LL * 1024;

    /// Appends an event and never blocks. Returns false if there is no room, or after `close`.
    bool put(const RecordEvent &event);

    /// Ends the queue: nothing more is accepted, and a waiting reader is woken.
    void close();

    /// Takes all events. Waits for that many ms at most: less if enough have come in, or if the
    /// queue is closed.
    Batch take(int patienceMs);

    /// The size of an event in bytes, about what it needs in memory.
    static qint64 weightOf(const RecordEvent &event);

private:
    QMutex m_lock;
    QWaitCondition m_enough;
    Batch m_batch;
    qint64 m_bytes = 0;
};
