#include "app/linkpanels.h"

#include "app/boxes.h"
#include "app/datafolder.h"
#include "app/headerfield.h"
#include "app/hidtab.h"
#include "app/serialtab.h"
#include "app/statusline.h"
#include "app/windowmemory.h"
#include "frames/messages.h"
#include "links/linktexts.h"
#include "session/session.h"

LinkPanels::LinkPanels(SerialTab &serialTab, HidTab &hidTab, Session &session, StatusLine &status,
                       QObject *parent)
    : QObject(parent)
    , m_serialTab(serialTab)
    , m_hidTab(hidTab)
    , m_session(session)
    , m_status(status)
    , m_serial(serialTab, session.links().serial(), this)
    , m_hid(hidTab, session.links().hid(), this)
    , m_lists(m_serial, m_hid, this)
    , m_linkStatus(status, session, this)
{
    m_serialTab.header().feed(m_session);
    m_session.links().hid().readDeviceTypes();
    m_linkStatus.follow(m_serial);
    m_linkStatus.follow(m_hid);
    connect(&m_serial, &SerialPanel::failed, this, [] { showOpenFail(QStringLiteral("UART")); });
    connect(&m_hid, &HidPanel::failed, this, [] { showOpenFail(QStringLiteral("HID")); });
    connect(&m_lists, &DeviceLists::due, this, &LinkPanels::listsDue);
    connect(&m_session, &Session::linkFailed, this, &LinkPanels::tellLoss);
    followReopener();
}

void LinkPanels::goToTab(int index)
{
    m_status.tell({});
    if (index == int(LinkMode::Uart) || index == int(LinkMode::Hid)) {
        m_session.use(static_cast<LinkMode>(index));
    }
}

void LinkPanels::watchDevices(const WindowHandle &window)
{
    DeviceWatch &devices = m_session.devices();
    connect(&devices, &DeviceWatch::listsOutdated, &m_lists, &DeviceLists::refreshSoon);
    if (!devices.start(window)) {
        QTimer::singleShot(0, this, [this] {
            emit notice(Messages::tr("The hardware monitoring registration failed, and the "
                                     "hardware could not be identified!"));
        });
    }
}

void LinkPanels::remember(WindowMemory &memory)
{
    connect(&m_serialTab, &SerialTab::reopensChanged, this, [this, &memory](bool reopens) {
        m_session.reopener().setOn(reopens);
        memory.setReopens(reopens);
    });
    m_serialTab.setReopens(memory.reopens());
}

void LinkPanels::takeCrcFlag()
{
    const bool isSerial = m_session.links().mode() == LinkMode::Uart;
    m_session.format().setCrc(isSerial ? m_serialTab.wantsCrc() : m_hidTab.wantsCrc());
}

void LinkPanels::followReopener()
{
    PortReopener &reopener = m_session.reopener();
    connect(&m_serial, &SerialPanel::opening, &reopener, &PortReopener::notePort);
    connect(&m_serialTab, &SerialTab::lineChosen, this,
            [this, &reopener] { reopener.noteLine(m_serialTab.settings()); });
    // The port is in the list again, and selected.
    connect(&reopener, &PortReopener::reopened, this,
            [this] { m_serial.refreshPorts(portsFolder()); });
}

/// A port that will be opened again needs no box, which nobody may be there to close.
void LinkPanels::tellLoss(LinkMode mode, const QString &name, const QString &reason)
{
    if (mode == LinkMode::Uart) {
        m_lists.refreshSoon();
        if (!m_session.reopener().isWaiting()) {
            emit notice(whyLost(name, reason));
        }
    }
}
