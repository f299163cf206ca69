#pragma once

#include "recording/recordevent.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// What a recording answers with: each request that was sent, with what came in until the next one.
/// It finds requests in the bytes that arrive, wherever these are cut.
class PlayScript
{
public:
    /// Bytes that came in, so long after their request.
    struct Reply
    {
        qint64 delayNs = 0;
        QByteArray bytes;
    };

    PlayScript() = default;
    /// What isn't sent or received is passed over.
    explicit PlayScript(const QVector<RecordEvent> &events);

    /// What came in before the first request; delays count from the first of it.
    const QVector<Reply> &opening() const { return m_opening; }

    /// How many requests there are.
    int requestCount() const { return m_exchanges.size(); }

    /// Takes in bytes and returns the replies to the requests in them, each by itself. A request is
    /// looked up from behind the one answered last, then from the beginning. What begins no request
    /// is passed over.
    QVector<QVector<Reply>> take(const QByteArray &bytes);

private:
    struct Exchange
    {
        QByteArray request;
        QVector<Reply> replies;
    };

    std::optional<int> findRequest() const;
    bool mayBecomeRequest() const;

    QVector<Reply> m_opening;
    QVector<Exchange> m_exchanges;
    int m_next = 0;
    QByteArray m_waiting;
};
