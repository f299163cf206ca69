#include "loopcontrol.h"

#include "sender.h"
#include "systemclock.h"

namespace {

/// About as long as the log takes to be painted.
constexpr int nearMs = 5;

} // namespace

LoopControl::LoopControl(Ui::Dialog &form, Sender &sender, QObject *parent)
    : QObject(parent)
    , m_sender(sender)
    , m_clock(makeSystemClock())
    , m_loop(sender, *m_clock, this)
    , m_panel(form, this)
{
    connect(&m_loop, &SendLoop::passDue, this, &LoopControl::passDue);
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
    m_panel.showRunning(m_mode);
    m_loop.start(plan, {m_panel.intervalMs(), m_panel.cycleDelayMs()});
}

bool LoopControl::isFrameNear() const
{
    return m_loop.isDueWithin(nearMs);
}

void LoopControl::stop()
{
    if (m_loop.isRunning()) {
        m_loop.stop();
        m_panel.showStopped(m_mode);
    }
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
