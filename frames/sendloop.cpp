#include "frames/sendloop.h"

#include "frames/alarmclock.h"
#include "frames/sender.h"
#include "frames/timeunits.h"

#include <utility>

namespace {

constexpr qint64 lookAgainNs = 5 * nsPerMs;

} // namespace

SendLoop::SendLoop(Sender &sender, AlarmClock &clock, QObject *parent)
    : QObject(parent)
    , m_sender(sender)
    , m_clock(clock)
{
    connect(&m_clock, &AlarmClock::rang, this, &SendLoop::onAlarm);
}

void SendLoop::start(const LoopPlan &plan, LoopTiming timing)
{
    stop();
    m_hasRows = !plan.texts.isEmpty();
    m_steps = loopSteps(plan, timing.intervalMs);
    m_cycleDelayMs = timing.cycleDelayMs;
    m_passes = PassCount(timing.passes);
    m_headerNotice = {};
    m_running = true;
    m_deadlines.meet(m_clock.now());
    wait(m_cycleDelayMs);
    m_clock.setAlarm(m_deadlines.due());
}

void SendLoop::stop()
{
    m_clock.clearAlarm();
    m_running = false;
    m_inPass = false;
    m_sentCount = 0;
    m_awaited.reset();
    ++m_stops;
}

void SendLoop::runPass()
{
    if (!m_running || m_inPass) {
        return;
    }
    if (!m_hasRows) {
        stop();
        emit foundNothing();
        return;
    }
    m_clock.clearAlarm();
    m_deadlines.meet(m_clock.now());
    m_nextStep = 0;
    m_inPass = true;
    m_passes.begin();
    const unsigned stops = m_stops;
    const qint64 pass = m_passes.current();
    goOn();
    if (stops == m_stops) {
        emit passBegan(pass);
    }
}

bool SendLoop::isDueWithin(int milliseconds) const
{
    return m_running && m_deadlines.due() - m_clock.now() <= milliseconds * nsPerMs;
}

void SendLoop::onAlarm()
{
    if (m_inPass) {
        goOn();
    } else {
        emit passDue();
    }
}

void SendLoop::goOn()
{
    const unsigned stops = m_stops;
    while (m_nextStep < m_steps.size()) {
        const LoopStep step = m_steps.at(m_nextStep);
        if (step.sends() && !maySend()) {
            return;
        }
        ++m_nextStep;
        take(step);
        // A message shown while sending may have let in a stop, and even a new start.
        if (stops != m_stops) {
            return;
        }
    }
    if (mayGoOn()) {
        endPass();
    }
}

bool SendLoop::mayGoOn()
{
    if (m_clock.now() >= m_deadlines.due()) {
        return true;
    }
    m_clock.setAlarm(m_deadlines.due());
    return false;
}

bool SendLoop::maySend()
{
    if (!mayGoOn()) {
        return false;
    }
    // A loop that outruns the wire would fill the memory, and go on long after a stop.
    if (m_sender.isLinkBehind()) {
        m_clock.setAlarm(m_clock.now() + lookAgainNs);
        return false;
    }
    return true;
}

void SendLoop::take(const LoopStep &step)
{
    if (step.sends()) {
        send(step);
    } else {
        wait(step.waitMs);
    }
}

void SendLoop::wait(int milliseconds)
{
    m_deadlines.wait(milliseconds);
    if (milliseconds > 0) {
        m_awaited = m_deadlines.due();
    }
}

void SendLoop::send(const LoopStep &step)
{
    const unsigned stops = m_stops;
    const qint64 now = m_clock.now();
    const qint64 due = std::exchange(m_awaited, std::nullopt).value_or(now + 1);
    const bool isText = step.kind == LoopStep::Kind::Text;
    m_sentCount += isText ? 1 : 0;
    const QByteArray sent =
        isText ? m_sender.handOverText(step.text, m_headerNotice, step.parts.value(0))
               : m_sender.handOverBlock(step.block, step.parts);
    if (stops == m_stops) {
        m_deadlines.meet(m_clock.now());
        wait(step.waitMs);
    }
    if (now >= due && !sent.isEmpty()) {
        emit sentLate(now - due);
    }
    if (isText) {
        m_sender.tellFrame(sent);
    } else {
        m_sender.tellBlock(sent);
    }
}

void SendLoop::endPass()
{
    m_inPass = false;
    if (m_passes.isLast()) {
        stop();
        emit finished();
        return;
    }
    m_deadlines.meet(m_clock.now());
    wait(m_cycleDelayMs);
    m_clock.setAlarm(m_deadlines.due());
}
