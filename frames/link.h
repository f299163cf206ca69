#pragma once

#include "frames/arrivaltime.h"

#include <QByteArray>
#include <QObject>
#include <QString>

/// One live connection to a device. How it is opened is a matter of its kind.
///
/// All signals come in the thread that the link lives in. A link that is destroyed while it is open
/// closes without a signal.
class Link : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool isOpen() const = 0;

    /// Hands up what has come in already, drops what is still to be sent, and closes the link.
    /// From then on nothing of that connection is handed up. Nothing happens where it is closed.
    ///
    /// A handler of `arrived` may close the link, too; what waits behind its bytes is dropped.
    virtual void close() = 0;

    /// Hands up at once what has come in already, however long it would have waited. While a
    /// handler of `arrived` runs, that waits for the handler as ever.
    virtual void handUp() = 0;

    /// What the user is told when something is sent while the link is closed.
    virtual QString closedMessage() const = 0;

    /// The longest instruction (payload and CRC, in bytes) that a single row sends without a
    /// warning.
    virtual int longestInstruction() const = 0;

    /// Hands a block of whole frames to the device without waiting for it: what it doesn't take at
    /// once leaves through the event loop. Blocks are neither reordered nor mixed. A closed link
    /// drops it.
    virtual void write(const QByteArray &block) = 0;

    /// Bytes that still wait to leave the program.
    virtual qint64 unsentBytes() const = 0;

protected:
    /// Tells that what still waits to leave never will.
    void tellUnsent()
    {
        if (unsentBytes() > 0) {
            emit unsentDropped(unsentBytes());
        }
    }

signals:
    /// What has come in, and when the first of these bytes was read from the system. Times don't go
    /// back from one chunk to the next. While a handler runs, nothing more is handed up.
    void arrived(const QByteArray &bytes, ArrivalTime time);

    /// The open link has failed for good, for the reason given. Emitted once, from the event loop,
    /// behind the last bytes. The link is open until somebody closes it.
    void lost(const QString &reason);

    /// So many bytes of what was written never left, since the link is being closed.
    void unsentDropped(qint64 bytes);

    /// The link has been opened or closed.
    void openChanged(bool isOpen);
};
