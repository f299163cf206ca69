#include "recording/pcapngreader.h"

#include "frames/messages.h"
#include "frames/timeunits.h"
#include "recording/jsonobject.h"
#include "recording/pcapngformat.h"
#include "recording/pcapngoptions.h"
#include "recording/utctext.h"

#include <QIODevice>
#include <QtEndian>

namespace {

/// As far as a time in ns fits, too.
constexpr quint64 latestUtcUs = 9000000000000000;
constexpr quint32 longestBlock = 4 * 1024 * 1024;
constexpr int typeAndSize = 8;
constexpr int sizeOfSize = 4;
constexpr int sectionFixed = 16;
constexpr int interfaceFixed = 8;
constexpr int packetFixed = 20;

template<typename Number>
Number numberIn(const QByteArray &bytes, int position)
{
    return qFromLittleEndian<Number>(bytes.constData() + position);
}

/// The text behind "name: ", if the comment has that name.
bool takeText(const QString &comment, const char *name, QString &text)
{
    const QString beginning = QLatin1String(name) + QLatin1String(": ");
    if (!comment.startsWith(beginning)) {
        return false;
    }
    text = comment.mid(beginning.size());
    return true;
}

void takeComment(const QString &comment, RecordEvent &event)
{
    takeText(comment, "link", event.link) || takeText(comment, "settings", event.settings) ||
        takeText(comment, event.hasBytes() ? "desc" : "text", event.text);
}

/// What a packet of a foreign writer is, going by its direction.
RecordEvent::Kind kindOfPacket(quint8 serialKind)
{
    switch (serialKind) {
    case Pcapng::transmitted:
        return RecordEvent::Kind::Sent;
    case Pcapng::received:
        return RecordEvent::Kind::Received;
    default:
        return RecordEvent::Kind::Note;
    }
}

void takeFacts(const QByteArray &facts, RecordEvent &event)
{
    const auto kind = numberIn<quint8>(facts, 0);
    const auto crc = numberIn<quint8>(facts, 1);
    if (kind <= quint8(RecordEvent::Kind::Note) && crc <= quint8(RecordEvent::Crc::Bad)) {
        event.kind = static_cast<RecordEvent::Kind>(kind);
        event.crc = static_cast<RecordEvent::Crc>(crc);
        event.time.monotonicNs = numberIn<qint64>(facts, 4);
        event.row = numberIn<qint32>(facts, 12);
    }
}

RecordEvent eventOf(const QByteArray &packet, qint64 utcUs, const QVector<PcapngOption> &options)
{
    RecordEvent event;
    event.kind = kindOfPacket(static_cast<quint8>(packet.at(8)));
    event.time = {utcUs, utcUs * nsPerUs};
    for (const PcapngOption &option : options) {
        if (option.code == Pcapng::eventFacts && option.value.size() == Pcapng::eventFactsSize) {
            takeFacts(option.value, event);
        }
    }
    for (const PcapngOption &option : options) {
        if (option.code == Pcapng::comment) {
            takeComment(QString::fromUtf8(option.value), event);
        }
    }
    if (event.hasBytes()) {
        event.bytes = packet.mid(Pcapng::serialHeaderSize);
    }
    return event;
}

/// What a comment in JSON says, where one is of that kind.
template<typename Facts>
std::optional<Facts> factsIn(const QVector<PcapngOption> &options)
{
    for (const PcapngOption &option : options) {
        const JsonLine line =
            option.code == Pcapng::comment ? parseJsonLine(option.value) : JsonLine();
        if (const auto *facts = std::get_if<Facts>(&line)) {
            return *facts;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<RecordEvent> PcapngReader::next()
{
    m_event.reset();
    while (!m_isOver && !m_event) {
        const std::optional<Block> block = nextBlock();
        m_isOver = !block || !take(*block);
    }
    return m_event;
}

std::optional<PcapngReader::Block> PcapngReader::nextBlock()
{
    const QByteArray head = m_device.read(typeAndSize);
    if (head.size() < typeAndSize) {
        if (!head.isEmpty()) {
            setTorn();
        }
        return std::nullopt;
    }
    const auto size = numberIn<quint32>(head, sizeOfSize);
    if (size < typeAndSize + sizeOfSize || size % sizeOfSize != 0 || size > longestBlock) {
        failHere(Messages::tr("a block of an impossible size"));
        return std::nullopt;
    }
    const int rest = static_cast<int>(size) - typeAndSize;
    QByteArray body = m_device.read(rest);
    if (body.size() < rest) {
        setTorn();
        return std::nullopt;
    }
    if (numberIn<quint32>(body, rest - sizeOfSize) != size) {
        failHere(Messages::tr("a block with two sizes"));
        return std::nullopt;
    }
    body.chop(sizeOfSize);
    return Block{numberIn<quint32>(head, 0), body};
}

bool PcapngReader::take(const Block &block)
{
    const qint64 begin = m_offset;
    bool isTaken = true;
    switch (block.type) {
    case Pcapng::sectionHeader:
        isTaken = takeSection(block.body);
        break;
    case Pcapng::interfaceDescription:
        isTaken = takeInterface(block.body);
        break;
    case Pcapng::enhancedPacket:
        isTaken = takePacket(block.body);
        break;
    default:
        break;
    }
    m_offset = begin + typeAndSize + block.body.size() + sizeOfSize;
    return isTaken;
}

bool PcapngReader::takeSection(const QByteArray &body)
{
    if (m_hasSection || body.size() < sectionFixed ||
        numberIn<quint32>(body, 0) != Pcapng::byteOrderMagic) {
        failHere(Messages::tr("a section that isn't ours"));
        return false;
    }
    m_hasSection = true;
    if (const auto head = factsIn<RecordingHead>(parsePcapngOptions(body.mid(sectionFixed)))) {
        setHead(*head);
    }
    return true;
}

bool PcapngReader::takeInterface(const QByteArray &body)
{
    if (!m_hasSection || m_hasInterface || body.size() < interfaceFixed ||
        numberIn<quint16>(body, 0) != Pcapng::serialLinkType) {
        failHere(Messages::tr("no serial line"));
        return false;
    }
    m_hasInterface = true;
    return true;
}

bool PcapngReader::takePacket(const QByteArray &body)
{
    const quint32 size = body.size() < packetFixed ? 0 : numberIn<quint32>(body, 12);
    if (!m_hasInterface || size < Pcapng::serialHeaderSize ||
        size > quint32(body.size() - packetFixed)) {
        failHere(Messages::tr("a packet that isn't ours"));
        return false;
    }
    constexpr int bitsOfHalf = 32;
    const QByteArray packet = body.mid(packetFixed, static_cast<int>(size));
    const quint64 utcUs =
        quint64(numberIn<quint32>(body, 4)) << bitsOfHalf | numberIn<quint32>(body, 8);
    if (utcUs > latestUtcUs) {
        failHere(Messages::tr("an impossible time"));
        return false;
    }
    const int padding = (sizeOfSize - packet.size() % sizeOfSize) % sizeOfSize;
    const auto options = parsePcapngOptions(body.mid(packetFixed + packet.size() + padding));
    if (static_cast<quint8>(packet.at(8)) != Pcapng::captureComplete) {
        m_event = eventOf(packet, static_cast<qint64>(utcUs), options);
    } else if (const auto tail = factsIn<RecordingTail>(options)) {
        setTail(*tail);
    }
    return true;
}

void PcapngReader::failHere(const QString &words)
{
    fail(Messages::tr("byte %1: %2").arg(m_offset).arg(words));
}
