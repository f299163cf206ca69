#include "simulator/registerdevice.h"

#include <QtEndian>

#include <numeric>

namespace {

constexpr quint8 readCommand = 0x03;
constexpr quint8 writeCommand = 0x10;
constexpr quint8 echoCommand = 0x42;
constexpr quint8 errorBit = 0x80;

constexpr int addressStart = 1;
constexpr int countStart = 3;
constexpr int valuesStart = 3;
constexpr int registerSize = 2;
constexpr int readRequestSize = 5;
constexpr int readReplyHeadSize = 3;

quint16 wordAt(const QByteArray &bytes, int position)
{
    return qFromBigEndian<quint16>(bytes.constData() + position);
}

void appendWord(QByteArray &bytes, quint16 word)
{
    bytes.append(static_cast<char>(word >> 8U));
    bytes.append(static_cast<char>(word & 0xFFU));
}

QByteArray errorReply(const QByteArray &request, RegisterDevice::Error error)
{
    QByteArray reply;
    reply.append(static_cast<char>(static_cast<quint8>(request.front()) | errorBit));
    reply.append(static_cast<char>(error));
    return reply;
}

} // namespace

RegisterDevice::RegisterDevice(int longestReply)
    : m_longestReply(longestReply)
    , m_registers(registerCount)
{
    std::iota(m_registers.begin(), m_registers.end(), quint16(0));
}

QByteArray RegisterDevice::reply(const QByteArray &request)
{
    if (request.isEmpty()) {
        return {};
    }
    switch (static_cast<quint8>(request.front())) {
    case readCommand:
        return read(request);
    case writeCommand:
        return write(request);
    case echoCommand:
        return echo(request);
    default:
        return errorReply(request, Error::UnknownCommand);
    }
}

QByteArray RegisterDevice::read(const QByteArray &request) const
{
    if (request.size() != readRequestSize) {
        return errorReply(request, Error::BadRequest);
    }
    const int address = wordAt(request, addressStart);
    const quint16 count = wordAt(request, countStart);
    if (count == 0 || readReplyHeadSize + count * registerSize > m_longestReply) {
        return errorReply(request, Error::BadRequest);
    }
    if (address + count > registerCount) {
        return errorReply(request, Error::NoSuchRegister);
    }
    QByteArray reply(1, static_cast<char>(readCommand));
    appendWord(reply, count);
    for (int i = 0; i < count; ++i) {
        appendWord(reply, m_registers.at(address + i));
    }
    return reply;
}

QByteArray RegisterDevice::write(const QByteArray &request)
{
    const int valueBytes = request.size() - valuesStart;
    if (valueBytes <= 0 || valueBytes % registerSize != 0) {
        return errorReply(request, Error::BadRequest);
    }
    const int address = wordAt(request, addressStart);
    const int count = valueBytes / registerSize;
    if (address + count > registerCount) {
        return errorReply(request, Error::NoSuchRegister);
    }
    for (int i = 0; i < count; ++i) {
        m_registers[address + i] = wordAt(request, valuesStart + i * registerSize);
    }
    QByteArray reply = request.left(valuesStart);
    appendWord(reply, static_cast<quint16>(count));
    return reply;
}

QByteArray RegisterDevice::echo(const QByteArray &request) const
{
    return request.size() > m_longestReply ? errorReply(request, Error::BadRequest) : request;
}
