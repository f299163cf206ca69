#include "runningdevice.h"

#include <QElapsedTimer>
#include <QFile>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>

namespace {

constexpr int devicePatienceMs = 10000;

} // namespace

RunningDevice::RunningDevice()
{
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
}

RunningDevice::~RunningDevice()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool RunningDevice::start(const QStringList &options)
{
    return startOnly(options) && openPort();
}

bool RunningDevice::startOnly(const QStringList &options)
{
    m_process.start(TARNWICK_DEVICE, QStringList{"--ports", m_folder.path()} + options);
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(devicePatienceMs)) {
            return false;
        }
    }
    m_printedPath = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    return true;
}

bool RunningDevice::openPort()
{
    const QByteArray path = QFile::encodeName(m_printedPath);
    m_port = FileDescriptor(::open(path.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    return m_port.isValid();
}

void RunningDevice::write(const QByteArray &bytes)
{
    for (int position = 0; position < bytes.size();) {
        const ssize_t written = ::write(m_port.get(), bytes.constData() + position,
                                        static_cast<size_t>(bytes.size() - position));
        if (written <= 0) {
            return;
        }
        position += static_cast<int>(written);
    }
}

QByteArray RunningDevice::read(int count)
{
    QElapsedTimer clock;
    clock.start();
    QByteArray bytes;
    while (bytes.size() < count && !clock.hasExpired(devicePatienceMs)) {
        if (waitForBytes(devicePatienceMs)) {
            bytes += readOnce();
        }
    }
    return bytes;
}

QByteArray RunningDevice::readUntilQuiet(int quietMs)
{
    QByteArray bytes;
    while (waitForBytes(quietMs)) {
        bytes += readOnce();
    }
    return bytes;
}

qint64 RunningDevice::processorTicks() const
{
    constexpr int userTicksField = 13;
    QFile file(QStringLiteral("/proc/%1/stat").arg(m_process.processId()));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QList<QByteArray> fields = file.readAll().split(' ');
    return fields.value(userTicksField).toLongLong() +
           fields.value(userTicksField + 1).toLongLong();
}

int RunningDevice::unreadBytes() const
{
    int count = -1;
    ::ioctl(m_port.get(), FIONREAD, &count);
    return count;
}

bool RunningDevice::isPortExclusive() const
{
    int exclusive = 0;
    return ::ioctl(m_port.get(), TIOCGEXCL, &exclusive) == 0 && exclusive != 0;
}

bool RunningDevice::waitForBytes(int timeoutMs) const
{
    pollfd watched{m_port.get(), POLLIN, 0};
    return ::poll(&watched, 1, timeoutMs) == 1 && (watched.revents & POLLIN) != 0;
}

QByteArray RunningDevice::readOnce() const
{
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(m_port.get(), buffer.data(), buffer.size());
    return {buffer.data(), static_cast<int>(qMax<ssize_t>(0, count))};
}
