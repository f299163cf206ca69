#include "log/crccheck.h"

#include "frames/crc16.h"
#include "frames/hextext.h"

QString expectedInsteadOfCrc(const FrameFields &fields)
{
    constexpr int digitsOfCmd = 2;
    constexpr int digitsOfCrc = 4;
    const QString crc = withoutBlanks(fields.crc);
    if (withoutBlanks(fields.cmd).size() != digitsOfCmd || crc.size() != digitsOfCrc) {
        return {};
    }
    const QString payload = withoutBlanks(fields.cmd + fields.addr + fields.data);
    const quint16 expected = crc16Modbus(QByteArray::fromHex(payload.toLatin1()));
    QByteArray bytes;
    bytes.append(static_cast<char>(expected & 0xFFU)).append(static_cast<char>(expected >> 8U));
    const QString text = formatHexBytes(bytes).trimmed();
    return withoutBlanks(text) == crc ? QString() : text;
}
