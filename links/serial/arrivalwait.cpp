#include "links/serial/arrivalwait.h"

#include <chrono>

namespace {

constexpr int settleMs = 2;
constexpr int moreDataMs = 5;

} // namespace

ArrivalWait::ArrivalWait(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ArrivalWait::goOn);
}

void ArrivalWait::announce()
{
    if (m_stage == Stage::Idle) {
        m_stage = Stage::Settling;
        m_moreCame = false;
        wait(settleMs);
    } else if (!m_moreCame) {
        m_moreCame = true;
        if (m_stage == Stage::AwaitingMore) {
            wait(0);
        }
    }
}

void ArrivalWait::cancel()
{
    m_timer.stop();
    m_stage = Stage::Idle;
}

void ArrivalWait::wait(int milliseconds)
{
    m_due.setRemainingTime(milliseconds, Qt::PreciseTimer);
    m_timer.start(milliseconds);
}

void ArrivalWait::goOn()
{
    if (!m_due.hasExpired()) {
        // Windows counts whole ticks of its clock, and so its timers go off up to one of them
        // early.
        m_timer.start(std::chrono::milliseconds(m_due.remainingTime()));
        return;
    }
    if (m_stage == Stage::Settling && !m_moreCame) {
        m_stage = Stage::AwaitingMore;
        wait(moreDataMs);
        return;
    }
    m_stage = Stage::Idle;
    emit over();
}
