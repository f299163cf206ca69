#include "session/wiretap.h"

#include "frames/hextext.h"
#include "frames/sender.h"
#include "frames/startbytes.h"
#include "links/linkpair.h"
#include "links/serial/serialline.h"
#include "log/localtime.h"
#include "log/receiver.h"
#include "session/devicewatch.h"
#include "session/framecrc.h"
#include "session/frameformat.h"

#include <QDateTime>
#include <QTimeZone>

#include <utility>

namespace {

/// The local time's distance from UTC and its name, such as "+01:00 Europe/Berlin".
QString localZone()
{
    return utcOffsetText(QDateTime::currentDateTime().offsetFromUtc()) + QLatin1Char(' ') +
           QString::fromLatin1(QTimeZone::systemTimeZoneId());
}

} // namespace

WireTap::WireTap(LinkPair &links, Sender &sender, Receiver &receiver, DeviceWatch &devices,
                 FrameFormat &format, QObject *parent)
    : QObject(parent)
    , m_links(links)
    , m_receiver(receiver)
    , m_format(format)
{
    listenTo(links.serial(), LinkMode::Uart);
    listenTo(links.hid(), LinkMode::Hid);
    connect(&sender, &Sender::handedOver, this, &WireTap::takeBlock);
    connect(&receiver, &Receiver::frameReceived, this, &WireTap::takeRun);
    connect(&links.hid(), &HidLink::dropped, this, [this](qint64 bytes) {
        tellNote(QStringLiteral("%1 bytes that came in were dropped").arg(bytes));
    });
    connect(&devices, &DeviceWatch::gone, this,
            [this] { m_reason = QStringLiteral("the device is gone"); });
}

void WireTap::setEndedBySilence(bool on)
{
    if (on != m_isEndedBySilence) {
        tellWaiting();
        m_isEndedBySilence = on;
    }
}

void WireTap::start()
{
    m_reassembler = {};
    m_isOn = true;
}

void WireTap::stop()
{
    tellWaiting();
    m_isOn = false;
}

RecordingHead WireTap::head() const
{
    RecordingHead head;
    head.time = ArrivalTime::now();
    const FrameLayout layout = m_format.nextFrameLayout();
    head.startBytes =
        m_isEndedBySilence && !layout.withStartBytes ? QByteArray() : bytesOf(layout.startBytes);
    head.withCrc = m_format.withCrc();
    head.zone = localZone();
    const bool isSerial = m_links.serial().isOpen();
    if (isSerial || m_links.hid().isOpen()) {
        const LinkMode mode = isSerial ? LinkMode::Uart : LinkMode::Hid;
        head.link = nameOf(mode);
        head.settings = settingsOf(mode);
    }
    return head;
}

void WireTap::listenTo(Link &link, LinkMode mode)
{
    connect(&link, &Link::arrived, this, &WireTap::takeChunk);
    connect(&link, &Link::lost, this, [this](const QString &reason) { m_reason = reason; });
    connect(&link, &Link::unsentDropped, this, [this](qint64 bytes) {
        tellNote(QStringLiteral("%1 bytes of what was sent never left").arg(bytes));
    });
    connect(&link, &Link::openChanged, this, [this, mode](bool isOpen) { tellLink(mode, isOpen); });
}

void WireTap::takeBlock(const QByteArray &block, const QVector<BlockPart> &parts, ArrivalTime time)
{
    if (!m_isOn) {
        return;
    }
    const FrameLayout layout = m_format.nextFrameLayout();
    int begin = 0;
    for (const BlockPart &part : parts.isEmpty() ? QVector<BlockPart>{{block.size()}} : parts) {
        RecordEvent event;
        event.kind = RecordEvent::Kind::Sent;
        event.time = time;
        event.bytes = block.mid(begin, part.size);
        event.crc = crcOfFrame(event.bytes, layout);
        event.row = part.row;
        event.text = part.description;
        emit happened(event);
        begin += part.size;
    }
}

void WireTap::takeChunk(const QByteArray &chunk, ArrivalTime time)
{
    if (m_isOn && !m_isEndedBySilence) {
        m_lastArrival = time;
        tellPieces(m_reassembler.take(chunk, m_format.startBytes()), time);
    }
}

void WireTap::takeRun(const QByteArray &run, ArrivalTime time)
{
    if (m_isOn && m_isEndedBySilence) {
        tellPieces({{ReceivedPiece::Kind::Frame, run}}, time);
    }
}

void WireTap::tellPieces(const QVector<ReceivedPiece> &pieces, ArrivalTime time)
{
    const FrameLayout sent = m_format.nextFrameLayout();
    const FrameLayout layout = m_isEndedBySilence ? sent : receivedLayout(sent);
    for (const ReceivedPiece &piece : pieces) {
        const bool isFrame = piece.kind == ReceivedPiece::Kind::Frame;
        RecordEvent event;
        event.kind = isFrame ? RecordEvent::Kind::Received : RecordEvent::Kind::Stray;
        event.time = time;
        event.bytes = piece.bytes;
        event.crc = isFrame ? crcOfFrame(piece.bytes, layout) : RecordEvent::Crc::None;
        emit happened(event);
    }
}

void WireTap::tellLink(LinkMode mode, bool isOpen)
{
    const QString reason = std::exchange(m_reason, {});
    if (!m_isOn) {
        return;
    }
    tellWaiting();
    RecordEvent event;
    event.kind = isOpen ? RecordEvent::Kind::Open : RecordEvent::Kind::Close;
    event.time = ArrivalTime::now();
    event.link = nameOf(mode);
    event.settings = isOpen ? settingsOf(mode) : QString();
    event.text = isOpen ? QString() : reason;
    emit happened(event);
}

void WireTap::tellNote(const QString &text)
{
    if (m_isOn) {
        RecordEvent event;
        event.time = ArrivalTime::now();
        event.text = text;
        emit happened(event);
    }
}

void WireTap::tellWaiting()
{
    if (m_isEndedBySilence) {
        m_receiver.endRun();
    } else if (m_isOn) {
        tellPieces(m_reassembler.giveUpAll(), m_lastArrival);
    }
}

QString WireTap::nameOf(LinkMode mode) const
{
    return mode == LinkMode::Uart ? m_links.serial().settings().portName : m_links.hid().openPath();
}

QString WireTap::settingsOf(LinkMode mode) const
{
    if (mode == LinkMode::Uart) {
        return describeLine(m_links.serial().settings());
    }
    constexpr int idDigits = 2;
    return QStringLiteral("%1 bytes, report ID 0x%2")
        .arg(m_links.hid().packetSize())
        .arg(paddedHex(m_links.hid().reportId(), idDigits));
}
