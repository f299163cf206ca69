#include "session/loopcontrol.h"

#include "frames/alarmclock.h"
#include "frames/messages.h"
#include "frames/sender.h"
#include "frames/systemclock.h"

namespace {

/// About as long as the log takes to be painted.
constexpr int nearMs = 5;

} // namespace

LoopControl::LoopControl(Sender &sender, QObject *parent)
    : QObject(parent)
    , m_sender(sender)
    , m_clock(makeSystemClock())
    , m_loop(sender, *m_clock, this)
{
    connect(&m_loop, &SendLoop::passDue, this, &LoopControl::passDue);
    connect(&m_loop, &SendLoop::passDue, &m_loop, &SendLoop::runPass);
    connect(&m_loop, &SendLoop::sentLate, this, &LoopControl::sentLate);
    connect(&m_loop, &SendLoop::passBegan, this, &LoopControl::passBegan);
    connect(&m_loop, &SendLoop::finished, this, &LoopControl::stopped);
    connect(&m_loop, &SendLoop::foundNothing, this, [this] {
        emit foundNothing();
        emit notice(Messages::tr("No thing to send"));
    });
}

LoopControl::~LoopControl() = default;

void LoopControl::start(const QVector<CheckedRow> &rows, LoopTiming timing)
{
    if (!m_sender.requireOpenLink()) {
        return;
    }
    const LoopPlan plan = m_sender.planLoop(rows);
    // The link may have been lost while a message was shown.
    if (!isAcceptable(plan) || !m_sender.isLinkOpen()) {
        return;
    }
    emit started();
    m_loop.start(plan, timing);
}

bool LoopControl::isFrameNear() const
{
    return m_loop.isDueWithin(nearMs);
}

void LoopControl::stop()
{
    if (m_loop.isRunning()) {
        m_loop.stop();
        emit stopped();
    }
}

bool LoopControl::isAcceptable(const LoopPlan &plan)
{
    if (plan.tooManyEntries) {
        emit notice(Messages::tr("Too many order!"));
        return false;
    }
    if (!plan.overlongRows.isEmpty()) {
        emit notice(overlongRowsMessage(plan.overlongRows));
    }
    if (plan.texts.isEmpty()) {
        emit notice(Messages::tr("Not a Command was selected to send!"));
        return false;
    }
    return true;
}
