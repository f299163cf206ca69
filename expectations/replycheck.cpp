#include "expectations/replycheck.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int usualTimeoutMs = 500;
constexpr int mostKnown = 1024;
constexpr size_t mostWaiting = 1024;

ReceivedFrame notBefore(qint64 timeNs, ReceivedFrame frame)
{
    frame.timeNs = std::max(frame.timeNs, timeNs);
    return frame;
}

} // namespace

void ReplyCheck::noteSent(const QVector<BlockPart> &parts, qint64 timeNs)
{
    forgetOld(timeNs);
    const bool anyExpects = std::any_of(parts.begin(), parts.end(), [](const BlockPart &part) {
        return !part.expectations.isEmpty();
    });
    if (!anyExpects && m_waiting.empty()) {
        return;
    }
    for (const BlockPart &part : parts) {
        m_waiting.push_back({timeNs, trialOf(part.expectations, timeNs)});
    }
    while (m_waiting.size() > mostWaiting) {
        m_waiting.pop_front();
    }
}

QString ReplyCheck::judge(const ReceivedFrame &frame, qint64 handedUpNs)
{
    forgetOld(frame.timeNs);
    const bool mayBeLater = std::exchange(m_readNs, frame.timeNs) == frame.timeNs;
    if (isTakenByARowThatItFits(frame, mayBeLater)) {
        return {};
    }
    Place place = answered(frame.timeNs);
    if (place == m_waiting.end() && mayBeLater) {
        place = answered(handedUpNs);
    }
    if (place == m_waiting.end()) {
        return {};
    }
    if (!place->trial) {
        m_waiting.erase(place);
        return {};
    }
    RowTrial judged = *place->trial;
    const QString before = judged.failure();
    const ReceivedFrame answer =
        frame.timeNs < place->sentNs ? notBefore(handedUpNs, frame) : frame;
    judged.take(answer);
    take(place, answer);
    return judged.failure() == before ? QString() : judged.failure();
}

std::optional<RowTrial> ReplyCheck::trialOf(const QString &expectations, qint64 timeNs)
{
    if (expectations.isEmpty()) {
        return std::nullopt;
    }
    if (m_known.size() >= mostKnown) {
        m_known.clear();
    }
    auto known = m_known.find(expectations);
    if (known == m_known.end()) {
        known = m_known.insert(expectations, rowExpectationOf(expectations));
    }
    if (known->expectation.isEmpty()) {
        return std::nullopt;
    }
    RowTrial trial(known->expectation, known->settings.replyTimeoutMs.value_or(usualTimeoutMs),
                   false);
    trial.begin(timeNs);
    return trial;
}

/// What comes late is still to be told so.
void ReplyCheck::forgetOld(qint64 nowNs)
{
    const auto isOld = [nowNs](const Waiting &row) {
        const qint64 end = row.sentNs + longestWaitNs;
        return nowNs > (row.trial ? std::max(end, row.trial->dueNs()) : end);
    };
    while (!m_waiting.empty() && isOld(m_waiting.front())) {
        m_waiting.pop_front();
    }
}

/// A row that went out meanwhile is taken to be answered at once: nobody knows it to be late.
bool ReplyCheck::isTakenByARowThatItFits(const ReceivedFrame &frame, bool mayBeLater)
{
    const auto asSeenBy = [&frame, mayBeLater](const Waiting &row) {
        return mayBeLater ? notBefore(row.sentNs, frame) : frame;
    };
    const auto fits = [&asSeenBy](const Waiting &row) {
        return row.trial && row.trial->fits(asSeenBy(row));
    };
    const auto found = std::find_if(m_waiting.rbegin(), m_waiting.rend(), fits);
    if (found == m_waiting.rend()) {
        return false;
    }
    take(std::prev(found.base()), asSeenBy(*found));
    return true;
}

/// Of what went out last before that time, the first that waits.
ReplyCheck::Place ReplyCheck::answered(qint64 timeNs)
{
    const auto last = std::find_if(m_waiting.rbegin(), m_waiting.rend(),
                                   [timeNs](const Waiting &row) { return row.sentNs <= timeNs; });
    if (last == m_waiting.rend()) {
        return m_waiting.end();
    }
    return std::find_if(m_waiting.begin(), m_waiting.end(),
                        [&last](const Waiting &row) { return row.sentNs == last->sentNs; });
}

/// A trial that is over waits no longer.
void ReplyCheck::take(Place place, const ReceivedFrame &frame)
{
    place->trial->take(frame);
    if (place->trial->isOver()) {
        m_waiting.erase(place);
    }
}
