#pragma once

#include "frames/link.h"

#include <QVector>

#include <deque>
#include <functional>
#include <utility>

/// A link without a device, open from the beginning: it keeps what it is given, and hands up what
/// it is told to.
class FakeLink : public Link
{
public:
    bool isOpen() const override { return m_isOpen; }
    QString closedMessage() const override { return QStringLiteral("closed"); }
    int longestInstruction() const override { return longest; }
    qint64 unsentBytes() const override { return unsent; }

    void open()
    {
        if (!std::exchange(m_isOpen, true)) {
            emit openChanged(true);
        }
    }

    void close() override
    {
        m_waiting.clear();
        unsent = 0;
        if (std::exchange(m_isOpen, false)) {
            emit openChanged(false);
        }
    }

    /// It holds back nothing but what waits for a handler.
    void handUp() override {}

    void write(const QByteArray &block) override
    {
        if (m_isOpen) {
            blocks.append(block);
        }
        if (onWrite) {
            onWrite();
        }
    }

    /// Hands up these bytes as come in now, or when the handler that runs is through.
    void receive(const QByteArray &bytes)
    {
        m_waiting.push_back({bytes, ArrivalTime::now()});
        if (std::exchange(m_isHandingUp, true)) {
            return;
        }
        while (!m_waiting.empty()) {
            const auto oldest = std::exchange(m_waiting.front(), {});
            m_waiting.pop_front();
            emit arrived(oldest.first, oldest.second);
        }
        m_isHandingUp = false;
    }

    int longest = 65535;
    qint64 unsent = 0;
    /// Called with each block that comes, even to the closed link.
    std::function<void()> onWrite;
    QVector<QByteArray> blocks;

private:
    bool m_isOpen = true;
    std::deque<std::pair<QByteArray, ArrivalTime>> m_waiting;
    bool m_isHandingUp = false;
};
