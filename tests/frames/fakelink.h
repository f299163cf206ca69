#pragma once

#include "link.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QVector>

#include <functional>

/// A link that keeps what it is given, and when.
class FakeLink : public Link
{
public:
    FakeLink() { clock.start(); }

    bool isOpen() const override { return open; }
    QString closedMessage() const override { return QStringLiteral("closed"); }
    int longestInstruction() const override { return longest; }

    void write(const QByteArray &block) override
    {
        writtenAtNs.append(clock.nsecsElapsed());
        blocks.append(block);
        calls.append(QStringLiteral("write"));
    }

    void waitForWritten() override
    {
        calls.append(QStringLiteral("wait"));
        if (whileWaiting) {
            whileWaiting();
        }
    }

    bool open = true;
    int longest = 65535;
    /// Called on each waitForWritten().
    std::function<void()> whileWaiting;
    QVector<QByteArray> blocks;
    /// When each of the blocks came, on `clock`.
    QVector<qint64> writtenAtNs;
    QElapsedTimer clock;
    QStringList calls;
};
