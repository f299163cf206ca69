#include "expectations/receivedframe.h"

#include "frames/crc16.h"

namespace {

QByteArray contentOf(const QByteArray &bytes, const FrameLayout &layout)
{
    QByteArray content = bytes;
    if (layout.withStartBytes) {
        const QByteArray start = bytesOf(layout.startBytes);
        if (!content.startsWith(start)) {
            return bytes;
        }
        content.remove(0, start.size());
    }
    if (layout.withLength) {
        if (content.isEmpty() || static_cast<quint8>(content.front()) != content.size() - 1) {
            return bytes;
        }
        content.remove(0, 1);
    }
    return content;
}

} // namespace

ReceivedFrame takenApart(const QByteArray &bytes, const FrameLayout &layout, qint64 timeNs)
{
    const QByteArray content = contentOf(bytes, layout);
    if (!layout.withCrc) {
        return {bytes, content, ReceivedFrame::Crc::None, timeNs};
    }
    if (content.size() < crcSize) {
        return {bytes, content, ReceivedFrame::Crc::Bad, timeNs};
    }
    // The CRC of bytes and their own CRC is 0.
    const bool fits = crc16Modbus(content) == 0;
    return {bytes, content.left(content.size() - crcSize),
            fits ? ReceivedFrame::Crc::Good : ReceivedFrame::Crc::Bad, timeNs};
}
