#include "frames/durations.h"

#include <QtAlgorithms>

#include <algorithm>

void Durations::add(qint64 ns)
{
    const qint64 value = std::max<qint64>(0, ns);
    m_least = m_count == 0 ? value : std::min(m_least, value);
    m_most = std::max(m_most, value);
    ++m_count;
    const int place = placeOf(static_cast<quint64>(value));
    makeRoomFor(place);
    ++m_counts[static_cast<size_t>(place - m_firstPlace)];
}

void Durations::makeRoomFor(int place)
{
    const int power = place / parts * parts;
    if (m_counts.empty()) {
        m_firstPlace = power;
    }
    if (power < m_firstPlace) {
        m_counts.insert(m_counts.begin(), static_cast<size_t>(m_firstPlace - power), 0);
        m_firstPlace = power;
    }
    const auto needed = static_cast<size_t>(power + parts - m_firstPlace);
    if (m_counts.size() < needed) {
        m_counts.resize(needed);
    }
}

qint64 Durations::percentile(int percent) const
{
    constexpr int whole = 100;
    const qint64 wanted = (m_count * percent + whole - 1) / whole;
    qint64 passed = 0;
    for (size_t place = 0; place < m_counts.size(); ++place) {
        passed += m_counts.at(place);
        if (passed >= wanted) {
            return std::clamp(highestOf(m_firstPlace + static_cast<int>(place)), m_least, m_most);
        }
    }
    return m_most;
}

/// Values below `parts` have a place each; above, the highest bits tell the place.
int Durations::placeOf(quint64 ns)
{
    if (ns < parts) {
        return static_cast<int>(ns);
    }
    const int power = 63 - static_cast<int>(qCountLeadingZeroBits(ns)) - partBits;
    return power * parts + static_cast<int>(ns >> static_cast<unsigned>(power));
}

qint64 Durations::highestOf(int place)
{
    if (place < 2 * parts) {
        return place;
    }
    const int power = place / parts - 1;
    const qint64 next = place - qint64(power) * parts + 1;
    return static_cast<qint64>((static_cast<quint64>(next) << static_cast<unsigned>(power)) - 1);
}
