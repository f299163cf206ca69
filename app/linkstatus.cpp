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
    followReopener(session);
    connect(&session, &Session::linkFailed, this,
            [this, &session](LinkMode, const QString &name, const QString &reason) {
                tellLoss(name, reason, session.reopener().isWaiting());
            });
    connect(&session, &Session::deviceGone, this, [this, &session](LinkMode, const QString &name) {
        tellLoss(name, QStringLiteral("the device is gone"), session.reopener().isWaiting());
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

void LinkStatus::followReopener(Session &session)
{
    const PortReopener &reopener = session.reopener();
    connect(&reopener, &PortReopener::reopened, this, [this](const QString &name) {
        m_status.tell(tr("The connection to %1 was lost and is back.").arg(name));
    });
    connect(&reopener, &PortReopener::refused, this, [this, &session](const QString &name) {
        m_status.tell(whyPortFailed(name, session.links().serial().failure()));
    });
    // Nobody is to wait for what was announced.
    connect(&reopener, &PortReopener::forgotten, this, [this] { m_status.tell({}); });
}

void LinkStatus::tellLoss(const QString &name, const QString &reason, bool isWaitedFor)
{
    const QString loss = whyLost(name, reason);
    m_status.tell(isWaitedFor ? tr("%1. It is opened again when it is back.").arg(loss) : loss);
}
