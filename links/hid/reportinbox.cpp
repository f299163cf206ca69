#include "links/hid/reportinbox.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::milliseconds settleTime{2};
/// A tiny report counts as this many bytes, since it takes at least as much room.
constexpr int leastBytes = 64;

int countedBytes(const QByteArray &report)
{
    return std::max(report.size(), leastBytes);
}

} // namespace

ReportInbox::ReportInbox(QObject *parent)
    : QObject(parent)
{
    m_due.setSingleShot(true);
    m_due.setTimerType(Qt::PreciseTimer);
    connect(&m_due, &QTimer::timeout, this, [this] { handUpDueBy(Clock::now()); });
}

void ReportInbox::put(const QByteArray &report, ArrivalTime time)
{
    if (report.isEmpty()) {
        return;
    }
    const int bytes = countedBytes(report);
    if (m_bytes + bytes > capacity) {
        handUpAll();
    }
    if (m_bytes + bytes > capacity) {
        m_waiting.back().droppedBehind += report.size();
        return;
    }
    m_bytes += bytes;
    m_waiting.push_back({report, time, Clock::now() + settleTime});
    if (!m_due.isActive()) {
        wake();
    }
}

void ReportInbox::handUpAll()
{
    handUpDueBy(Clock::time_point::max());
}

void ReportInbox::clear()
{
    m_waiting.clear();
    m_bytes = 0;
    m_due.stop();
}

void ReportInbox::handUpDueBy(Clock::time_point moment)
{
    if (m_busy) {
        return;
    }
    m_busy = true;
    while (!m_waiting.empty() && m_waiting.front().due <= moment) {
        const Waiting oldest = takeOldest();
        emit arrived(oldest.report, oldest.time);
        if (oldest.droppedBehind > 0) {
            emit dropped(oldest.droppedBehind);
        }
    }
    m_busy = false;
    wake();
}

ReportInbox::Waiting ReportInbox::takeOldest()
{
    Waiting oldest = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_bytes -= countedBytes(oldest.report);
    return oldest;
}

void ReportInbox::wake()
{
    if (m_waiting.empty() || m_busy) {
        m_due.stop();
        return;
    }
    const auto left = std::max(m_waiting.front().due - Clock::now(), Clock::duration::zero());
    m_due.start(std::chrono::ceil<std::chrono::milliseconds>(left));
}
