#pragma once

#include "recording/recordingreader.h"

#include <QByteArray>

/// Reads pcapng as PcapngWriter writes it. Unknown blocks and options are skipped. A last block
/// that was cut off is no error.
class PcapngReader : public RecordingReader
{
public:
    /// The device must be open, and outlive the reader.
    explicit PcapngReader(QIODevice &device)
        : m_device(device)
    {}

    std::optional<RecordEvent> next() override;

private:
    struct Block
    {
        quint32 type = 0;
        QByteArray body;
    };

    std::optional<Block> nextBlock();
    bool take(const Block &block);
    bool takeSection(const QByteArray &body);
    bool takeInterface(const QByteArray &body);
    bool takePacket(const QByteArray &body);
    void failHere(const QString &words);

    QIODevice &m_device;
    qint64 m_offset = 0;
    bool m_isOver = false;
    bool m_hasSection = false;
    bool m_hasInterface = false;
    std::optional<RecordEvent> m_event;
};
