#include "simulator/deviceparser.h"

#include "frames/crc16.h"
#include "frames/framebuilder.h"

namespace {

constexpr int headerSize = 2;
constexpr int shortestLongForm = 0x100;

bool endsWithItsCrc(const QByteArray &content)
{
    const int payloadSize = content.size() - crcSize;
    const quint16 crc = crc16Modbus(content.left(payloadSize));
    return static_cast<quint8>(content.at(payloadSize)) == (crc & 0xFFU) &&
           static_cast<quint8>(content.at(payloadSize + 1)) == crc >> 8U;
}

} // namespace

/// What stands where a header was found; a frame that is whole has its payload and size.
struct DeviceParser::Finding
{
    enum class Kind { Incomplete, Rubbish, Whole };
    Kind kind = Kind::Incomplete;
    QByteArray payload;
    int size = 0;
};

DeviceParser::DeviceParser(StartBytes startBytes, bool withCrc)
    : m_header(bytesOf(startBytes))
    , m_withCrc(withCrc)
{}

QVector<QByteArray> DeviceParser::take(const QByteArray &bytes)
{
    m_waiting.append(bytes);
    return takeFramesFrom(headerFrom(0));
}

QVector<QByteArray> DeviceParser::giveUpFrame()
{
    return takeFramesFrom(headerFrom(1));
}

QVector<QByteArray> DeviceParser::takeFramesFrom(int position)
{
    QVector<QByteArray> payloads;
    while (position < m_waiting.size()) {
        const Finding finding = examine(position);
        if (finding.kind == Finding::Kind::Incomplete) {
            break;
        }
        if (finding.kind == Finding::Kind::Whole) {
            payloads.append(finding.payload);
            position = headerFrom(position + finding.size);
        } else {
            position = headerFrom(position + 1);
        }
    }
    m_waiting.remove(0, position);
    return payloads;
}

/// Where the next header stands, whole or as the first start byte at the very end; the end if
/// there is none.
int DeviceParser::headerFrom(int position) const
{
    const int found = m_waiting.indexOf(m_header, position);
    if (found >= 0) {
        return found;
    }
    const int last = m_waiting.size() - 1;
    const bool mayBegin = last >= position && m_waiting.at(last) == m_header.front();
    return mayBegin ? last : m_waiting.size();
}

DeviceParser::Finding DeviceParser::examine(int position) const
{
    const int available = m_waiting.size() - position;
    if (available <= headerSize) {
        return {};
    }
    const int length = byteAt(position + headerSize);
    if (length != 0) {
        return examineContent(position, 1, length);
    }
    if (available < headerSize + 3) {
        return {};
    }
    const int longLength = byteAt(position + 3) << 8 | byteAt(position + 4);
    if (longLength < shortestLongForm) {
        return {Finding::Kind::Rubbish, {}, 0};
    }
    const int contentStart = position + headerSize + 3;
    if (contentStart < m_waiting.size() && m_waiting.at(contentStart) != longFormCommand) {
        return {Finding::Kind::Rubbish, {}, 0};
    }
    return examineContent(position, 3, longLength);
}

DeviceParser::Finding DeviceParser::examineContent(int position, int lengthFieldSize,
                                                   int length) const
{
    if (m_withCrc && length <= crcSize) {
        return {Finding::Kind::Rubbish, {}, 0};
    }
    const int size = headerSize + lengthFieldSize + length;
    if (m_waiting.size() - position < size) {
        return {};
    }
    QByteArray content = m_waiting.mid(position + headerSize + lengthFieldSize, length);
    if (m_withCrc) {
        if (!endsWithItsCrc(content)) {
            return {Finding::Kind::Rubbish, {}, 0};
        }
        content.chop(crcSize);
    }
    return {Finding::Kind::Whole, content, size};
}
