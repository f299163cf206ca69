#include "uhiddevice.h"

#include <algorithm>
#include <fcntl.h>
#include <linux/input.h>
#include <linux/uhid.h>

namespace {

/// Bytes that mean nothing to the system, so many each way.
QByteArray reportDescriptor(int reportSize)
{
    const QByteArray count =
        "96" + QByteArray::number(((reportSize & 0xFF) << 8) | (reportSize >> 8), 16)
                   .rightJustified(4, '0');
    return QByteArray::fromHex("0600FF0901A10115002600FF7508" + count + "09018102" + count +
                               "09019102C0");
}

bool tell(int uhid, const uhid_event &event)
{
    return ::write(uhid, &event, sizeof event) == ssize_t(sizeof event);
}

uhid_event creation(const UhidDevice::Identity &identity)
{
    uhid_event event{};
    event.type = UHID_CREATE2;
    uhid_create2_req &request = event.u.create2;
    const QByteArray name = "Tarnwick trial device";
    std::copy(name.begin(), name.end(), request.name);
    request.bus = BUS_USB;
    request.vendor = identity.vendor;
    request.product = identity.product;
    const QByteArray descriptor = reportDescriptor(identity.reportSize);
    request.rd_size = static_cast<quint16>(descriptor.size());
    std::copy(descriptor.begin(), descriptor.end(), request.rd_data);
    return event;
}

} // namespace

std::optional<UhidDevice> UhidDevice::plugIn(const Identity &identity)
{
    FileDescriptor uhid(::open("/dev/uhid", O_RDWR | O_NONBLOCK | O_CLOEXEC));
    if (!uhid.isValid() || !tell(uhid.get(), creation(identity))) {
        return std::nullopt;
    }
    return UhidDevice(std::move(uhid));
}

UhidDevice::UhidDevice(FileDescriptor uhid)
    : m_uhid(std::move(uhid))
{}

UhidDevice::~UhidDevice()
{
    if (m_uhid.isValid()) {
        uhid_event event{};
        event.type = UHID_DESTROY;
        tell(m_uhid.get(), event);
    }
}

std::optional<QByteArray> UhidDevice::readReport() const
{
    uhid_event event{};
    if (::read(m_uhid.get(), &event, sizeof event) <= 0 || event.type != UHID_OUTPUT) {
        return std::nullopt;
    }
    return QByteArray(reinterpret_cast<const char *>(event.u.output.data), event.u.output.size);
}

bool UhidDevice::sendReport(const QByteArray &data) const
{
    uhid_event event{};
    event.type = UHID_INPUT2;
    event.u.input2.size = static_cast<quint16>(data.size());
    std::copy(data.begin(), data.end(), event.u.input2.data);
    return tell(m_uhid.get(), event);
}
