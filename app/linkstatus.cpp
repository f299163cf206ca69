#include "linkstatus.h"

#include "devicewatch.h"
#include "hidlink.h"
#include "hidpanel.h"
#include "linktexts.h"
#include "seriallink.h"
#include "serialpanel.h"
#include "statusline.h"

LinkStatus::LinkStatus(StatusLine &status, const DeviceWatch &devices, QObject *parent)
    : QObject(parent)
    , m_status(status)
    , m_devices(devices)
{}

void LinkStatus::follow(const SerialPanel &panel, const SerialLink &link)
{
    connect(&panel, &SerialPanel::linkChanged, &m_status, &StatusLine::showLink);
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
    connect(&panel, &HidPanel::linkChanged, &m_status, &StatusLine::showLink);
    connect(&panel, &HidPanel::failed, &m_status, &StatusLine::tell);
    connect(&link, &HidLink::lost, this, [this, &link](const QString &reason) {
        m_status.tell(whyLost(link.openPath(), reason));
    });
    connect(&m_devices, &DeviceWatch::hidGone, this,
            [this, &link] { m_status.tell(whyLost(link.openPath(), tr("the device is gone"))); });
}
