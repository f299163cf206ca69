#include "runner/jsonreport.h"

#include "expectations/rowtrial.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr qint64 nsPerUs = 1000;

QString hexOf(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex().toUpper());
}

QString eventWord(LogRecord::Kind kind)
{
    switch (kind) {
    case LogRecord::Kind::Sent:
        return QStringLiteral("tx");
    case LogRecord::Kind::Received:
        return QStringLiteral("rx");
    case LogRecord::Kind::Stray:
        return QStringLiteral("stray");
    case LogRecord::Kind::Event:
        break;
    }
    return QStringLiteral("notice");
}

/// With all six digits behind the second.
QString utcText(qint64 us)
{
    constexpr qint64 usPerMs = 1000;
    constexpr int digits = 3;
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(us / usPerMs, Qt::UTC);
    return time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")) +
           QStringLiteral("%1Z").arg(us % usPerMs, digits, 10, QLatin1Char('0'));
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
    if (!result.why.isEmpty()) {
        object.insert("why", result.why);
    }
    return object;
}

QByteArray JsonReport::file(const QString &name, int pass)
{
    m_file = name;
    return jsonLine({{"ev", "file"}, {"file", name}, {"pass", pass}});
}

QByteArray JsonReport::traffic(const LogRecord &record)
{
    QJsonObject object{{"t", utcText(record.utcUs)},
                       {"mono_us", record.monotonicNs / nsPerUs},
                       {"ev", eventWord(record.kind)}};
    if (record.kind == LogRecord::Kind::Event) {
        object.insert("text", record.text.english);
    } else {
        object.insert("bytes", hexOf(record.bytes));
    }
    return jsonLine(object);
}

QByteArray JsonReport::row(const RowResult &result)
{
    QJsonObject object = jsonOf(result);
    object.insert("file", m_file);
    return jsonLine(object);
}

QByteArray JsonReport::closing(const RunSummary &summary, RunEnd end)
{
    return jsonLine({{"ev", "summary"},
                     {"rows", summary.rows},
                     {"sent", summary.sent},
                     {"replies", summary.replies},
                     {"failures", summary.failures},
                     {"reply_time", timesOf(summary.replyTimes)},
                     {"lateness", timesOf(summary.lateness)},
                     {"real_time", summary.isRealTime},
                     {"end", endText(end)}});
}
