#pragma once

/// While one of these exists, the thread that made it goes before all ordinary ones, as far as the
/// system grants it. What the program starts meanwhile doesn't.
class RealTime
{
public:
    RealTime();
    ~RealTime();
    RealTime(const RealTime &) = delete;
    RealTime &operator=(const RealTime &) = delete;

    bool isGranted() const { return m_isGranted; }

private:
    bool m_isGranted = false;
    int m_policyBefore = 0;
    int m_priorityBefore = 0;
};
