#include "runner/junitreport.h"

#include "frames/timeunits.h"

#include <utility>

namespace {

/// As wide as the counts of any suite are.
constexpr int countsWidth = 120;

/// Text for an attribute or between tags. XML has no way to say a control character.
QByteArray xmlText(const QString &text)
{
    QString allowed;
    for (const uint code : text.toUcs4()) {
        const bool isControl = code < ' ' || code == 0x7F;
        const bool isNone = code == 0xFFFE || code == 0xFFFF || (code >= 0xD800 && code < 0xE000);
        if (isControl) {
            allowed += QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'));
        } else {
            allowed += isNone ? QString(QChar::ReplacementCharacter) : QString::fromUcs4(&code, 1);
        }
    }
    return allowed.toHtmlEscaped().toUtf8();
}

QByteArray secondsText(qint64 ns)
{
    constexpr int decimals = 6;
    return QByteArray::number(double(ns) / nsPerSecond, 'f', decimals);
}

QByteArray problem(const char *tag, const RowResult &result)
{
    const QByteArray why = xmlText(result.why);
    return QByteArray("      <") + tag + " type=\"" + tag + "\" message=\"" + why + "\">" + why +
           "</" + tag + ">\n";
}

} // namespace

QByteArray JunitReport::opening()
{
    return given("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites>\n");
}

QByteArray JunitReport::file(const QString &name, int pass)
{
    const QString suite = pass == 1 ? name : QStringLiteral("%1, pass %2").arg(name).arg(pass);
    QByteArray text = endOfSuite();
    m_suite = xmlText(suite);
    m_isInSuite = true;
    m_counts = {};
    text += given("  <testsuite name=\"" + m_suite + "\" ");
    m_countsPosition = m_position;
    return text + given(textOf(m_counts) + ">\n");
}

QByteArray JunitReport::row(const RowResult &result)
{
    QByteArray text = m_isInSuite ? QByteArray() : file(QStringLiteral("tarnwick-run"), 1);
    ++m_counts.tests;
    m_counts.replyNs += result.replyTimeNs.value_or(0);
    QByteArray content;
    if (result.verdict == RowResult::Verdict::Failed) {
        ++m_counts.failures;
        content = problem("failure", result);
    } else if (result.verdict == RowResult::Verdict::Lost) {
        ++m_counts.errors;
        content = problem("error", result);
    }
    text += given("    <testcase name=\"" + xmlText(rowName(result)) + "\" classname=\"" + m_suite +
                  "\" time=\"" + secondsText(result.replyTimeNs.value_or(0)) + "\"" +
                  (content.isEmpty() ? QByteArray("/>\n") : ">\n" + content + "    </testcase>\n"));
    return text;
}

QByteArray JunitReport::closing(const RunSummary & /*summary*/, RunEnd /*end*/)
{
    const QByteArray text = endOfSuite();
    return text + given("</testsuites>\n");
}

QVector<JunitReport::Correction> JunitReport::takeCorrections()
{
    return std::exchange(m_corrections, {});
}

QByteArray JunitReport::textOf(const Counts &counts)
{
    const QByteArray text = "tests=\"" + QByteArray::number(counts.tests) + "\" failures=\"" +
                            QByteArray::number(counts.failures) + "\" errors=\"" +
                            QByteArray::number(counts.errors) + "\" time=\"" +
                            secondsText(counts.replyNs) + "\"";
    return text.leftJustified(countsWidth);
}

QByteArray JunitReport::given(const QByteArray &bytes)
{
    m_position += bytes.size();
    return bytes;
}

QByteArray JunitReport::endOfSuite()
{
    if (!std::exchange(m_isInSuite, false)) {
        return {};
    }
    m_corrections.append({m_countsPosition, textOf(m_counts)});
    return given("  </testsuite>\n");
}
