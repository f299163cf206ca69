#pragma once

#include <QByteArray>

/// Bytes of a CRC.
inline constexpr int crcSize = 2;

/// CRC-16/MODBUS (MODBUS over Serial Line V1.02, 6.2.2): reflected polynomial 0xA001, start value
/// 0xFFFF, no final XOR. The low byte goes on the wire first. Check value of "123456789": 0x4B37.
quint16 crc16Modbus(const QByteArray &bytes);
