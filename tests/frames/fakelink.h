#pragma once

#include "link.h"

#include <QVector>

#include <functional>

/// A link that keeps what it is given.
class FakeLink : public Link
{
public:
    bool isOpen() const override { return open; }
    QString closedMessage() const override { return QStringLiteral("closed"); }
    int longestInstruction() const override { return longest; }
    qint64 unsentBytes() const override { return unsent; }

    void write(const QByteArray &block) override
    {
        blocks.append(block);
        if (onWrite) {
            onWrite();
        }
    }

    bool open = true;
    int longest = 65535;
    qint64 unsent = 0;
    /// Called with each block that comes.
    std::function<void()> onWrite;
    QVector<QByteArray> blocks;
};
