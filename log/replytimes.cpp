#include "log/replytimes.h"

#include <algorithm>

void ReplyTimes::noteSent(int rowId, qint64 timeNs)
{
    passTime(timeNs);
    m_waiting.push_back({rowId, timeNs, m_isTotalOpen ? m_totals : 0});
    if (m_isTotalOpen) {
        ++m_total.sent;
    }
    if (rowId == 0) {
        return;
    }
    if (m_rows.size() >= mostRows && !m_rows.contains(rowId)) {
        forgetOldestRow();
    }
    Row &row = m_rows[rowId];
    ++row.replies.sent;
    row.lastSentNs = timeNs;
}

bool ReplyTimes::noteReceived(qint64 timeNs)
{
    passTime(timeNs);
    const auto lastBefore =
        std::find_if(m_waiting.rbegin(), m_waiting.rend(),
                     [timeNs](const Waiting &sent) { return sent.sentNs <= timeNs; });
    if (lastBefore == m_waiting.rend()) {
        return false;
    }
    auto answered = std::prev(lastBefore.base());
    while (answered != m_waiting.begin() && std::prev(answered)->sentNs == answered->sentNs) {
        --answered;
    }
    answer(*answered, timeNs);
    m_waiting.erase(answered);
    return true;
}

void ReplyTimes::passTime(qint64 nowNs)
{
    while (!m_waiting.empty() && nowNs - m_waiting.front().sentNs > longestWaitNs) {
        lose(m_waiting.front());
        m_waiting.pop_front();
    }
}

const Replies *ReplyTimes::of(int rowId) const
{
    const auto row = m_rows.constFind(rowId);
    return row != m_rows.constEnd() ? &row->replies : nullptr;
}

void ReplyTimes::beginTotal()
{
    m_total = {};
    m_isTotalOpen = true;
    ++m_totals;
}

void ReplyTimes::forgetOldestRow()
{
    m_rows.erase(
        std::min_element(m_rows.begin(), m_rows.end(), [](const Row &one, const Row &other) {
            return one.lastSentNs < other.lastSentNs;
        }));
}

void ReplyTimes::answer(const Waiting &sent, qint64 timeNs)
{
    const auto note = [&](Replies &replies) {
        replies.lastNs = timeNs - sent.sentNs;
        replies.times.add(replies.lastNs);
    };
    if (const auto row = m_rows.find(sent.rowId); row != m_rows.end()) {
        note(row->replies);
    }
    if (sent.total != 0 && sent.total == m_totals) {
        note(m_total);
    }
}

void ReplyTimes::lose(const Waiting &sent)
{
    if (const auto row = m_rows.find(sent.rowId); row != m_rows.end()) {
        ++row->replies.lost;
    }
    if (sent.total != 0 && sent.total == m_totals) {
        ++m_total.lost;
    }
}
