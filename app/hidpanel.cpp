#include "app/hidpanel.h"

#include "app/hidtab.h"
#include "links/hid/hidlink.h"
#include "links/linktexts.h"

HidPanel::HidPanel(HidTab &tab, HidLink &link, QObject *parent)
    : QObject(parent)
    , m_tab(tab)
    , m_link(link)
{
    connect(&m_link, &Link::openChanged, &m_tab, &HidTab::showOpen);
}

void HidPanel::refreshDevices()
{
    m_tab.showDevices(m_link.listDevices());
}

void HidPanel::open()
{
    const QString path = m_tab.devicePath();
    if (!m_link.open(path, m_tab.reportId())) {
        emit failed(whyHidFailed(path, m_link.idsOf(path), m_link.failure()));
    }
}

void HidPanel::toggle()
{
    if (m_link.isOpen()) {
        m_link.close();
    } else {
        open();
    }
}
