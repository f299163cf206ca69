#include "links/hid/hidthread.h"

#include "links/hid/hidnode.h"

#include <QMutexLocker>

#include <algorithm>
#include <vector>

namespace {

constexpr int readTimeoutMs = 100;
constexpr unsigned long pauseMs = 10;

} // namespace

HidThread::HidThread(QObject *parent)
    : QThread(parent)
{
    qRegisterMetaType<HidPacket>();
    qRegisterMetaType<ArrivalTime>();
}

HidThread::~HidThread()
{
    stop();
    close();
}

bool HidThread::openByIds(quint16 vendorId, quint16 productId)
{
    if (!isOpen()) {
        m_device = hid_open(vendorId, productId, nullptr);
    }
    return isOpen();
}

bool HidThread::openByPath(const QString &path)
{
    if (isOpen()) {
        return true;
    }
    const QByteArray localPath = path.toLocal8Bit();
    if (mayBeHidNode(localPath)) {
        m_device = hid_open_path(localPath.constData());
    }
    return isOpen();
}

void HidThread::setIds(quint16 vendorId, quint16 productId)
{
    m_vendorId = vendorId;
    m_productId = productId;
}

void HidThread::setPacketSize(int size)
{
    m_packetSize = std::clamp(size, 1, longestReport);
}

void HidThread::start()
{
    if (!m_running.exchange(true)) {
        QThread::start(QThread::InheritPriority);
    }
}

void HidThread::stop()
{
    if (m_running.exchange(false)) {
        wait();
    }
}

void HidThread::close()
{
    if (!isOpen()) {
        return;
    }
    hid_close(m_device);
    const QMutexLocker locker(&m_queueLock);
    m_queue.clear();
    m_device = nullptr;
}

bool HidThread::queuePacket(const HidPacket &packet)
{
    if (!isOpen()) {
        return false;
    }
    auto copy = std::make_unique<HidPacket>(packet);
    const QMutexLocker locker(&m_queueLock);
    m_queue.push_back(std::move(copy));
    return true;
}

int HidThread::queuedPackets() const
{
    const QMutexLocker locker(&m_queueLock);
    return static_cast<int>(m_queue.size());
}

void HidThread::run()
{
    while (m_running) {
        const auto packet = takeOldest();
        if (packet && !write(*packet)) {
            emit deviceDisconnected();
            return;
        }
        // See docs/deliberate.md, Failed reads.
        if (const auto received = read()) {
            emit packetReceived(*received, ArrivalTime::now());
        }
        msleep(pauseMs);
    }
}

std::unique_ptr<HidPacket> HidThread::takeOldest()
{
    const QMutexLocker locker(&m_queueLock);
    if (m_queue.empty()) {
        return nullptr;
    }
    auto packet = std::move(m_queue.front());
    m_queue.pop_front();
    return packet;
}

bool HidThread::write(const HidPacket &packet)
{
    std::vector<quint8> buffer(size_t(m_packetSize) + 1, 0);
    const int length = std::clamp(packet.length, 0, m_packetSize);
    std::copy_n(packet.data, length + 1, buffer.begin());
    return hid_write(m_device, buffer.data(), buffer.size()) >= 0;
}

std::optional<HidPacket> HidThread::read()
{
    HidPacket packet;
    // Straight behind byte 0, which stays 0 whatever report ID the device uses.
    const int count =
        hid_read_timeout(m_device, packet.data + 1, size_t(m_packetSize), readTimeoutMs);
    if (count <= 0) {
        return std::nullopt;
    }
    packet.length = count;
    return packet;
}
