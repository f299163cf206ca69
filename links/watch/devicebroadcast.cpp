#include "links/watch/devicebroadcast.h"

#include <QtEndian>

namespace {

constexpr int typeOffset = 4;
constexpr quint32 portType = 3;
constexpr quint32 interfaceType = 5;
constexpr int portNameOffset = broadcastHeaderSize;
/// Behind the header stands the class of the interface.
constexpr int interfaceNameOffset = broadcastHeaderSize + 16;

quint32 numberAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

/// UTF-16 up to a zero, or to the end where there is none.
QString nameAt(const QByteArray &bytes, int offset)
{
    QString name;
    for (int i = offset; i + 1 < bytes.size(); i += 2) {
        const QChar character(qFromLittleEndian<quint16>(bytes.constData() + i));
        if (character.isNull()) {
            break;
        }
        name.append(character);
    }
    return name;
}

std::optional<WatchedDevice> device(DeviceKind kind, const QString &name)
{
    return name.isEmpty() ? std::nullopt : std::optional(WatchedDevice{kind, name, name});
}

} // namespace

std::optional<WatchedDevice> deviceInBroadcast(const QByteArray &broadcast)
{
    if (broadcast.size() < broadcastHeaderSize ||
        numberAt(broadcast, 0) != quint32(broadcast.size())) {
        return std::nullopt;
    }
    switch (numberAt(broadcast, typeOffset)) {
    case portType:
        return device(DeviceKind::Port, nameAt(broadcast, portNameOffset));
    case interfaceType:
        return device(DeviceKind::Hid, nameAt(broadcast, interfaceNameOffset));
    default:
        return std::nullopt;
    }
}
