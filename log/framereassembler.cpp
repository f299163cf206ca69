#include "log/framereassembler.h"

#include <optional>
#include <utility>

namespace {

constexpr int bytesToLength = 3;

/// The length of the frame that begins at `begin`; nothing while its length byte is not in.
std::optional<int> frameLength(const QByteArray &buffer, int begin)
{
    if (buffer.size() - begin < bytesToLength) {
        return std::nullopt;
    }
    return bytesToLength + static_cast<quint8>(buffer.at(begin + 2));
}

/// One walk through the buffer, from frame to frame.
class Walk
{
public:
    Walk(const QByteArray &buffer, StartBytes startBytes, QVector<ReceivedPiece> &pieces)
        : m_buffer(buffer)
        , m_header(bytesOf(startBytes))
        , m_pieces(pieces)
    {}

    /// Gives out what is complete; returns where the bytes begin that have to wait.
    int run()
    {
        while (m_position < m_buffer.size()) {
            const int begin = m_buffer.indexOf(m_header, m_position);
            if (begin < 0) {
                giveStrayTo(endOfRubbish());
                break;
            }
            giveStrayTo(begin);
            const std::optional<int> length = frameLength(m_buffer, begin);
            if (!length || m_buffer.size() - begin < *length) {
                break;
            }
            give(ReceivedPiece::Kind::Frame, begin + *length);
        }
        return m_position;
    }

private:
    /// A first start byte at the very end may be the beginning of a frame: none is lost to the
    /// place where the stream was cut into chunks.
    int endOfRubbish() const
    {
        const int size = m_buffer.size();
        return m_buffer.at(size - 1) == m_header.at(0) ? size - 1 : size;
    }

    void giveStrayTo(int end)
    {
        if (end > m_position) {
            give(ReceivedPiece::Kind::Stray, end);
        }
    }

    void give(ReceivedPiece::Kind kind, int end)
    {
        m_pieces.append({kind, m_buffer.mid(m_position, end - m_position)});
        m_position = end;
    }

    const QByteArray &m_buffer;
    const QByteArray m_header;
    QVector<ReceivedPiece> &m_pieces;
    int m_position = 0;
};

} // namespace

QVector<ReceivedPiece> FrameReassembler::take(const QByteArray &chunk, StartBytes startBytes)
{
    QVector<ReceivedPiece> pieces;
    if (!m_buffer.isEmpty() && m_buffer.size() + chunk.size() > capacity) {
        flush(pieces);
    }
    m_buffer.append(chunk.left(capacity - m_buffer.size()));
    m_buffer.remove(0, Walk(m_buffer, startBytes, pieces).run());
    return pieces;
}

QVector<ReceivedPiece> FrameReassembler::giveUpLoneStartByte()
{
    return holdsLoneStartByte() ? giveUpAll() : QVector<ReceivedPiece>();
}

QVector<ReceivedPiece> FrameReassembler::giveUpAll()
{
    QVector<ReceivedPiece> pieces;
    if (!m_buffer.isEmpty()) {
        pieces.append({ReceivedPiece::Kind::Stray, std::exchange(m_buffer, {})});
    }
    return pieces;
}

void FrameReassembler::flush(QVector<ReceivedPiece> &pieces)
{
    const int length = frameLength(m_buffer, 0).value_or(0);
    if (length > 0) {
        pieces.append({ReceivedPiece::Kind::Frame, m_buffer.left(length)});
    }
    if (m_buffer.size() > length) {
        pieces.append({ReceivedPiece::Kind::Stray, m_buffer.mid(length)});
    }
    m_buffer.clear();
}
