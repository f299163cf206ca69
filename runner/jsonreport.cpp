#include "runner/jsonreport.h"

#include "frames/timeunits.h"
#include "recording/jsonlineswriter.h"
#include "recording/utctext.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace {

QString hexOf(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex().toUpper());
}

QJsonObject timesOf(const Durations &times)
{
    return {{"count", times.count()},
            {"min_us", double(times.least()) / nsPerUs},
            {"median_us", double(times.median()) / nsPerUs},
            {"p99_us", double(times.percentile(99)) / nsPerUs},
            {"max_us", double(times.most()) / nsPerUs}};
}

} // namespace

QByteArray jsonLine(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject jsonOf(const RowResult &result)
{
    QJsonArray replies;
    for (const QByteArray &reply : result.replies) {
        replies.append(hexOf(reply));
    }
    QJsonObject object{{"ev", "verdict"},
                       {"row", result.number},
                       {"desc", result.description},
                       {"pass", result.pass},
                       {"verdict", verdictWord(result.verdict)},
                       {"sent", hexOf(result.sent)},
                       {"replies", replies},
                       {"attempts", result.attempts}};
    if (result.replyTimeNs) {
        object.insert("reply_us", double(*result.replyTimeNs) / nsPerUs);
    }
    if (result.strayBytes > 0) {
        object.insert("stray_bytes", result.strayBytes);
    }
    if (!result.why.isEmpty()) {
        object.insert("why", result.why);
    }
    return object;
}

JsonReport::JsonReport(std::function<RecordingHead()> head, std::function<ArrivalTime()> now)
    : m_head(std::move(head))
    , m_now(std::move(now))
{}

QByteArray JsonReport::opening()
{
    return JsonLinesWriter().head(m_head());
}

QByteArray JsonReport::file(const QString &name, int pass)
{
    m_file = name;
    return timed({{"ev", "file"}, {"file", name}, {"pass", pass}});
}

QByteArray JsonReport::event(const RecordEvent &event)
{
    m_tally.add(event);
    QByteArray line;
    JsonLinesWriter().append(line, event);
    return line;
}

QByteArray JsonReport::row(const RowResult &result)
{
    QJsonObject object = jsonOf(result);
    object.insert("file", m_file);
    return timed(object);
}

QByteArray JsonReport::closing(const RunSummary &summary, RunEnd end)
{
    const QByteArray line = timed({{"ev", "summary"},
                                   {"rows", summary.rows},
                                   {"sent", summary.sent},
                                   {"replies", summary.replies},
                                   {"failures", summary.failures},
                                   {"stray_bytes", summary.strayBytes},
                                   {"reply_time", timesOf(summary.replyTimes)},
                                   {"lateness", timesOf(summary.lateness)},
                                   {"real_time", summary.isRealTime},
                                   {"end", endText(end)}});
    RecordingTail tail;
    tail.time = m_now();
    tail.file = m_tally.sums();
    tail.recording = tail.file;
    tail.reason = end == RunEnd::Done ? QStringLiteral("done") : endText(end);
    return line + JsonLinesWriter().tail(tail);
}

QByteArray JsonReport::timed(QJsonObject object) const
{
    const ArrivalTime now = m_now();
    object.insert("t", QString::fromLatin1(utcText(now.utcUs)));
    object.insert("mono_us", now.monotonicNs / nsPerUs);
    return jsonLine(object);
}
