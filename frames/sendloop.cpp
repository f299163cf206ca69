#include "sendloop.h"

#include "delaymarker.h"
#include "sender.h"

#include <QThread>

#include <algorithm>

namespace {

constexpr qint64 nsPerMs = 1000000;
constexpr qint64 nsPerUs = 1000;
/// Even precise timers count whole milliseconds and come late by up to this; they are set early by
/// as much, and what is left of a wait is slept.
constexpr int timerIsLateMs = 1;

} // namespace

SendLoop::SendLoop(Sender &sender, QObject *parent)
    : QObject(parent)
    , m_sender(sender)
{
    m_wait.setSingleShot(true);
    m_wait.setTimerType(Qt::PreciseTimer);
    connect(&m_wait, &QTimer::timeout, this, &SendLoop::endWait);
    connect(&m_sender, &Sender::handedOver, this, [this] { m_sinceHandOver.start(); });
}

void SendLoop::start(const LoopPlan &plan, int intervalMs)
{
    stop();
    m_plan = plan;
    m_intervalMs = intervalMs;
    m_headerNotice = {};
    m_running = true;
}

void SendLoop::stop()
{
    m_wait.stop();
    m_running = false;
    m_inPass = false;
    m_sentCount = 0;
    ++m_stops;
}

void SendLoop::runPass()
{
    if (!m_running || m_inPass) {
        return;
    }
    if (m_plan.texts.isEmpty()) {
        stop();
        emit foundNothing();
        return;
    }
    m_step = 0;
    m_inPass = true;
    goOn();
}

void SendLoop::goOn()
{
    const unsigned stops = m_stops;
    m_sinceHandOver.start();
    while (!isPassDone()) {
        const int pauseMs = m_intervalMs > 0 ? sendTextStep() : sendBlockStep();
        // A message shown while sending may have let in a stop, and even a new start.
        if (stops != m_stops) {
            return;
        }
        if (pauseMs > 0) {
            waitSinceHandOver(pauseMs);
            return;
        }
    }
    m_inPass = false;
    emit passEnded();
}

bool SendLoop::isPassDone() const
{
    return m_step >= (m_intervalMs > 0 ? m_plan.texts.size() : m_plan.queue.size());
}

int SendLoop::sendBlockStep()
{
    const QueueEntry entry = m_plan.queue.at(m_step++);
    if (!entry.isPause()) {
        m_sender.sendBlock(entry.block);
    }
    return entry.pauseMs;
}

int SendLoop::sendTextStep()
{
    const QString text = m_plan.texts.at(m_step++);
    if (isDelay(text)) {
        return delayMilliseconds(text);
    }
    ++m_sentCount;
    if (!m_sender.sendText(text, m_headerNotice)) {
        m_sinceHandOver.start();
    }
    return m_intervalMs;
}

void SendLoop::waitSinceHandOver(int milliseconds)
{
    m_waitNs = milliseconds * nsPerMs;
    const qint64 leftMs = (m_waitNs - m_sinceHandOver.nsecsElapsed()) / nsPerMs;
    m_wait.start(static_cast<int>(std::max<qint64>(0, leftMs - timerIsLateMs)));
}

void SendLoop::endWait()
{
    const qint64 leftNs = m_waitNs - m_sinceHandOver.nsecsElapsed();
    if (leftNs > 0) {
        QThread::usleep(static_cast<unsigned long>(leftNs / nsPerUs));
    }
    goOn();
}
