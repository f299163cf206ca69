#include "runner/tapreport.h"

#include "frames/timeunits.h"
#include "runner/textreport.h"

namespace {

/// A text in one line of the protocol, where a sharp would begin a directive.
QByteArray tapText(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QLatin1Char(' ');
        }
    }
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('#'), QLatin1String("\\#"));
    return text.toUtf8();
}

QByteArray yamlText(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QLatin1Char(' ');
        }
    }
    return "'" + text.replace(QLatin1Char('\''), QLatin1String("''")).toUtf8() + "'";
}

} // namespace

QByteArray TapReport::opening()
{
    return "TAP version 13\n";
}

QByteArray TapReport::file(const QString &name, int pass)
{
    const QByteArray suffix = pass == 1 ? QByteArray() : ", pass " + QByteArray::number(pass);
    return "# " + tapText(name) + suffix + '\n';
}

QByteArray TapReport::row(const RowResult &result)
{
    ++m_count;
    QByteArray text = result.isGood() ? QByteArray() : QByteArray("not ");
    text += "ok " + QByteArray::number(m_count) + " - " + tapText(rowName(result)) + '\n';
    if (result.why.isEmpty() && !result.replyTimeNs) {
        return text;
    }
    text += "  ---\n";
    if (!result.why.isEmpty()) {
        text += "  message: " + yamlText(result.why) + '\n';
    }
    if (result.replyTimeNs) {
        text +=
            "  duration_ms: " + QByteArray::number(double(*result.replyTimeNs) / nsPerMs) + '\n';
    }
    return text + "  ...\n";
}

QByteArray TapReport::closing(const RunSummary &summary, RunEnd end)
{
    QByteArray text = "# " + tapText(summaryText(summary)) + '\n';
    text += "1.." + QByteArray::number(m_count) + '\n';
    if (end == RunEnd::Done || end == RunEnd::FailedFast) {
        return text;
    }
    return text + "Bail out! " + tapText(endText(end)) + '\n';
}
