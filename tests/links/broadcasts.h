#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

constexpr quint32 portBroadcast = 3;
constexpr quint32 interfaceBroadcast = 5;

inline QByteArray littleEndian(quint32 number)
{
    const quint32 bytes = qToLittleEndian(number);
    return {reinterpret_cast<const char *>(&bytes), sizeof bytes};
}

/// Size, type, a reserved number and what follows them, as Windows sends it to a window.
inline QByteArray broadcast(quint32 type, const QByteArray &rest)
{
    return littleEndian(quint32(rest.size()) + 12) + littleEndian(type) + littleEndian(0) + rest;
}

/// UTF-16 with a zero at its end.
inline QByteArray wideText(const QString &text)
{
    QByteArray bytes;
    for (const QChar character : text + QChar(0)) {
        bytes += littleEndian(character.unicode()).left(2);
    }
    return bytes;
}

inline QByteArray broadcastOfPort(const QString &name)
{
    return broadcast(portBroadcast, wideText(name));
}

/// Between the header and the path stands the class of the interface.
inline QByteArray broadcastOfInterface(const QString &path)
{
    return broadcast(interfaceBroadcast, QByteArray(16, 'c') + wideText(path));
}
