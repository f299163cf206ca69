#include "app/serialpanel.h"

#include "app/serialtab.h"
#include "links/linktexts.h"
#include "links/serial/portlist.h"

SerialPanel::SerialPanel(SerialTab &tab, SerialLink &link, QObject *parent)
    : QObject(parent)
    , m_tab(tab)
    , m_link(link)
{
    connect(&m_link, &Link::openChanged, &m_tab, &SerialTab::showOpen);
}

void SerialPanel::refreshPorts(const QString &linksFolder)
{
    const PortList ports = listPorts(linksFolder);
    m_tab.showPorts(ports.names, placeToSelect(ports));
}

void SerialPanel::open()
{
    const SerialSettings settings = m_tab.settings();
    m_chosenPortName = settings.portName;
    emit opening(settings.portName);
    if (!m_link.open(settings)) {
        emit failed(whyPortFailed(settings.portName, m_link.failure()));
    }
}

void SerialPanel::toggle()
{
    if (m_link.isOpen()) {
        m_link.close();
    } else {
        open();
    }
}

/// A port of two entries is the one of the USB function.
int SerialPanel::placeToSelect(const PortList &ports) const
{
    const bool isUsbPort = ports.names.value(ports.usbSerialIndex) == m_chosenPortName;
    if (ports.usbSerialIndex >= 0 && !m_link.isOpen() && isUsbPort) {
        return ports.usbSerialIndex;
    }
    return ports.names.indexOf(m_chosenPortName);
}
