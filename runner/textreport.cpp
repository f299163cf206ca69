#include "runner/textreport.h"

#include "expectations/rowtrial.h"
#include "frames/timeunits.h"

#include <QStringList>

#include <utility>

namespace {

constexpr int red = 31;
constexpr int green = 32;

QByteArray asLine(const QString &text)
{
    return text.toUtf8() + '\n';
}

QString exactMilliseconds(qint64 ns)
{
    constexpr int decimals = 3;
    return QString::number(double(ns) / nsPerMs, 'f', decimals);
}

QString counted(qint64 count, const QString &one, const QString &many)
{
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
}

QString strayText(qint64 bytes)
{
    return counted(bytes, QStringLiteral("stray byte"), QStringLiteral("stray bytes"));
}

/// Without what would move the cursor or colour the terminal.
QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

QString directionOf(LogRecord::Kind kind)
{
    switch (kind) {
    case LogRecord::Kind::Sent:
        return QStringLiteral("tx");
    case LogRecord::Kind::Received:
        return QStringLiteral("rx");
    default:
        return QStringLiteral("stray");
    }
}

} // namespace

TextReport::TextReport(Detail detail, bool isColoured)
    : m_detail(detail)
    , m_isColoured(isColoured)
{}

QByteArray TextReport::file(const QString &name, int pass)
{
    m_fileLine = pass == 1 ? name : QStringLiteral("%1, pass %2").arg(name).arg(pass);
    return m_detail == Detail::Failures ? QByteArray() : asLine(std::exchange(m_fileLine, {}));
}

QByteArray TextReport::traffic(const LogRecord &record)
{
    if (m_detail != Detail::Traffic || record.kind == LogRecord::Kind::Event) {
        return {};
    }
    return asLine(QStringLiteral("      %1  %2")
                      .arg(directionOf(record.kind), -5)
                      .arg(bytesText(record.bytes)));
}

QString TextReport::shownVerdict(const RowResult &result) const
{
    const QString word = verdictWord(result.verdict);
    if (!result.isGood()) {
        return coloured(word.toUpper(), red);
    }
    return result.verdict == RowResult::Verdict::Passed ? coloured(word, green) : word;
}

QByteArray TextReport::row(const RowResult &result)
{
    if (m_detail == Detail::Failures && result.isGood()) {
        return {};
    }
    QStringList parts{shownVerdict(result)};
    parts.append(printable(rowName(result)));
    if (!result.why.isEmpty()) {
        parts.append(result.why);
    } else if (result.replyTimeNs) {
        parts.append(millisecondsText(*result.replyTimeNs));
    }
    if (result.strayBytes > 0) {
        parts.append(strayText(result.strayBytes));
    }
    if (result.attempts > 1) {
        parts.append(QStringLiteral("sent %1 times").arg(result.attempts));
    }
    QByteArray lines;
    if (!m_fileLine.isEmpty()) {
        lines = asLine(std::exchange(m_fileLine, {}));
    }
    return lines + asLine(parts.join(QLatin1String("  ")));
}

QByteArray TextReport::closing(const RunSummary &summary, RunEnd end)
{
    QString text = summaryText(summary);
    if (!endText(end).isEmpty()) {
        text += QStringLiteral("; ") + endText(end);
    }
    return asLine(text);
}

QString TextReport::coloured(const QString &text, int colour) const
{
    return m_isColoured ? QStringLiteral("\x1B[%1m%2\x1B[0m").arg(colour).arg(text) : text;
}

QString summaryText(const RunSummary &summary)
{
    QStringList parts{
        counted(summary.rows, QStringLiteral("row"), QStringLiteral("rows")),
        QStringLiteral("%1 sent").arg(summary.sent),
        counted(summary.replies, QStringLiteral("reply"), QStringLiteral("replies")),
        counted(summary.failures, QStringLiteral("failure"), QStringLiteral("failures"))};
    if (summary.strayBytes > 0) {
        parts.append(strayText(summary.strayBytes));
    }
    QString text = parts.join(QLatin1String(", "));
    if (const Durations &times = summary.replyTimes; times.count() > 0) {
        text += QStringLiteral("; reply time min %1, median %2, p99 %3, max %4 ms")
                    .arg(exactMilliseconds(times.least()), exactMilliseconds(times.median()),
                         exactMilliseconds(times.percentile(99)), exactMilliseconds(times.most()));
    }
    if (const Durations &late = summary.lateness; late.count() > 0) {
        text += QStringLiteral("; sent late by p99 %1, worst %2 ms, %3")
                    .arg(exactMilliseconds(late.percentile(99)), exactMilliseconds(late.most()),
                         summary.isRealTime ? QStringLiteral("real-time")
                                            : QStringLiteral("not real-time"));
    }
    return text;
}
