#pragma once

#include "framereassembler.h"

#include <QObject>
#include <QTimer>

#include <functional>

/// Takes in what the links receive and gives out the frames in it, and what belongs to none.
class Receiver : public QObject
{
    Q_OBJECT

public:
    /// Tells the start bytes; it is called for each chunk.
    using ReadStartBytes = std::function<StartBytes()>;

    explicit Receiver(ReadStartBytes readStartBytes, QObject *parent = nullptr);

    /// Takes in a chunk. A first start byte at its end that nothing has followed for 50 ms is given
    /// out as a notice.
    void take(const QByteArray &chunk);

signals:
    /// A whole frame.
    void frameReceived(const QByteArray &frame);

    /// Bytes that belong to no frame.
    void noticeReceived(const QByteArray &bytes);

private:
    void giveOut(const QVector<ReceivedPiece> &pieces);

    ReadStartBytes m_readStartBytes;
    FrameReassembler m_reassembler;
    QTimer m_silence;
};
