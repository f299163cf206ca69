#include "loopcontrol.h"

#include "sender.h"

namespace {

constexpr int behindMs = 5;

} // namespace

LoopControl::LoopControl(Ui::Dialog &form, Sender &sender, QObject *parent)
    : QObject(parent)
    , m_sender(sender)
    , m_loop(sender, this)
    , m_panel(form, this)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_loop, &SendLoop::passEnded, this, [this] { m_timer.start(m_cycleDelayMs); });
    connect(&m_loop, &SendLoop::foundNothing, this, [this] {
        m_panel.showNothingToSend();
        emit message(QStringLiteral("No thing to send"));
    });
}

void LoopControl::start(const QVector<CheckedRow> &rows, LinkMode mode)
{
    if (!m_sender.requireOpenLink()) {
        return;
    }
    const LoopPlan plan = m_sender.planLoop(rows);
    // The link may have been lost while a message was shown.
    if (!isAcceptable(plan) || !m_sender.isLinkOpen()) {
        return;
    }
    m_mode = mode;
    m_cycleDelayMs = m_panel.cycleDelayMs();
    m_loop.start(plan, m_panel.intervalMs());
    m_panel.showRunning(m_mode);
    m_timer.start(m_cycleDelayMs);
}

void LoopControl::stop()
{
    if (m_loop.isRunning()) {
        m_loop.stop();
        m_timer.stop();
        m_panel.showStopped(m_mode);
    }
}

void LoopControl::tick()
{
    m_timer.stop();
    // A loop that outruns the wire would fill the memory, and go on long after a stop.
    if (m_loop.isRunning() && m_sender.isLinkBehind()) {
        m_timer.start(behindMs);
        return;
    }
    m_loop.runPass();
}

bool LoopControl::isAcceptable(const LoopPlan &plan)
{
    if (plan.tooManyEntries) {
        emit message(QStringLiteral("Too many order!"));
        return false;
    }
    if (!plan.overlongRows.isEmpty()) {
        emit message(overlongRowsMessage(plan.overlongRows));
    }
    if (plan.texts.isEmpty()) {
        emit message(QStringLiteral("Not a Command was selected to send!"));
        return false;
    }
    return true;
}
