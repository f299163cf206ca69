#pragma once

#include "frames/link.h"
#include "links/exacttiming.h"
#include "links/hid/hidthread.h"
#include "links/hid/reportinbox.h"
#include "links/openfailure.h"

#include <QHash>

#include <optional>

struct HidDevice;

/// The HID link: lists the attached devices of the known types, opens one of them, and sends blocks
/// of frames to it as reports.
///
/// The data of a report are handed up 2 ms after it came in. While a handler of that runs, up to
/// 1 MiB of later ones wait. A device is lost when it can't be written to any more.
class HidLink : public Link
{
    Q_OBJECT

public:
    /// The device types and their packet sizes come from this device-ID file.
    explicit HidLink(QString deviceIdFile, QObject *parent = nullptr);
    ~HidLink() override;

    /// Reads the device-ID file, creating it if it is missing.
    void readDeviceTypes();
    /// Reads the device-ID file and returns the paths of the attached devices.
    QStringList listDevices();

    /// Opens the device at a path, after closing the one that is open. Returns whether it is open.
    bool open(const QString &path, quint8 reportId);
    /// The same for a device whose IDs are known, whatever its path tells.
    bool open(const HidDevice &device, quint8 reportId);
    /// The bytes of data in each report, in place of what the device-ID file says; for devices that
    /// are opened from now on.
    void setReportSize(std::optional<int> bytes) { m_reportSize = bytes; }
    /// Why the last attempt to open a device failed, if it did.
    const OpenFailure &failure() const { return m_failure; }

    /// Takes in a packet as if the device had sent it; a length past the packet's end is cut.
    void receive(const HidPacket &packet, ArrivalTime time = ArrivalTime::now());

    bool isOpen() const override { return m_thread.isOpen(); }
    void close() override;
    void handUp() override;
    QString closedMessage() const override;
    int longestInstruction() const override { return 255; }
    void write(const QByteArray &block) override;
    qint64 unsentBytes() const override;

    /// Bytes of data in each report of the device opened last.
    int packetSize() const { return m_thread.packetSize(); }
    /// The report ID given to the device opened last.
    quint8 reportId() const { return m_reportId; }
    /// The path of the device opened last.
    QString openPath() const { return m_openPath; }
    /// IDs of a device by its path; zeros where neither the path nor the listing tells them.
    DeviceIds idsOf(const QString &path) const;
    /// IDs of the device opened last.
    DeviceIds ids() const { return {m_thread.vendorId(), m_thread.productId()}; }

signals:
    /// So many bytes of reports are lost, since the one that arrived last kept its handler busy.
    void dropped(qint64 bytes);

private:
    void shutDown();
    void reportLoss();

    QString m_deviceIdFile;
    /// What the system said about the paths listed last, since not every path tells its IDs.
    QHash<QString, DeviceIds> m_listedIds;
    QString m_openPath;
    quint8 m_reportId = 0;
    std::optional<int> m_reportSize;
    OpenFailure m_failure;
    /// Held while a device is open.
    std::optional<ExactTiming> m_timing;
    HidThread m_thread;
    /// Takes the worker's packets, and nothing else that is queued.
    QObject m_packetReceiver;
    /// Takes the worker's word that the device is lost, and nothing else that is queued.
    QObject m_lossReceiver;
    ReportInbox m_inbox;
};
