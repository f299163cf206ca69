#include "runner/linkopener.h"

#include "frames/timeunits.h"
#include "links/hid/hiddevices.h"
#include "links/linktexts.h"
#include "runner/deviceidfile.h"
#include "runner/simulateddevice.h"
#include "session/session.h"

#include <utility>

namespace {

constexpr int nextTryMs = 100;

QString whyNoneFound(const HidChoice &wanted)
{
    const QString ids = deviceIdsText(wanted.ids);
    return wanted.serialNumber.isEmpty()
               ? QStringLiteral("No HID device %1 is attached.").arg(ids)
               : QStringLiteral("No HID device %1 with the serial number %2 is attached.")
                     .arg(ids, wanted.serialNumber);
}

} // namespace

LinkOpener::LinkOpener(Session &session, LinkChoice choice, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_choice(std::move(choice))
{
    m_nextTry.setSingleShot(true);
    connect(&m_nextTry, &QTimer::timeout, this, &LinkOpener::tryToOpen);
}

LinkOpener::~LinkOpener() = default;

void LinkOpener::setDeviceFormat(StartBytes startBytes, bool withCrc)
{
    m_deviceStart = startBytes;
    m_deviceCrc = withCrc;
}

/// A port hangs up when its device goes. Of a HID device that nothing is written to, only the
/// system tells.
void LinkOpener::start()
{
    if (m_choice.kind == LinkChoice::Kind::Hid) {
        m_session.devices().start({});
    }
    m_giveUpNs = ArrivalTime::now().monotonicNs + m_choice.waitSeconds * nsPerSecond;
    m_nextTry.start(0);
}

void LinkOpener::tryToOpen()
{
    if (open()) {
        emit opened();
    } else if (ArrivalTime::now().monotonicNs < m_giveUpNs) {
        m_nextTry.start(nextTryMs);
    } else {
        emit failed(m_reason);
    }
}

bool LinkOpener::open()
{
    switch (m_choice.kind) {
    case LinkChoice::Kind::Serial:
        return openPort(m_choice.serial);
    case LinkChoice::Kind::Hid:
        return openHid();
    case LinkChoice::Kind::Simulated:
        return openSimulated();
    case LinkChoice::Kind::None:
        break;
    }
    return false;
}

bool LinkOpener::openPort(const SerialSettings &settings)
{
    SerialLink &serial = m_session.links().serial();
    m_session.use(LinkMode::Uart);
    serial.handUpAtOnce();
    if (!serial.open(settings)) {
        m_reason = whyPortFailed(settings.portName, serial.failure());
    }
    return serial.isOpen();
}

bool LinkOpener::openHid()
{
    const HidChoice &wanted = m_choice.hid;
    HidLink &hid = m_session.links().hid();
    m_session.use(LinkMode::Hid);
    hid.setReportSize(reportSizeOf(wanted));
    m_reason = whyNoneFound(wanted);
    for (const DescribedHidDevice &found : describedHidDevices()) {
        const bool isMeant =
            found.device.ids == wanted.ids &&
            (wanted.serialNumber.isEmpty() || wanted.serialNumber == found.serialNumber);
        if (isMeant && hid.open(found.device, wanted.reportId)) {
            return true;
        }
        if (isMeant) {
            m_reason = whyHidFailed(found.device.path, wanted.ids, hid.failure());
        }
    }
    return false;
}

bool LinkOpener::openSimulated()
{
    m_device = startSimulatedDevice(m_deviceStart, m_deviceCrc);
    if (!m_device) {
        m_reason = QStringLiteral("There is no simulated device on this system.");
        return false;
    }
    SerialSettings settings;
    settings.portName = m_device->portName();
    return openPort(settings);
}
