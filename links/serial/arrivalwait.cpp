#include "links/serial/arrivalwait.h"

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
        m_timer.start(settleMs);
    } else if (!m_moreCame) {
        m_moreCame = true;
        if (m_stage == Stage::AwaitingMore) {
            m_timer.start(0);
        }
    }
}

void ArrivalWait::cancel()
{
    m_timer.stop();
    m_stage = Stage::Idle;
}

void ArrivalWait::goOn()
{
    if (m_stage == Stage::Settling && !m_moreCame) {
        m_stage = Stage::AwaitingMore;
        m_timer.start(moreDataMs);
        return;
    }
    m_stage = Stage::Idle;
    emit over();
}
