#include "expectations/rowtrial.h"

#include "frames/messages.h"
#include "frames/timeunits.h"

#include <algorithm>
#include <utility>

namespace {

QString textOf(const QVector<ExpectedFrame> &frames)
{
    QStringList texts;
    for (const ExpectedFrame &frame : frames) {
        texts.append(frame.pattern.text());
    }
    return texts.join(Messages::tr(" or "));
}

} // namespace

QString bytesText(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

QString millisecondsText(qint64 ns)
{
    return QString::number(double(ns) / double(nsPerMs), 'f', 1) + QLatin1String(" ms");
}

RowTrial::RowTrial(Expectation expectation, int timeoutMs, bool isStrict)
    : m_expectation(std::move(expectation))
    , m_timeoutMs(timeoutMs)
    , m_isStrict(isStrict)
{}

void RowTrial::begin(qint64 sentNs)
{
    m_sentNs = sentNs;
    m_sinceNs = sentNs;
    m_nowNs = sentNs;
}

bool RowTrial::take(const ReceivedFrame &frame)
{
    if (frame.timeNs < m_sentNs || isOver()) {
        return false;
    }
    m_nowNs = std::max(m_nowNs, frame.timeNs);
    m_replies.append(frame.payload);
    if (!m_replyTimeNs) {
        m_replyTimeNs = frame.timeNs - m_sentNs;
    }
    checkForbidden(frame);
    judge(frame);
    return true;
}

void RowTrial::judge(const ReceivedFrame &frame)
{
    const QVector<ExpectedFrame> *const wanted = awaited();
    if (wanted != nullptr) {
        fail(whyNot(*wanted, frame));
        ++m_frames;
        m_sinceNs = frame.timeNs;
    } else if (m_isStrict) {
        fail(Messages::tr("nothing more expected, got %1").arg(bytesText(frame.payload)) +
             after(frame.timeNs));
    }
}

bool RowTrial::fits(const ReceivedFrame &frame) const
{
    const QVector<ExpectedFrame> *const wanted = awaited();
    return frame.timeNs >= m_sentNs && wanted != nullptr && !m_gaveUp &&
           whyForbidden(frame).isEmpty() && whyNot(*wanted, frame).isEmpty();
}

void RowTrial::checkForbidden(const ReceivedFrame &frame)
{
    fail(whyForbidden(frame));
}

QString RowTrial::whyForbidden(const ReceivedFrame &frame) const
{
    for (const ExpectedFrame &forbidden : m_expectation.forbidden) {
        const bool counts = !forbidden.withinMs || frame.timeNs <= limitNs(forbidden, m_sentNs);
        if (counts && forbidden.pattern.matches(frame.payload)) {
            return Messages::tr("%1 is forbidden, got %2")
                       .arg(forbidden.pattern.text(), bytesText(frame.payload)) +
                   after(frame.timeNs);
        }
    }
    return {};
}

/// Empty where the frame is one of those that are wanted, and in time.
QString RowTrial::whyNot(const QVector<ExpectedFrame> &wanted, const ReceivedFrame &frame) const
{
    const QString got =
        Messages::tr("expected %1, got %2").arg(textOf(wanted), bytesText(frame.payload));
    if (frame.crc == ReceivedFrame::Crc::Bad) {
        return got + Messages::tr(" with a bad CRC") + after(frame.timeNs);
    }
    bool isLate = false;
    for (const ExpectedFrame &expected : wanted) {
        if (expected.pattern.matches(frame.payload)) {
            if (frame.timeNs <= limitNs(expected, m_sinceNs)) {
                return {};
            }
            isLate = true;
        }
    }
    return got + after(frame.timeNs) + (isLate ? Messages::tr(", too late") : QString());
}

void RowTrial::takeStray(const QByteArray &bytes, qint64 timeNs)
{
    if (m_isStrict && timeNs >= m_sentNs && !isOver()) {
        fail(Messages::tr("no frame: %1").arg(bytesText(bytes)) + after(timeNs));
    }
}

void RowTrial::passTime(qint64 nowNs)
{
    m_nowNs = std::max(m_nowNs, nowNs);
    const QVector<ExpectedFrame> *const wanted = awaited();
    if (wanted == nullptr || m_nowNs < latestNs(*wanted, m_sinceNs)) {
        return;
    }
    fail(
        Messages::tr("expected %1, got nothing").arg(textOf(*wanted)) +
        Messages::tr(" within %1").arg(millisecondsText(latestNs(*wanted, m_sinceNs) - m_sinceNs)));
    m_gaveUp = true;
}

bool RowTrial::isOver() const
{
    return m_gaveUp || (awaited() == nullptr && m_nowNs >= quietUntilNs());
}

qint64 RowTrial::dueNs() const
{
    const QVector<ExpectedFrame> *const wanted = awaited();
    return wanted == nullptr ? quietUntilNs() : latestNs(*wanted, m_sinceNs);
}

/// What the next frame has to be; nothing once all have come.
const QVector<ExpectedFrame> *RowTrial::awaited() const
{
    const auto &replies = m_expectation.replies;
    return m_frames < replies.size() ? &replies.at(m_frames) : nullptr;
}

qint64 RowTrial::limitNs(const ExpectedFrame &frame, qint64 sinceNs) const
{
    return sinceNs + frame.withinMs.value_or(m_timeoutMs) * nsPerMs;
}

qint64 RowTrial::latestNs(const QVector<ExpectedFrame> &frames, qint64 sinceNs) const
{
    qint64 latest = sinceNs;
    for (const ExpectedFrame &frame : frames) {
        latest = std::max(latest, limitNs(frame, sinceNs));
    }
    return latest;
}

/// Until when nothing forbidden may come. A row that awaits frames waits for them alone, unless a
/// time is named.
qint64 RowTrial::quietUntilNs() const
{
    qint64 latest = m_sentNs;
    for (const ExpectedFrame &forbidden : m_expectation.forbidden) {
        if (forbidden.withinMs || m_expectation.replies.isEmpty()) {
            latest = std::max(latest, limitNs(forbidden, m_sentNs));
        }
    }
    return latest;
}

QString RowTrial::after(qint64 timeNs) const
{
    return Messages::tr(" after %1").arg(millisecondsText(timeNs - m_sentNs));
}

/// What went wrong first is what is told.
void RowTrial::fail(const QString &words)
{
    if (m_failure.isEmpty()) {
        m_failure = words;
    }
}
