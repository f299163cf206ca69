#include "links/hid/hidlink.h"

#include "frames/messages.h"
#include "frames/reports.h"
#include "links/hid/hiddevices.h"
#include "links/nodeaccess.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

HidPacket makePacket(quint8 reportId, const QByteArray &report)
{
    HidPacket packet;
    packet.data[0] = reportId;
    packet.length = report.size();
    std::copy(report.begin(), report.end(), packet.data + 1);
    return packet;
}

} // namespace

HidLink::HidLink(QString deviceIdFile, QObject *parent)
    : Link(parent)
    , m_deviceIdFile(std::move(deviceIdFile))
{
    connect(&m_thread, &HidThread::packetReceived, &m_packetReceiver,
            [this](const HidPacket &packet, ArrivalTime time) { receive(packet, time); });
    connect(&m_thread, &HidThread::deviceDisconnected, &m_lossReceiver, [this] { reportLoss(); });
    connect(&m_inbox, &ReportInbox::arrived, this, &Link::arrived);
    connect(&m_inbox, &ReportInbox::dropped, this, &HidLink::dropped);
}

HidLink::~HidLink()
{
    shutDown();
}

void HidLink::readDeviceTypes()
{
    m_thread.setIdList(readDeviceIdFile(m_deviceIdFile));
}

QStringList HidLink::listDevices()
{
    readDeviceTypes();
    m_listedIds.clear();
    QStringList paths;
    for (const HidDevice &device : attachedHidDevices(m_thread.idList())) {
        m_listedIds.insert(device.path, device.ids);
        paths.append(device.path);
    }
    return paths;
}

bool HidLink::open(const QString &path, quint8 reportId)
{
    close();
    if (!m_thread.openByPath(path)) {
        m_failure = examineDevice(path);
        return false;
    }
    const DeviceIds ids = idsOf(path);
    m_openPath = path;
    m_reportId = reportId;
    m_thread.setIds(ids.vendor, ids.product);
    m_thread.setPacketSize(m_reportSize.value_or(readPacketSize(m_deviceIdFile, ids)));
    m_timing.emplace();
    m_thread.start();
    emit openChanged(true);
    return true;
}

bool HidLink::open(const HidDevice &device, quint8 reportId)
{
    m_listedIds.insert(device.path, device.ids);
    return open(device.path, reportId);
}

void HidLink::close()
{
    m_inbox.handUpAll();
    // Where a handler of `arrived` closes the link, reports may still wait.
    m_inbox.clear();
    if (isOpen()) {
        tellUnsent();
        shutDown();
        emit openChanged(false);
    }
}

void HidLink::handUp()
{
    // What the worker has read may still be on its way.
    QCoreApplication::sendPostedEvents(&m_packetReceiver);
    m_inbox.handUpAll();
}

void HidLink::shutDown()
{
    m_thread.stop();
    // What is still on its way must not count as sent by the next device.
    QCoreApplication::removePostedEvents(&m_packetReceiver);
    QCoreApplication::removePostedEvents(&m_lossReceiver);
    m_thread.close();
    m_timing.reset();
}

void HidLink::receive(const HidPacket &packet, ArrivalTime time)
{
    const int length = std::clamp(packet.length, 0, longestReport);
    m_inbox.put({reinterpret_cast<const char *>(&packet.data[1]), length}, time);
}

QString HidLink::closedMessage() const
{
    return Messages::tr("Please open the HID Device!");
}

void HidLink::reportLoss()
{
    // What the device has sent so far.
    m_inbox.handUpAll();
    if (isOpen()) {
        emit lost(QLatin1String(QT_TRANSLATE_NOOP("Messages", "it takes nothing any more")));
    }
}

void HidLink::write(const QByteArray &block)
{
    for (const QByteArray &report : splitIntoReports(block, m_thread.packetSize())) {
        m_thread.queuePacket(makePacket(m_reportId, report));
    }
}

qint64 HidLink::unsentBytes() const
{
    return qint64(m_thread.queuedPackets()) * m_thread.packetSize();
}

DeviceIds HidLink::idsOf(const QString &path) const
{
    const DeviceIds inPath = parseDeviceIds(path);
    return inPath != DeviceIds() ? inPath : m_listedIds.value(path);
}
