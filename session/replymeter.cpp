#include "session/replymeter.h"

#include "frames/sender.h"
#include "log/receiver.h"
#include "session/loopcontrol.h"

#include <utility>

namespace {

/// A bit more than the wait for an answer.
constexpr int lastWaitMs = 1010;

} // namespace

ReplyMeter::ReplyMeter(Sender &sender, Receiver &receiver, LoopControl &loop, QObject *parent)
    : QObject(parent)
{
    m_lastWait.setSingleShot(true);
    m_lastWait.setInterval(lastWaitMs);
    connect(&m_lastWait, &QTimer::timeout, this, &ReplyMeter::passTime);
    connect(&sender, &Sender::handedOver, this,
            [this](const QByteArray & /*block*/, const QVector<BlockPart> &parts,
                   ArrivalTime time) { takeBlock(parts, time); });
    connect(&receiver, &Receiver::frameReceived, this,
            [this](const QByteArray & /*frame*/, ArrivalTime time) { takeFrame(time); });
    connect(&loop, &LoopControl::started, this, &ReplyMeter::begin);
    connect(&loop, &LoopControl::passBegan, this, [this](qint64 pass) {
        m_passes = pass;
        emit loopChanged();
    });
    connect(&loop, &LoopControl::sentLate, this, [this](qint64 ns) { m_lateness.add(ns); });
    for (const auto over : {&LoopControl::stopped, &LoopControl::foundNothing}) {
        connect(&loop, over, this, &ReplyMeter::end);
    }
}

LoopFigures ReplyMeter::loopFigures() const
{
    return {m_passes, m_received, m_times.total(), m_lateness};
}

void ReplyMeter::begin()
{
    m_times.beginTotal();
    m_lateness = {};
    m_passes = 0;
    m_received = 0;
    m_runs = true;
    m_endsSoon = false;
    emit loopChanged();
}

void ReplyMeter::end()
{
    m_runs = false;
    m_endsSoon = m_times.isWaiting();
    m_times.endTotal();
    emit loopChanged();
}

void ReplyMeter::takeBlock(const QVector<BlockPart> &parts, ArrivalTime time)
{
    if (parts.isEmpty()) {
        m_times.noteSent(0, time.monotonicNs);
    }
    for (const BlockPart &part : parts) {
        m_times.noteSent(part.rowId, time.monotonicNs);
    }
    if (!m_lastWait.isActive()) {
        m_lastWait.start();
    }
    if (m_runs) {
        emit loopChanged();
    }
}

void ReplyMeter::takeFrame(ArrivalTime time)
{
    const bool belongsToLoop = m_runs || m_endsSoon;
    noteReceived(time.monotonicNs);
    m_endsSoon = m_endsSoon && m_times.isWaiting();
    if (belongsToLoop) {
        ++m_received;
        emit loopChanged();
    }
}

/// Frames that are handed up together have the time of the first one. A later one of them may
/// answer what was sent meanwhile.
void ReplyMeter::noteReceived(qint64 timeNs)
{
    const bool isLater = std::exchange(m_lastReceivedNs, timeNs) == timeNs;
    if (!m_times.noteReceived(timeNs) && isLater) {
        m_times.noteReceived(ArrivalTime::now().monotonicNs);
    }
}

/// What the last frames wait for may never come.
void ReplyMeter::passTime()
{
    const bool belongsToLoop = m_runs || m_endsSoon;
    m_times.passTime(ArrivalTime::now().monotonicNs);
    m_endsSoon = m_endsSoon && m_times.isWaiting();
    if (belongsToLoop) {
        emit loopChanged();
    }
    if (m_times.isWaiting()) {
        m_lastWait.start();
    }
}
