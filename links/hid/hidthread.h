#pragma once

#include "frames/arrivaltime.h"
#include "links/hid/deviceids.h"
#include "links/hid/hidpacket.h"

#include <QMutex>
#include <QThread>
#include <QVector>

#include <atomic>
#include <deque>
#include <hidapi.h>
#include <memory>
#include <optional>

/// Owns the open HID device and, while it runs, writes queued reports to it and reads what it
/// sends.
///
/// All operations belong to the thread that the object lives in. The loop is stopped before the
/// device is closed.
class HidThread : public QThread
{
    Q_OBJECT

public:
    explicit HidThread(QObject *parent = nullptr);
    HidThread(const HidThread &) = delete;
    HidThread &operator=(const HidThread &) = delete;
    ~HidThread() override;

    bool isOpen() const { return m_device != nullptr; }
    /// Opens the first device with these IDs; does nothing while a device is open. Returns whether
    /// there is an open device.
    bool openByIds(quint16 vendorId, quint16 productId);
    /// Opens the device at a path; does nothing while a device is open. Returns whether there is an
    /// open device.
    bool openByPath(const QString &path);

    /// Notes the device types that are looked for.
    void setIdList(const QVector<DeviceIds> &list) { m_idList = list; }
    QVector<DeviceIds> idList() const { return m_idList; }

    /// Notes the IDs of the open device.
    void setIds(quint16 vendorId, quint16 productId);
    quint16 vendorId() const { return m_vendorId; }
    quint16 productId() const { return m_productId; }

    /// Sets the bytes of data in each report, 1 to `longestReport`. Not while the loop runs.
    void setPacketSize(int size);
    int packetSize() const { return m_packetSize; }

    /// Starts the loop, unless it was started before and not stopped since.
    void start();
    /// Ends the loop after its current cycle and waits for it.
    void stop();
    /// Closes the device and drops the packets that have not been written.
    void close();

    /// Appends a copy of the packet to what is to be written. Returns false while no device is
    /// open.
    bool queuePacket(const HidPacket &packet);
    /// How many packets wait that the loop has not taken yet.
    int queuedPackets() const;

signals:
    /// The device has sent a report, which was read then. Its report ID is always 0.
    void packetReceived(HidPacket packet, ArrivalTime time);
    /// A write has failed, and the loop has ended. The thread still has to be stopped and closed.
    void deviceDisconnected();

protected:
    void run() override;

private:
    std::unique_ptr<HidPacket> takeOldest();
    bool write(const HidPacket &packet);
    std::optional<HidPacket> read();

    hid_device *m_device = nullptr;
    QVector<DeviceIds> m_idList;
    quint16 m_vendorId = 0;
    quint16 m_productId = 0;
    qint32 m_packetSize = defaultPacketSize;
    std::atomic<bool> m_running = false;
    mutable QMutex m_queueLock;
    std::deque<std::unique_ptr<HidPacket>> m_queue;
};
