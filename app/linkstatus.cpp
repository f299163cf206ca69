#include "app/linkstatus.h"

#include "app/hidpanel.h"
#include "app/serialpanel.h"
#include "app/statusline.h"
#include "links/linktexts.h"
#include "session/session.h"

static QString describe(const HidLink &link)
{
    return describeLink({link.openPath(), link.ids(), link.packetSize(), link.reportId()});
}

LinkStatus::LinkStatus(StatusLine &status, Session &session, QObject *parent)
    : QObject(parent)
    , m_status(status)
{
    followOpen(session);
    connect(&session, &Session::linkFailed, this,
            [this](LinkMode, const QString &name, const QString &reason) {
                m_status.tell(whyLost(name, reason));
            });
    connect(&session, &Session::deviceGone, this, [this](LinkMode, const QString &name) {
        m_status.tell(whyLost(name, tr("the device is gone")));
    });
}

void LinkStatus::follow(const SerialPanel &panel)
{
    connect(&panel, &SerialPanel::failed, &m_status, &StatusLine::tell);
}

void LinkStatus::follow(const HidPanel &panel)
{
    connect(&panel, &HidPanel::failed, &m_status, &StatusLine::tell);
}

void LinkStatus::followOpen(Session &session)
{
    const SerialLink &serial = session.links().serial();
    connect(&serial, &Link::openChanged, this, [this, &serial](bool isOpen) {
        m_status.showLink(isOpen ? describeLink(serial.settings()) : QString());
    });
    const HidLink &hid = session.links().hid();
    connect(&hid, &Link::openChanged, this,
            [this, &hid](bool isOpen) { m_status.showLink(isOpen ? describe(hid) : QString()); });
}
