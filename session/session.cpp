#include "session/session.h"

#include "frames/alarmclock.h"
#include "frames/headernotice.h"
#include "frames/messages.h"
#include "frames/systemclock.h"
#include "log/allzero.h"
#include "session/framecrc.h"

Session::Session(const QString &deviceIdFile, const QString &portsFolder, QObject *parent)
    : QObject(parent)
    , m_log(this)
    , m_links(FrameReassembler::capacity - FrameReassembler::longestFrame, deviceIdFile, this)
    , m_devices(m_links.serial(), m_links.hid(), m_log, portsFolder, this)
    , m_receiver([this] { return m_receivedHeader.startBytes(); }, this)
    , m_sender(m_format, this)
    , m_tap(m_links, m_sender, m_receiver, m_devices, m_format, this)
    , m_loop(m_sender, this)
    , m_reopener(m_links.serial(), makeSystemClock(), this)
    , m_replies(m_sender, m_receiver, m_loop, this)
{
    connectLinks();
    connectRecords();
    connectNotices();
    connectReopener();
    use(m_links.mode());
}

void Session::use(LinkMode mode)
{
    if (mode != LinkMode::Uart) {
        m_reopener.forget();
    }
    m_links.choose(mode);
    m_sender.setLink(&m_links.chosen());
}

void Session::setHeaderText(const QString &text)
{
    m_format.setHeaderText(text);
    m_receivedHeader.setText(text);
}

void Session::setFrameGap(std::optional<int> gapMs)
{
    m_receiver.setGap(gapMs);
    m_tap.setEndedBySilence(gapMs.has_value());
}

void Session::endLink(LinkMode mode)
{
    m_loop.stop();
    link(mode).close();
}

void Session::end()
{
    m_loop.stop();
    m_reopener.forget();
    m_links.close();
}

void Session::connectLinks()
{
    for (const LinkMode mode : {LinkMode::Uart, LinkMode::Hid}) {
        connect(&link(mode), &Link::arrived, &m_receiver, &Receiver::take);
        connect(&link(mode), &Link::lost, this, [this, mode](const QString &reason) {
            const QString name = linkName(mode);
            loseLink(mode);
            emit linkFailed(mode, name, reason);
        });
    }
    connect(&m_receiver, &Receiver::aboutToGiveUp, this, [this] { m_links.chosen().handUp(); });
    connect(&m_devices, &DeviceWatch::gone, this, [this](LinkMode mode) {
        const QString name = linkName(mode);
        loseLink(mode);
        emit deviceGone(mode, name);
    });
}

void Session::connectRecords()
{
    connect(&m_sender, &Sender::sent, this,
            [this](const QByteArray &frame, ArrivalTime time, int rowId) {
                m_log.appendSent(frame, m_format.withCrc(), time, rowId);
            });
    connect(&m_receiver, &Receiver::frameReceived, this,
            [this](const QByteArray &frame, ArrivalTime time, ArrivalTime begun) {
                m_log.appendReceived(frame, m_format.withCrc(), time, begun, faultOf(frame, time));
            });
    connect(&m_sender, &Sender::handedOver, this,
            [this](const QByteArray & /*block*/, const QVector<BlockPart> &parts,
                   ArrivalTime time) { m_check.noteSent(parts, time.monotonicNs); });
    connect(&m_receiver, &Receiver::strayReceived, this, &Session::recordStray);
    connect(&m_links.hid(), &HidLink::dropped, this, [this](qint64 bytes) {
        m_log.appendEvent(QStringLiteral("HID"),
                          Messages::wording(QT_TRANSLATE_NOOP("Messages", "%1 bytes dropped"),
                                            QString::number(bytes)));
    });
}

void Session::connectNotices()
{
    connect(&m_sender, &Sender::notice, this, &Session::notice);
    connect(&m_loop, &LoopControl::notice, this, &Session::notice);
    connect(&m_receivedHeader, &ReceivedHeader::unreadable, this,
            [this] { emit notice(badHeaderMessage()); });
}

void Session::connectReopener()
{
    connect(&m_devices, &DeviceWatch::came, this, [this](const WatchedDevice &device) {
        if (device.kind == DeviceKind::Port) {
            m_reopener.noteArrival(device.name);
        }
    });
    connect(&m_devices, &DeviceWatch::cameUnseen, this, [this] { m_reopener.noteArrival({}); });
    const auto record = [this](const Wording &event) {
        m_log.appendEvent(QStringLiteral("Uart"), event);
    };
    connect(&m_reopener, &PortReopener::waiting, this, [record](const QString &name) {
        record(Messages::wording(QT_TRANSLATE_NOOP("Messages", "Lost %1"), name));
    });
    connect(&m_reopener, &PortReopener::reopened, this, [record](const QString &name) {
        record(Messages::wording(QT_TRANSLATE_NOOP("Messages", "Reopen %1"), name));
    });
}

void Session::loseLink(LinkMode mode)
{
    endLink(mode);
    if (mode == LinkMode::Uart) {
        m_reopener.noteLoss();
    }
}

Link &Session::link(LinkMode mode)
{
    return mode == LinkMode::Uart ? static_cast<Link &>(m_links.serial()) : m_links.hid();
}

QString Session::linkName(LinkMode mode) const
{
    return mode == LinkMode::Uart ? m_links.serial().openPortName() : m_links.hid().openPath();
}

/// Why a frame is not what the row expects that it answers; empty where nothing is wrong.
QString Session::faultOf(const QByteArray &frame, ArrivalTime time)
{
    if (!m_check.isWaiting()) {
        return {};
    }
    const FrameLayout layout = receivedLayout(m_format.nextFrameLayout());
    return m_check.judge(takenApart(frame, layout, time.monotonicNs),
                         ArrivalTime::now().monotonicNs);
}

/// A HID device fills its last report with zeros; those are not recorded.
void Session::recordStray(const QByteArray &bytes, ArrivalTime time)
{
    if (m_links.mode() != LinkMode::Hid || !isAllZero(bytes)) {
        m_log.appendStray(bytes, time);
    }
}
