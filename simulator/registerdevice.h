#pragma once

#include <QByteArray>
#include <QVector>

/// The memory and the behaviour of a small register device: request payload in, reply payload out.
///
/// It has 65,536 registers of 16 bits, each of which holds its own address at first. Numbers of two
/// bytes are big-endian. In requests and replies, "count" is a number of registers in two bytes, so
/// that it stands where the tool shows an address.
///
/// | request                          | reply                      |
/// |----------------------------------|----------------------------|
/// | 03, address, count               | 03, count, the registers   |
/// | 10, address, one or more values  | 10, address, count         |
/// | 42, anything                     | the request itself         |
/// | anything else                    | CMD with bit 7 set, 01     |
/// | address past the last register   | CMD with bit 7 set, 02     |
/// | malformed, or too long a reply   | CMD with bit 7 set, 03     |
///
/// A request that fails changes no register.
class RegisterDevice
{
public:
    enum class Error : quint8 { UnknownCommand = 1, NoSuchRegister = 2, BadRequest = 3 };

    static constexpr int registerCount = 0x10000;

    /// No reply payload gets longer than that many bytes.
    explicit RegisterDevice(int longestReply);

    /// The reply to a request payload; empty for an empty one.
    QByteArray reply(const QByteArray &request);

private:
    QByteArray read(const QByteArray &request) const;
    QByteArray write(const QByteArray &request);
    QByteArray echo(const QByteArray &request) const;

    int m_longestReply = 0;
    QVector<quint16> m_registers;
};
