#include "linkstatus.h"

#include "devicewatch.h"
#include "hidlink.h"
#include "hidpanel.h"
#include "linktexts.h"
#include "seriallink.h"
#include "serialpanel.h"
#include "statusline.h"

namespace {

QString describe(const HidLink &link)
{
    return describeLink({link.openPath(), link.ids(), link.packetSize(), link.reportId()});
}

} // namespace

LinkStatus::LinkStatus(StatusLine &status, const DeviceWatch &devices, QObject *parent)
    : QObject(parent)
    , m_status(status)
    , m_devices(devices)
{}

void LinkStatus::follow(const SerialPanel &panel, const SerialLink &link)
{
    connect(&link, &Link::openChanged, this, [this, &link](bool isOpen) {
        m_status.showLink(isOpen ? describeLink(link.settings()) : QString());
    });
    connect(&panel, &SerialPanel::failed, &m_status, &StatusLine::tell);
    connect(&link, &SerialLink::lost, this, [this, &link](const QString &reason) {
        m_status.tell(whyLost(link.openPortName(), reason));
    });
    connect(&m_devices, &DeviceWatch::portGone, this, [this, &link] {
        m_status.tell(whyLost(link.openPortName(), tr("the device is gone")));
    });
}

void LinkStatus::follow(const HidPanel &panel, const HidLink &link)
{
    connect(&link, &Link::openChanged, this,
            [this, &link](bool isOpen) { m_status.showLink(isOpen ? describe(link) : QString()); });
    connect(&panel, &HidPanel::failed, &m_status, &StatusLine::tell);
    connect(&link, &HidLink::lost, this, [this, &link](const QString &reason) {
        m_status.tell(whyLost(link.openPath(), reason));
    });
    connect(&m_devices, &DeviceWatch::hidGone, this,
            [this, &link] { m_status.tell(whyLost(link.openPath(), tr("the device is gone"))); });
}
