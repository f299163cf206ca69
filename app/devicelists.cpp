#include "app/devicelists.h"

#include "app/datafolder.h"
#include "app/hidpanel.h"
#include "app/serialpanel.h"

namespace {

constexpr int firstRefreshMs = 1000;
constexpr int refreshAfterEventMs = 500;

} // namespace

DeviceLists::DeviceLists(SerialPanel &serial, HidPanel &hid, QObject *parent)
    : QObject(parent)
    , m_serial(serial)
    , m_hid(hid)
{
    connect(&m_timer, &QTimer::timeout, this, &DeviceLists::due);
    m_timer.start(firstRefreshMs);
}

void DeviceLists::refreshSoon()
{
    m_timer.start(refreshAfterEventMs);
}

void DeviceLists::refresh()
{
    m_timer.stop();
    m_serial.refreshPorts(portsFolder());
    m_hid.refreshDevices();
}
