#include "frames/crc16.h"

#include <array>

namespace {

struct CrcTables
{
    std::array<quint8, 256> low;
    std::array<quint8, 256> high;
};

constexpr quint16 remainderOf(quint16 byte)
{
    quint16 remainder = byte;
    for (int bit = 0; bit < 8; ++bit) {
        const bool carry = (remainder & 1U) != 0;
        remainder = static_cast<quint16>(remainder >> 1U);
        if (carry) {
            remainder ^= 0xA001U;
        }
    }
    return remainder;
}

constexpr CrcTables makeTables()
{
    CrcTables tables{};
    for (quint16 byte = 0; byte < 256; ++byte) {
        const quint16 remainder = remainderOf(byte);
        tables.low[byte] = static_cast<quint8>(remainder & 0xFFU);
        tables.high[byte] = static_cast<quint8>(remainder >> 8U);
    }
    return tables;
}

constexpr CrcTables tables = makeTables();

} // namespace

quint16 crc16Modbus(const QByteArray &bytes)
{
    quint8 low = 0xFF;
    quint8 high = 0xFF;
    for (const char byte : bytes) {
        const auto index = static_cast<quint8>(low ^ static_cast<quint8>(byte));
        low = static_cast<quint8>(high ^ tables.low[index]);
        high = tables.high[index];
    }
    return static_cast<quint16>(high << 8U | low);
}
