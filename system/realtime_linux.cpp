#include "system/realtime.h"

#include <sched.h>

namespace {

/// Above the ordinary threads, below those of the system's own that are real-time.
constexpr int modestPriority = 5;

} // namespace

RealTime::RealTime()
{
    sched_param before{};
    m_policyBefore = sched_getscheduler(0);
    sched_getparam(0, &before);
    m_priorityBefore = before.sched_priority;
    sched_param wanted{};
    wanted.sched_priority = modestPriority;
    m_isGranted = sched_setscheduler(0, SCHED_RR | SCHED_RESET_ON_FORK, &wanted) == 0;
}

RealTime::~RealTime()
{
    if (m_isGranted) {
        sched_param before{};
        before.sched_priority = m_priorityBefore;
        // Only who has the right to go before others may clear the mark that forks don't.
        if (sched_setscheduler(0, m_policyBefore, &before) != 0) {
            sched_setscheduler(0, m_policyBefore | SCHED_RESET_ON_FORK, &before);
        }
    }
}
