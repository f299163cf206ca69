#pragma once

#include "framereassembler.h"

#include <QObject>
#include <QVector>

#include <functional>

/// Takes in what the links receive and gives out frames and notices as hex text.
class Receiver : public QObject
{
    Q_OBJECT

public:
    /// Reads the start bytes; it is called for each chunk and may keep the user busy with a
    /// message.
    using ReadStartBytes = std::function<StartBytes()>;

    explicit Receiver(ReadStartBytes readStartBytes, QObject *parent = nullptr);

    /// Takes in a chunk. Chunks that come in while the start bytes are being read wait their turn.
    void take(const QByteArray &chunk);

signals:
    /// A whole frame, two digits and a blank a byte.
    void frameReceived(const QString &hexText);

    /// Bytes that belong to no frame, in the same form.
    void noticeReceived(const QString &hexText);

private:
    void giveOut(const QByteArray &chunk, StartBytes startBytes);

    ReadStartBytes m_readStartBytes;
    FrameReassembler m_reassembler;
    QVector<QByteArray> m_waiting;
    bool m_busy = false;
};
