#include "links/serial/seriallink.h"

#include "frames/messages.h"
#include "links/nodeaccess.h"
#include "links/serial/portstate.h"

#include <utility>

namespace {

constexpr int longestInstructionBytes = 65535;
/// So many reads in a row may fail before a port that is still there is given up.
constexpr int mostFailedReads = 100;

bool endsLink(QSerialPort::SerialPortError error)
{
    return error == QSerialPort::ReadError || error == QSerialPort::WriteError ||
           error == QSerialPort::ResourceError;
}

} // namespace

SerialLink::SerialLink(int longestRead, QObject *parent)
    : Link(parent)
    , m_port(this)
{
    m_port.setReadBufferSize(longestRead);
    connect(&m_port, &QSerialPort::readyRead, this, &SerialLink::onReadyRead);
    connect(&m_wait, &ArrivalWait::over, this, &SerialLink::handUp);
    connect(&m_port, &QSerialPort::errorOccurred, this, &SerialLink::onError);
}

bool SerialLink::open(const SerialSettings &settings)
{
    close();
    m_port.setBaudRate(settings.baudRate, QSerialPort::AllDirections);
    m_port.setFlowControl(QSerialPort::NoFlowControl);
    m_port.setDataBits(settings.dataBits);
    m_port.setParity(settings.parity);
    m_port.setStopBits(settings.stopBits);
    m_port.setPortName(settings.portName);
    m_failed = false;
    m_failedReads = 0;
    if (!m_port.open(QIODevice::ReadWrite)) {
        m_failure = failureToOpen();
        return false;
    }
    enlargeIncomingBuffer(qintptr(m_port.handle()));
    m_settings = settings;
    m_timing.emplace();
    emit openChanged(true);
    return true;
}

void SerialLink::close()
{
    if (m_wait.isRunning()) {
        handUp();
    }
    m_wait.cancel();
    m_firstRead.reset();
    if (m_port.isOpen()) {
        tellUnsent();
        m_port.clear(QSerialPort::AllDirections);
        m_port.close();
        m_timing.reset();
        emit openChanged(false);
    }
}

void SerialLink::receive()
{
    if (!m_wait.isRunning()) {
        m_wait.announce();
    }
}

void SerialLink::handUp()
{
    if (m_handsUp) {
        m_isDueMeanwhile = true;
        return;
    }
    m_handsUp = true;
    const QByteArray bytes = readAvailable();
    const auto firstRead = std::exchange(m_firstRead, std::nullopt);
    if (!bytes.isEmpty()) {
        emit arrived(bytes, firstRead.value_or(ArrivalTime::now()));
    }
    m_handsUp = false;
    if (std::exchange(m_isDueMeanwhile, false)) {
        m_wait.announce();
    }
}

QByteArray SerialLink::readAvailable()
{
    if (!m_port.isOpen()) {
        return {};
    }
    // The port takes half a kilobyte a time from the system; all that waits there belongs to it.
    while (m_port.waitForReadyRead(0)) {
    }
    // It has announced that, too.
    m_wait.cancel();
    return m_port.readAll();
}

bool SerialLink::isOpen() const
{
    return m_port.isOpen();
}

QString SerialLink::closedMessage() const
{
    return Messages::tr("Please open the Com Port!");
}

int SerialLink::longestInstruction() const
{
    return longestInstructionBytes;
}

void SerialLink::write(const QByteArray &block)
{
    if (!m_port.isOpen()) {
        return;
    }
    m_port.write(block);
    // What the system takes at once goes at once. Not with flush(): to a port that takes nothing
    // just now, it fails for good.
    while (m_port.bytesToWrite() > 0 && m_port.waitForBytesWritten(0)) {
    }
}

qint64 SerialLink::unsentBytes() const
{
    return m_port.bytesToWrite();
}

void SerialLink::onReadyRead()
{
    m_failedReads = 0;
    if (!m_firstRead) {
        m_firstRead = ArrivalTime::now();
    }
    if (m_handsUpAtOnce) {
        handUp();
    } else {
        m_wait.announce();
    }
}

bool SerialLink::isDrained() const
{
    return !m_port.isOpen() ||
           (m_port.bytesToWrite() == 0 &&
            !hasUnsentBytes(qintptr(const_cast<QSerialPort &>(m_port).handle())));
}

void SerialLink::onError(QSerialPort::SerialPortError error)
{
    if (!endsLink(error) || m_failed || !m_port.isOpen()) {
        return;
    }
    const bool isGone = hasHungUp(qintptr(m_port.handle()));
    if (!isGone && ++m_failedReads < mostFailedReads) {
        resumeReading();
        return;
    }
    m_failed = true;
    // Of a device that is gone, the port knows only which call failed first.
    const QString reason = isGone
                               ? QLatin1String(QT_TRANSLATE_NOOP("Messages", "the device is gone"))
                               : m_port.errorString();
    QMetaObject::invokeMethod(
        this, [this, reason] { reportLoss(reason); }, Qt::QueuedConnection);
}

/// What a wait has read already may be announced once more. The port then takes it for an error
/// that it finds nothing, and may stop listening. Setting the buffer's size makes it listen again.
void SerialLink::resumeReading()
{
    m_port.setReadBufferSize(m_port.readBufferSize());
}

OpenFailure SerialLink::failureToOpen() const
{
    const OpenFailure access = examineDevice(m_port.portName());
    if (!access.words.isEmpty()) {
        return access;
    }
    // The user may use the port, so somebody else has it open.
    const bool isBusy = m_port.error() == QSerialPort::PermissionError;
    return {
        isBusy ? OpenFailure::Cause::Busy : OpenFailure::Cause::Other, m_port.errorString(), {}};
}

void SerialLink::reportLoss(const QString &reason)
{
    if (!m_failed) {
        return;
    }
    // What the device has sent so far.
    handUp();
    if (m_port.isOpen()) {
        emit lost(reason);
    }
}
