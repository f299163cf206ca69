#include "recording/eventqueue.h"

#include <QDeadlineTimer>
#include <QMutexLocker>

#include <utility>

bool EventQueue::put(const RecordEvent &event)
{
    const qint64 weight = weightOf(event);
    const QMutexLocker locker(&m_lock);
    if (m_batch.isLast) {
        return false;
    }
    if (m_bytes + weight > mostBytes) {
        ++m_batch.droppedEvents;
        m_batch.droppedBytes += event.bytes.size();
        return false;
    }
    const bool wasEnough = m_bytes >= bytesToWake;
    m_bytes += weight;
    m_batch.events.append(event);
    if (!wasEnough && m_bytes >= bytesToWake) {
        m_enough.wakeAll();
    }
    return true;
}

void EventQueue::close()
{
    const QMutexLocker locker(&m_lock);
    m_batch.isLast = true;
    m_enough.wakeAll();
}

EventQueue::Batch EventQueue::take(int patienceMs)
{
    const QDeadlineTimer deadline(patienceMs);
    const QMutexLocker locker(&m_lock);
    while (!m_batch.isLast && m_bytes < bytesToWake && m_enough.wait(&m_lock, deadline)) {
    }
    m_bytes = 0;
    const bool isLast = m_batch.isLast;
    Batch batch = std::exchange(m_batch, {});
    m_batch.isLast = isLast;
    return batch;
}

qint64 EventQueue::weightOf(const RecordEvent &event)
{
    constexpr qint64 headOfArray = 32;
    constexpr qint64 bytesOfCharacter = sizeof(QChar);
    return qint64(sizeof event) + headOfArray + event.bytes.size() +
           (event.text.size() + event.link.size() + event.settings.size()) * bytesOfCharacter;
}
