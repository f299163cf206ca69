#pragma once

#include <QElapsedTimer>
#include <QThread>

/// Holds up the thread, as a busy machine or a long paint does, for longer than a lone start byte
/// is held, and until the condition is met.
template<typename Condition>
void stallUntil(Condition isMet)
{
    constexpr int stallMs = 80;
    QElapsedTimer stalled;
    stalled.start();
    while (!stalled.hasExpired(stallMs) || !isMet()) {
        QThread::msleep(1);
    }
}
