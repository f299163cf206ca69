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

    /// Hands a block of whole frames to the device. Blocks are neither reordered nor mixed.
    virtual void write(const QByteArray &block) = 0;

    /// Whether blocks still wait to leave the program, so that a loop had better not add more.
    virtual bool isBehind() const { return false; }

    /// Waits until what was written has left the program, for as long as the kind of link asks for.
    virtual void waitForWritten() = 0;
};
