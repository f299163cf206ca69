#include "simulator/player.h"

#include "frames/timeunits.h"
#include "simulator/pseudoterminal.h"

#include <algorithm>
#include <utility>

Player::Player(PlayScript script, double speed, const PseudoTerminal &terminal, QObject *parent)
    : QObject(parent)
    , m_script(std::move(script))
    , m_speed(speed)
    , m_terminal(terminal)
    , m_transmitter(terminal, [] { return 0; })
    , m_watch(terminal.portPath())
    , m_arrival(terminal.descriptor(), QSocketNotifier::Read)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Player::sendDue);
    connect(&m_arrival, &QSocketNotifier::activated, this, &Player::takeBytes);
    connect(&m_watch, &OpenWatch::opened, this, [this] { schedule(m_script.opening()); });
    connect(&m_watch, &OpenWatch::closed, this, &Player::forgetListener);
}

void Player::takeBytes()
{
    m_watch.update();
    for (const QVector<PlayScript::Reply> &replies : m_script.take(m_terminal.read())) {
        schedule(replies);
    }
}

void Player::schedule(const QVector<PlayScript::Reply> &replies)
{
    const qint64 now = m_clock.nsecsElapsed();
    for (const PlayScript::Reply &reply : replies) {
        const auto delay = static_cast<qint64>(static_cast<double>(reply.delayNs) / m_speed);
        m_due.emplace(now + delay, reply.bytes);
    }
    sendDue();
}

void Player::sendDue()
{
    while (!m_due.empty() && m_due.begin()->first <= m_clock.nsecsElapsed()) {
        m_transmitter.send({m_due.begin()->second});
        m_due.erase(m_due.begin());
    }
    waitForDue();
}

void Player::waitForDue()
{
    if (m_due.empty()) {
        m_timer.stop();
        return;
    }
    constexpr qint64 longestWaitMs = 60000;
    const qint64 wait = (m_due.begin()->first - m_clock.nsecsElapsed() + nsPerMs - 1) / nsPerMs;
    m_timer.start(static_cast<int>(std::clamp<qint64>(wait, 0, longestWaitMs)));
}

void Player::forgetListener()
{
    m_due.clear();
    m_timer.stop();
    m_transmitter.clear();
    m_terminal.resetPort();
}
