#include "links/watch/devicenames.h"
#include "links/watch/systemwatch.h"

#include <QMap>
#include <QSocketNotifier>

#include <cerrno>
#include <libudev.h>
#include <optional>

namespace {

template<auto release>
struct Release
{
    template<typename Object>
    void operator()(Object *object) const
    {
        release(object);
    }
};

using Udev = std::unique_ptr<udev, Release<udev_unref>>;
using UdevMonitor = std::unique_ptr<udev_monitor, Release<udev_monitor_unref>>;
using UdevEnumerate = std::unique_ptr<udev_enumerate, Release<udev_enumerate_unref>>;
using UdevDevice = std::unique_ptr<udev_device, Release<udev_device_unref>>;

constexpr const char *portSubsystem = "tty";
constexpr const char *hidSubsystem = "hidraw";

QString property(udev_device *device, const char *key)
{
    return QString::fromUtf8(udev_device_get_property_value(device, key));
}

DeviceIds idsOfParent(udev_device *device)
{
    // Owned by the device itself.
    udev_device *const parent =
        udev_device_get_parent_with_subsystem_devtype(device, "hid", nullptr);
    return parent == nullptr ? DeviceIds() : idsInHidId(property(parent, "HID_ID"));
}

/// The path comes first, since on removal the parent may be gone and a grandparent stand for it.
DeviceIds idsOf(udev_device *device)
{
    const DeviceIds ids = idsInSystemPath(QString::fromUtf8(udev_device_get_devpath(device)));
    return ids != DeviceIds() ? ids : idsOfParent(device);
}

std::optional<WatchedDevice> describeHid(udev_device *device)
{
    const QString node = QString::fromLocal8Bit(udev_device_get_devnode(device));
    if (node.isEmpty()) {
        return std::nullopt;
    }
    return WatchedDevice{DeviceKind::Hid, node, hidDeviceName(node, idsOf(device))};
}

/// Ports that a driver only reserves a name for have the type 0.
bool isPlaceholder(udev_device *device)
{
    return qstrcmp(udev_device_get_sysattr_value(device, "type"), "0") == 0;
}

std::optional<WatchedDevice> describePort(udev_device *device)
{
    const QString name = QString::fromLocal8Bit(udev_device_get_sysname(device));
    const QString path = QString::fromUtf8(udev_device_get_devpath(device));
    if (!isSerialPort(name, path) || isPlaceholder(device)) {
        return std::nullopt;
    }
    return WatchedDevice{DeviceKind::Port, name, name};
}

std::optional<WatchedDevice> describe(udev_device *device)
{
    const bool hid = qstrcmp(udev_device_get_subsystem(device), hidSubsystem) == 0;
    return hid ? describeHid(device) : describePort(device);
}

/// Listens to udev's own announcements, which come when a device's node and permissions are in
/// place.
class UdevWatch : public SystemWatch
{
public:
    bool start(const WindowHandle &window) override;

private:
    using Devices = QMap<QString, WatchedDevice>;

    void readAnnouncement();
    void handle(udev_device *device);
    void handleRemoval(const WatchedDevice &device);
    void catchUp();
    Devices presentDevices() const;

    Udev m_udev;
    UdevMonitor m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// By path. A removal doesn't tell a device's IDs any more, so they are remembered.
    Devices m_known;
};

bool UdevWatch::start(const WindowHandle & /*window*/)
{
    m_udev.reset(udev_new());
    m_monitor.reset(m_udev ? udev_monitor_new_from_netlink(m_udev.get(), "udev") : nullptr);
    udev_monitor *const monitor = m_monitor.get();
    if (monitor == nullptr ||
        udev_monitor_filter_add_match_subsystem_devtype(monitor, portSubsystem, nullptr) < 0 ||
        udev_monitor_filter_add_match_subsystem_devtype(monitor, hidSubsystem, nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        return false;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { readAnnouncement(); });
    // Only now, so that what arrives meanwhile is announced.
    m_known = presentDevices();
    return true;
}

/// One at a time: whoever is told may run an event loop of their own, or end the watch.
void UdevWatch::readAnnouncement()
{
    errno = 0;
    const UdevDevice device(udev_monitor_receive_device(m_monitor.get()));
    if (device) {
        handle(device.get());
    } else if (errno == ENOBUFS) {
        catchUp();
    }
}

void UdevWatch::handle(udev_device *device)
{
    const auto described = describe(device);
    const char *const action = udev_device_get_action(device);
    if (!described) {
        return;
    }
    if (qstrcmp(action, "add") == 0) {
        m_known.insert(described->path, *described);
        emit arrived(*described);
    } else if (qstrcmp(action, "remove") == 0) {
        handleRemoval(*described);
    }
}

void UdevWatch::handleRemoval(const WatchedDevice &device)
{
    const WatchedDevice known = m_known.value(device.path, device);
    m_known.remove(device.path);
    emit removed(known);
}

/// Announces what has come and gone since the last announcement that was not lost.
void UdevWatch::catchUp()
{
    const Devices before = m_known;
    const Devices now = presentDevices();
    m_known = now;
    for (const WatchedDevice &device : before) {
        if (!(now.value(device.path) == device)) {
            emit removed(device);
        }
    }
    for (const WatchedDevice &device : now) {
        if (!(before.value(device.path) == device)) {
            emit arrived(device);
        }
    }
    emit announcementsLost();
}

UdevWatch::Devices UdevWatch::presentDevices() const
{
    const UdevEnumerate list(udev_enumerate_new(m_udev.get()));
    udev_enumerate_add_match_subsystem(list.get(), portSubsystem);
    udev_enumerate_add_match_subsystem(list.get(), hidSubsystem);
    udev_enumerate_scan_devices(list.get());
    Devices devices;
    for (udev_list_entry *entry = udev_enumerate_get_list_entry(list.get()); entry != nullptr;
         entry = udev_list_entry_get_next(entry)) {
        const UdevDevice device(
            udev_device_new_from_syspath(m_udev.get(), udev_list_entry_get_name(entry)));
        if (const auto described = device ? describe(device.get()) : std::nullopt) {
            devices.insert(described->path, *described);
        }
    }
    return devices;
}

} // namespace

std::unique_ptr<SystemWatch> SystemWatch::create()
{
    return std::make_unique<UdevWatch>();
}
