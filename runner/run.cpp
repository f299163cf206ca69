#include "runner/run.h"

#include "frames/alarmclock.h"
#include "frames/timeunits.h"
#include "runner/wire.h"

#include <algorithm>
#include <utility>

namespace {

/// How soon a link that takes nothing just now is asked again.
constexpr qint64 recheckNs = nsPerMs;
/// How long a last row that expects nothing is given to reach the device, and be answered.
constexpr qint64 lingerNs = 20 * nsPerMs;

} // namespace

Run::Run(RunPlan plan, Wire &wire, AlarmClock &clock, QObject *parent)
    : QObject(parent)
    , m_plan(std::move(plan))
    , m_wire(wire)
    , m_clock(clock)
{
    connect(&m_clock, &AlarmClock::rang, this, &Run::onAlarm);
    connect(&m_wire, &Wire::frameArrived, this, &Run::takeFrame);
    connect(&m_wire, &Wire::strayArrived, this, &Run::takeStray);
    connect(&m_wire, &Wire::lost, this, &Run::lose);
}

void Run::start()
{
    if (!m_plan.hasSomethingToSend()) {
        end(RunEnd::Done);
        return;
    }
    m_passes = PassCount(m_plan.rules.passes);
    m_passes.begin();
    m_pace.begin(m_clock.now());
    schedule();
}

void Run::end(RunEnd why)
{
    if (m_stage == Stage::Ended) {
        return;
    }
    m_stage = Stage::Ended;
    m_clock.clearAlarm();
    judgeUnexpected();
    emit ended(why);
}

void Run::onAlarm()
{
    switch (m_stage) {
    case Stage::BeforeRow:
        if (m_wire.isBehind()) {
            m_clock.setAlarm(m_clock.now() + recheckNs);
        } else {
            send();
        }
        return;
    case Stage::Waiting:
        m_trial->passTime(m_clock.now());
        settle();
        return;
    case Stage::Draining:
        drain();
        return;
    case Stage::Idle:
    case Stage::Ended:
        return;
    }
}

/// Goes on to the next row that sends something; pauses on the way put it off. False at the end.
bool Run::reachRow()
{
    for (;;) {
        if (m_row >= file().rows.size()) {
            if (!enterFile()) {
                return false;
            }
            continue;
        }
        if (m_row == 0 && m_attempts == 0) {
            m_wire.setFormat(file().layout, file().gapMs);
            emit fileBegan(m_file, pass());
        }
        if (!row().isPause()) {
            return true;
        }
        m_pace.pause(m_overNs, row().pauseMs);
        ++m_row;
    }
}

/// Goes on to the next file, or to the next pass. False at the end.
bool Run::enterFile()
{
    const int cycleDelayMs = file().cycleDelayMs;
    m_row = 0;
    if (++m_file < m_plan.files.size()) {
        return true;
    }
    m_file = 0;
    m_pace.pause(m_overNs, cycleDelayMs);
    if (m_passes.isLast()) {
        return false;
    }
    m_passes.begin();
    return true;
}

void Run::schedule()
{
    if (!reachRow()) {
        m_stage = Stage::Draining;
        m_lingerUntilNs = m_repliesAreFree ? m_clock.now() + lingerNs : 0;
        drain();
        return;
    }
    m_stage = Stage::BeforeRow;
    const qint64 now = m_clock.now();
    m_isAwaited = m_pace.due() > now;
    m_clock.setAlarm(std::max(now, m_pace.due()));
}

void Run::send()
{
    const qint64 now = m_clock.now();
    if (m_isAwaited) {
        m_summary.lateness.add(now - m_pace.due());
    }
    m_pace.meet(now, file().intervalMs, m_isAwaited);
    m_overNs = 0;
    m_repliesAreFree = row().expectation.isEmpty();
    m_trial.emplace(row().expectation, file().replyTimeoutMs, m_plan.rules.isStrict);
    m_stage = Stage::Waiting;
    m_strayBytes = m_attempts == 0 ? 0 : m_strayBytes;
    ++m_attempts;
    ++m_summary.sent;
    m_trial->begin(m_wire.send(row()));
    settle();
}

/// Goes on where nothing is waited for any more.
void Run::settle()
{
    if (!m_trial->isOver()) {
        m_clock.setAlarm(m_trial->dueNs());
        return;
    }
    if (!m_repliesAreFree) {
        m_overNs = m_clock.now();
    }
    if (m_trial->hasFailed() && m_attempts <= m_plan.rules.retries) {
        m_stage = Stage::BeforeRow;
        m_isAwaited = false;
        m_clock.setAlarm(m_clock.now());
        return;
    }
    finishRow();
}

void Run::finishRow()
{
    const RowResult result = currentResult();
    tell(result);
    if (m_stage == Stage::Ended) {
        return;
    }
    ++m_row;
    m_attempts = 0;
    if (!result.isGood() && m_plan.rules.failsFast) {
        end(RunEnd::FailedFast);
    } else {
        schedule();
    }
}

void Run::tell(const RowResult &result)
{
    ++m_summary.rows;
    if (!result.isGood()) {
        ++m_summary.failures;
    }
    if (result.replyTimeNs) {
        m_summary.replyTimes.add(*result.replyTimeNs);
    }
    emit judged(result);
}

RowResult Run::currentResult() const
{
    using Verdict = RowResult::Verdict;
    RowResult result;
    result.number = row().number;
    result.description = row().description;
    result.pass = pass();
    result.verdict = m_trial->hasFailed()          ? Verdict::Failed
                     : row().expectation.isEmpty() ? Verdict::Sent
                                                   : Verdict::Passed;
    result.why = m_trial->failure();
    result.sent = row().frame;
    result.replies = m_trial->replies();
    result.replyTimeNs = m_trial->replyTimeNs();
    result.strayBytes = m_strayBytes;
    result.attempts = m_attempts;
    return result;
}

void Run::takeFrame(const ReceivedFrame &frame)
{
    ++m_summary.replies;
    if (m_stage == Stage::Waiting && m_trial->take(frame)) {
        settle();
    } else if (!m_repliesAreFree) {
        noteUnexpected(frame.payload);
    } else if (m_stage == Stage::Draining) {
        m_lingerUntilNs = 0;
        drain();
    }
}

void Run::takeStray(const QByteArray &bytes, qint64 timeNs)
{
    m_summary.strayBytes += bytes.size();
    if (m_stage == Stage::Waiting) {
        m_strayBytes += bytes.size();
        m_trial->takeStray(bytes, timeNs);
    } else {
        noteUnexpected(bytes);
    }
}

void Run::lose(const QString &reason)
{
    if (m_stage == Stage::Ended) {
        return;
    }
    if (m_stage == Stage::BeforeRow || m_stage == Stage::Waiting) {
        RowResult result;
        result.number = row().number;
        result.description = row().description;
        result.pass = pass();
        result.verdict = RowResult::Verdict::Lost;
        result.why = reason;
        result.attempts = m_attempts;
        tell(result);
    }
    end(RunEnd::LinkLost);
}

void Run::noteUnexpected(const QByteArray &bytes)
{
    if (m_stage != Stage::Ended && ++m_unexpectedCount == 1) {
        m_unexpected = bytes;
    }
}

/// What came while no row waited belongs to none, so it has a verdict of its own.
void Run::judgeUnexpected()
{
    if (!m_plan.rules.isStrict || m_unexpectedCount == 0) {
        return;
    }
    RowResult result;
    result.description = QStringLiteral("Nothing between the rows");
    result.pass = pass();
    result.verdict = RowResult::Verdict::Failed;
    result.why = QStringLiteral("expected nothing, got %1 (%2 in all)")
                     .arg(bytesText(m_unexpected))
                     .arg(m_unexpectedCount);
    tell(result);
}

void Run::drain()
{
    const qint64 now = m_clock.now();
    if (!m_wire.isDrained()) {
        m_clock.setAlarm(now + recheckNs);
    } else if (now < m_lingerUntilNs) {
        m_clock.setAlarm(m_lingerUntilNs);
    } else {
        end(RunEnd::Done);
    }
}
