#pragma once

#include <QtGlobal>

/// The numbers of a pcapng file as recordings have it: little-endian, one interface, whose packets
/// have link type 250 (a serial line: 12 bytes with time and direction, then what went over it).
namespace Pcapng {

constexpr quint32 sectionHeader = 0x0A0D0D0A;
constexpr quint32 interfaceDescription = 1;
constexpr quint32 enhancedPacket = 6;
constexpr quint32 byteOrderMagic = 0x1A2B3C4D;
constexpr quint16 serialLinkType = 250;

constexpr quint16 endOfOptions = 0;
constexpr quint16 comment = 1;
/// Of a section: the program that has written it.
constexpr quint16 userApplication = 4;
/// Of an interface.
constexpr quint16 interfaceName = 2;
constexpr quint16 timeResolution = 9;
/// Of a packet: its direction.
constexpr quint16 packetFlags = 2;
constexpr quint32 inbound = 1;
constexpr quint32 outbound = 2;
/// Of a packet, for local use: kind and CRC of the event (a byte each), two bytes of zero, its
/// monotonic time in ns (8 bytes), and the number of its row (4 bytes).
constexpr quint16 eventFacts = 0x8001;
constexpr int eventFactsSize = 16;

constexpr int serialHeaderSize = 12;
/// The kinds of a serial packet.
constexpr quint8 statusChange = 0;
constexpr quint8 transmitted = 1;
constexpr quint8 received = 2;
constexpr quint8 captureComplete = 6;

} // namespace Pcapng
