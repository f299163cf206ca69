#include "simulator/playscript.h"

#include <algorithm>

namespace {

bool isReply(const RecordEvent &event)
{
    return event.kind == RecordEvent::Kind::Received || event.kind == RecordEvent::Kind::Stray;
}

} // namespace

PlayScript::PlayScript(const QVector<RecordEvent> &events)
{
    std::optional<qint64> begin;
    for (const RecordEvent &event : events) {
        if (event.kind == RecordEvent::Kind::Sent && !event.bytes.isEmpty()) {
            m_exchanges.append(Exchange{event.bytes, {}});
            begin = event.time.monotonicNs;
        } else if (isReply(event)) {
            begin = begin.value_or(event.time.monotonicNs);
            QVector<Reply> &replies =
                m_exchanges.isEmpty() ? m_opening : m_exchanges.last().replies;
            replies.append({std::max<qint64>(0, event.time.monotonicNs - *begin), event.bytes});
        }
    }
}

QVector<QVector<PlayScript::Reply>> PlayScript::take(const QByteArray &bytes)
{
    QVector<QVector<Reply>> answers;
    m_waiting += bytes;
    while (!m_waiting.isEmpty()) {
        if (const std::optional<int> found = findRequest()) {
            const Exchange &exchange = m_exchanges.at(*found);
            answers.append(exchange.replies);
            m_waiting.remove(0, exchange.request.size());
            m_next = *found + 1;
        } else if (mayBecomeRequest()) {
            break;
        } else {
            m_waiting.remove(0, 1);
        }
    }
    return answers;
}

/// The request that the waiting bytes begin with.
std::optional<int> PlayScript::findRequest() const
{
    for (int i = 0; i < m_exchanges.size(); ++i) {
        const int place = (m_next + i) % m_exchanges.size();
        if (m_waiting.startsWith(m_exchanges.at(place).request)) {
            return place;
        }
    }
    return std::nullopt;
}

bool PlayScript::mayBecomeRequest() const
{
    return std::any_of(m_exchanges.begin(), m_exchanges.end(), [this](const Exchange &exchange) {
        return exchange.request.startsWith(m_waiting);
    });
}
