#include "session/portreopener.h"

#include "frames/alarmclock.h"
#include "frames/timeunits.h"

#include <utility>

namespace {

/// A device that goes and comes again is told to have come at most so long before its port hangs
/// up.
constexpr qint64 newsLastNs = nsPerSecond;

bool areSameLines(const SerialSettings &left, const SerialSettings &right)
{
    return left.baudRate == right.baudRate && left.dataBits == right.dataBits &&
           left.parity == right.parity && left.stopBits == right.stopBits;
}

} // namespace

PortReopener::PortReopener(SerialLink &link, std::unique_ptr<AlarmClock> clock, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_clock(std::move(clock))
{
    connect(m_clock.get(), &AlarmClock::rang, this, &PortReopener::tryToOpen);
    connect(&m_link, &Link::openChanged, this, [this](bool isOpen) {
        if (isOpen) {
            forget();
        }
    });
}

PortReopener::~PortReopener() = default;

void PortReopener::setOn(bool on)
{
    m_isOn = on;
    if (!on) {
        forget();
    }
}

void PortReopener::noteLoss()
{
    if (!m_isOn || m_link.isOpen()) {
        return;
    }
    m_wanted = m_link.settings();
    emit waiting(m_wanted->portName);
    const bool hasNews = m_arrivedNs && m_clock->now() - *m_arrivedNs < newsLastNs;
    m_isBackByName = false;
    if (hasNews && isWanted(m_arrived)) {
        m_isBackByName = !m_arrived.isEmpty();
        beginToTry();
    }
}

void PortReopener::noteArrival(const QString &portName)
{
    const bool isWaitedFor = isWanted(portName);
    if (isWaiting() && !isWaitedFor) {
        return;
    }
    m_arrived = portName;
    m_arrivedNs = m_clock->now();
    if (isWaitedFor) {
        m_isBackByName = m_isBackByName || !portName.isEmpty();
        beginToTry();
    }
}

void PortReopener::notePort(const QString &portName)
{
    if (isWaiting() && !isWanted(portName)) {
        forget();
    }
}

void PortReopener::noteLine(const SerialSettings &chosen)
{
    if (isWaiting() && !areSameLines(chosen, *m_wanted)) {
        forget();
    }
}

void PortReopener::forget()
{
    m_clock->clearAlarm();
    if (m_wanted) {
        m_wanted.reset();
        emit forgotten();
    }
}

bool PortReopener::isWanted(const QString &portName) const
{
    return m_wanted && (portName.isEmpty() || portName == m_wanted->portName);
}

/// From the event loop, since whoever told of the port may have more to tell.
void PortReopener::beginToTry()
{
    m_tryUntilNs = m_clock->now() + longestTryMs * nsPerMs;
    m_clock->setAlarm(m_clock->now());
}

void PortReopener::tryToOpen()
{
    if (!m_wanted) {
        return;
    }
    const SerialSettings wanted = *m_wanted;
    if (m_link.open(wanted)) {
        emit reopened(wanted.portName);
    } else if (m_clock->now() < m_tryUntilNs) {
        m_clock->setAlarm(m_clock->now() + retryMs * nsPerMs);
    } else if (m_isBackByName) {
        emit refused(wanted.portName);
    }
}
