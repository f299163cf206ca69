#include "simulator/devicesession.h"

#include "frames/crc16.h"
#include "frames/timeunits.h"
#include "simulator/pseudoterminal.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int longestContent = 0xFF;
/// How long the rest of a frame is waited for.
constexpr int quietMs = 1000;
/// More requests than that don't wait for their replies; the others stay without.
constexpr int mostDelayedReplies = 1024;
/// Status frames that are that late are left out instead of being sent all at once.
constexpr int mostLateMs = 1000;

} // namespace

DeviceSession::DeviceSession(const DeviceOptions &options, const PseudoTerminal &terminal,
                             QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_terminal(terminal)
    , m_parser(options.startBytes, options.withCrc)
    , m_registers(longestContent - (options.withCrc ? crcSize : 0))
    , m_disturbance(options)
    , m_transmitter(terminal, [this] { return m_disturbance.pauseMs(); })
    , m_watch(terminal.portPath())
    , m_arrival(terminal.descriptor(), QSocketNotifier::Read)
{
    m_layout.startBytes = options.startBytes;
    m_layout.withCrc = options.withCrc;
    for (QTimer *timer : {&m_replyDue, &m_quiet, &m_statusDue}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    m_clock.start();
    connect(&m_arrival, &QSocketNotifier::activated, this, &DeviceSession::takeBytes);
    connect(&m_replyDue, &QTimer::timeout, this, &DeviceSession::sendDueReplies);
    connect(&m_quiet, &QTimer::timeout, this, [this] { answer(m_parser.giveUpFrame()); });
    connect(&m_statusDue, &QTimer::timeout, this, &DeviceSession::sendStatus);
    connect(&m_watch, &OpenWatch::opened, this, &DeviceSession::beginChatter);
    connect(&m_watch, &OpenWatch::closed, this, &DeviceSession::forgetListener);
    if (m_watch.isOpen()) {
        beginChatter();
    }
}

void DeviceSession::takeBytes()
{
    // Who has sent these bytes may have opened the port only just now.
    m_watch.update();
    answer(m_parser.take(m_terminal.read()));
}

void DeviceSession::answer(const QVector<QByteArray> &requests)
{
    for (const QByteArray &request : requests) {
        schedule(m_registers.reply(request));
    }
    if (m_parser.waitingBytes() > 0) {
        m_quiet.start(quietMs);
    } else {
        m_quiet.stop();
    }
}

void DeviceSession::schedule(const QByteArray &reply)
{
    if (m_options.mute) {
        return;
    }
    if (m_options.delayMs == 0) {
        sendReply(reply);
    } else if (m_delayed.size() < mostDelayedReplies) {
        m_delayed.enqueue({m_clock.elapsed() + m_options.delayMs, reply});
        waitForDueReply();
    }
}

void DeviceSession::waitForDueReply()
{
    if (!m_delayed.isEmpty() && !m_replyDue.isActive()) {
        const qint64 wait = m_delayed.head().dueMs - m_clock.elapsed();
        m_replyDue.start(static_cast<int>(std::max<qint64>(0, wait)));
    }
}

void DeviceSession::sendDueReplies()
{
    while (!m_delayed.isEmpty() && m_delayed.head().dueMs <= m_clock.elapsed()) {
        sendReply(m_delayed.dequeue().payload);
    }
    waitForDueReply();
}

void DeviceSession::sendReply(const QByteArray &payload)
{
    if (!m_watch.isOpen()) {
        return;
    }
    const QByteArray block = nextBlock(payload);
    m_transmitter.send(m_options.split ? m_disturbance.pieces(block) : QVector<QByteArray>{block});
}

void DeviceSession::beginChatter()
{
    m_sinceChatterBegan.start();
    m_statusesSinceChatterBegan = 0;
    waitForNextStatus();
}

void DeviceSession::waitForNextStatus()
{
    if (m_options.chatterHz == 0) {
        return;
    }
    const qint64 dueMs = (m_statusesSinceChatterBegan + 1) * msPerSecond / m_options.chatterHz;
    const qint64 wait = dueMs - m_sinceChatterBegan.elapsed();
    if (wait < -mostLateMs) {
        beginChatter();
    } else {
        m_statusDue.start(static_cast<int>(std::max<qint64>(0, wait)));
    }
}

void DeviceSession::sendStatus()
{
    QByteArray payload(7, '\0');
    payload[0] = statusCommand;
    qToBigEndian(m_statusCounter++, payload.data() + 3);
    m_transmitter.send({nextBlock(payload)});
    ++m_statusesSinceChatterBegan;
    waitForNextStatus();
}

void DeviceSession::forgetListener()
{
    m_statusDue.stop();
    m_transmitter.clear();
    m_terminal.resetPort();
}

QByteArray DeviceSession::nextBlock(const QByteArray &payload)
{
    return m_disturbance.withGarbage(frameOfPayload(payload, m_layout));
}
