#pragma once

#include "system/filedescriptor.h"

#include <QByteArray>

#include <optional>

/// A HID device that this process plays to the system through /dev/uhid. It has reports of one size
/// in both directions and no report IDs. It is plugged in while the object lives.
class UhidDevice
{
public:
    struct Identity
    {
        quint16 vendor = 0;
        quint16 product = 0;
        /// Data bytes of a report.
        int reportSize = 0;
    };

    /// Plugs a device in; nothing if the system refuses it (see errno).
    static std::optional<UhidDevice> plugIn(const Identity &identity);

    UhidDevice(UhidDevice &&) noexcept = default;
    UhidDevice &operator=(UhidDevice &&) = delete;
    UhidDevice(const UhidDevice &) = delete;
    UhidDevice &operator=(const UhidDevice &) = delete;
    /// Pulls the device out, whoever has it open.
    ~UhidDevice();

    /// To be watched for what the system has to say. It doesn't block.
    int descriptor() const { return m_uhid.get(); }

    /// The next report that was sent to the device, the report ID in front; nothing if the system
    /// said something else, or nothing at all.
    std::optional<QByteArray> readReport() const;

    /// Sends a report's data bytes to whoever has the device open; false if it can't be done.
    bool sendReport(const QByteArray &data) const;

private:
    explicit UhidDevice(FileDescriptor uhid);

    FileDescriptor m_uhid;
};
