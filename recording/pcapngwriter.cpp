#include "recording/pcapngwriter.h"

#include "frames/timeunits.h"
#include "recording/eventnames.h"
#include "recording/jsontext.h"
#include "recording/pcapngformat.h"

#include <QStringList>
#include <QtEndian>

namespace {

constexpr int longestOption = 0xFFFC;

template<typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template<typename Number>
QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Everything in a block fills whole words of 32 bits.
QByteArray filled(const QByteArray &bytes)
{
    constexpr int word = 4;
    return bytes + QByteArray((word - bytes.size() % word) % word, '\0');
}

QByteArray option(quint16 code, const QByteArray &value)
{
    return littleEndian(code) + littleEndian(static_cast<quint16>(value.size())) + filled(value);
}

QByteArray commentOption(const QByteArray &text)
{
    return option(Pcapng::comment, text.left(longestOption));
}

QByteArray pcapngBlock(quint32 type, const QByteArray &body)
{
    constexpr int typeAndTwoSizes = 12;
    const QByteArray size = littleEndian(static_cast<quint32>(body.size() + typeAndTwoSizes));
    return littleEndian(type) + size + body + size;
}

QByteArray sectionBlock(const RecordingHead &head)
{
    constexpr quint16 majorVersion = 1;
    constexpr quint16 minorVersion = 0;
    constexpr qint64 unknownLength = -1;
    return pcapngBlock(
        Pcapng::sectionHeader,
        littleEndian(Pcapng::byteOrderMagic) + littleEndian(majorVersion) +
            littleEndian(minorVersion) + littleEndian(unknownLength) +
            option(Pcapng::userApplication, QByteArray("Tarnwick ") + head.version.toUtf8()) +
            commentOption(jsonHead(head)) + option(Pcapng::endOfOptions, {}));
}

QByteArray interfaceBlock(const RecordingHead &head)
{
    constexpr quint16 reserved = 0;
    constexpr quint32 anyLength = 0;
    constexpr char microseconds = 6;
    return pcapngBlock(
        Pcapng::interfaceDescription,
        littleEndian(Pcapng::serialLinkType) + littleEndian(reserved) + littleEndian(anyLength) +
            option(Pcapng::interfaceName, head.link.toUtf8().left(longestOption)) +
            option(Pcapng::timeResolution, {1, microseconds}) + option(Pcapng::endOfOptions, {}));
}

QByteArray serialHeader(ArrivalTime time, quint8 kind)
{
    constexpr quint8 lineStates = 0;
    constexpr quint16 footer = 0;
    return bigEndian(static_cast<quint32>(time.utcUs / usPerSecond)) +
           bigEndian(static_cast<quint32>(time.utcUs % usPerSecond)) + bigEndian(kind) +
           bigEndian(lineStates) + bigEndian(footer);
}

QByteArray packetBlock(ArrivalTime time, const QByteArray &packet, const QByteArray &options)
{
    constexpr quint32 firstInterface = 0;
    constexpr int bitsOfHalf = 32;
    const auto us = static_cast<quint64>(time.utcUs);
    const QByteArray size = littleEndian(static_cast<quint32>(packet.size()));
    return pcapngBlock(Pcapng::enhancedPacket,
                       littleEndian(firstInterface) +
                           littleEndian(static_cast<quint32>(us >> bitsOfHalf)) +
                           littleEndian(static_cast<quint32>(us)) + size + size + filled(packet) +
                           options + option(Pcapng::endOfOptions, {}));
}

quint8 serialKind(RecordEvent::Kind kind)
{
    switch (kind) {
    case RecordEvent::Kind::Sent:
        return Pcapng::transmitted;
    case RecordEvent::Kind::Received:
    case RecordEvent::Kind::Stray:
        return Pcapng::received;
    default:
        return Pcapng::statusChange;
    }
}

QByteArray directionOption(RecordEvent::Kind kind)
{
    switch (serialKind(kind)) {
    case Pcapng::transmitted:
        return option(Pcapng::packetFlags, littleEndian(Pcapng::outbound));
    case Pcapng::received:
        return option(Pcapng::packetFlags, littleEndian(Pcapng::inbound));
    default:
        return {};
    }
}

QByteArray factsOption(const RecordEvent &event)
{
    constexpr quint16 unused = 0;
    return option(Pcapng::eventFacts, littleEndian(static_cast<quint8>(event.kind)) +
                                          littleEndian(static_cast<quint8>(event.crc)) +
                                          littleEndian(unused) +
                                          littleEndian(event.time.monotonicNs) +
                                          littleEndian(static_cast<qint32>(event.row)));
}

/// What somebody who looks at the packet is told about it, a line each.
QStringList packetComments(const RecordEvent &event)
{
    QStringList comments;
    if (event.kind == RecordEvent::Kind::Stray) {
        comments += QStringLiteral("no frame");
    }
    if (event.crc == RecordEvent::Crc::Bad) {
        comments += QStringLiteral("bad CRC");
    }
    if (event.row > 0) {
        comments += QStringLiteral("row: %1").arg(event.row);
    }
    if (!event.hasBytes()) {
        comments += QString::fromLatin1(eventName(event.kind));
    }
    const QString words = event.hasBytes() ? QStringLiteral("desc: ") : QStringLiteral("text: ");
    const std::initializer_list<std::pair<QString, QString>> texts{
        {QStringLiteral("link: "), event.link},
        {QStringLiteral("settings: "), event.settings},
        {words, event.text}};
    for (const auto &[name, text] : texts) {
        if (!text.isEmpty()) {
            comments += name + text;
        }
    }
    return comments;
}

} // namespace

QByteArray PcapngWriter::head(const RecordingHead &head)
{
    return sectionBlock(head) + interfaceBlock(head);
}

void PcapngWriter::append(QByteArray &bytes, const RecordEvent &event)
{
    QByteArray options = directionOption(event.kind) + factsOption(event);
    for (const QString &comment : packetComments(event)) {
        options += commentOption(comment.toUtf8());
    }
    bytes += packetBlock(event.time, serialHeader(event.time, serialKind(event.kind)) + event.bytes,
                         options);
}

QByteArray PcapngWriter::tail(const RecordingTail &tail)
{
    return packetBlock(tail.time, serialHeader(tail.time, Pcapng::captureComplete),
                       commentOption(jsonTail(tail)));
}
