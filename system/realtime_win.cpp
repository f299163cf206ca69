#include "system/realtime.h"

#include <windows.h>

RealTime::RealTime()
    : m_priorityBefore(GetThreadPriority(GetCurrentThread()))
{
    m_isGranted = SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_TIME_CRITICAL) != 0;
}

RealTime::~RealTime()
{
    if (m_isGranted) {
        SetThreadPriority(GetCurrentThread(), m_priorityBefore);
    }
}
