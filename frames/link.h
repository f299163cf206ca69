#pragma once

#include <QByteArray>
#include <QString>

/// One live connection to a device, as the sender sees it.
class Link
{
public:
    Link() = default;
    Link(const Link &) = delete;
    Link &operator=(const Link &) = delete;
    virtual ~Link() = default;

    virtual bool isOpen() const = 0;

    /// What the user is told when something is sent while the link is closed.
    virtual QString closedMessage() const = 0;

    /// The longest instruction (payload and CRC, in bytes) that a single row sends without a
    /// warning.
    virtual int longestInstruction() const = 0;

    /// Hands a block of whole frames to the device without waiting for it: what it doesn't take at
    /// once leaves through the event loop. Blocks are neither reordered nor mixed.
    virtual void write(const QByteArray &block) = 0;

    /// Bytes that still wait to leave the program.
    virtual qint64 unsentBytes() const = 0;
};
