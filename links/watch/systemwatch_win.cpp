#include "links/watch/devicebroadcast.h"
#include "links/watch/systemwatch.h"

#include <type_traits>
#include <windows.h>

#include <dbt.h>

namespace {

constexpr GUID hidInterfaceClass{
    0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}};

struct Unregister
{
    void operator()(HDEVNOTIFY notification) const { UnregisterDeviceNotification(notification); }
};

using Notification = std::unique_ptr<std::remove_pointer_t<HDEVNOTIFY>, Unregister>;

/// The announced size is believed only from a whole header on, and up to what a path can need.
std::optional<WatchedDevice> describe(LPARAM data)
{
    constexpr DWORD largestBroadcast = 128 * 1024;
    const auto *const header = reinterpret_cast<const DEV_BROADCAST_HDR *>(data);
    if (header == nullptr || header->dbch_size < broadcastHeaderSize ||
        header->dbch_size > largestBroadcast) {
        return std::nullopt;
    }
    return deviceInBroadcast(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(header->dbch_size)));
}

/// Windows tells every window of ports, and of other devices the windows that registered for it.
class WindowWatch : public SystemWatch
{
public:
    bool start(const WindowHandle &window) override;
    bool takeMessage(void *message) override;

private:
    HWND m_window = nullptr;
    Notification m_notification;
};

bool WindowWatch::start(const WindowHandle &window)
{
    m_window = window ? reinterpret_cast<HWND>(window()) : nullptr;
    DEV_BROADCAST_DEVICEINTERFACE_W filter{};
    filter.dbcc_size = sizeof filter;
    filter.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
    filter.dbcc_classguid = hidInterfaceClass;
    m_notification.reset(
        RegisterDeviceNotificationW(m_window, &filter, DEVICE_NOTIFY_WINDOW_HANDLE));
    return m_notification != nullptr;
}

bool WindowWatch::takeMessage(void *message)
{
    const auto *const received = static_cast<const MSG *>(message);
    if (received->message != WM_DEVICECHANGE || received->hwnd != m_window) {
        return false;
    }
    const bool arrival = received->wParam == DBT_DEVICEARRIVAL;
    if (!arrival && received->wParam != DBT_DEVICEREMOVECOMPLETE) {
        return false;
    }
    const auto device = describe(received->lParam);
    if (!device) {
        return false;
    }
    if (arrival) {
        emit arrived(*device);
    } else {
        emit removed(*device);
    }
    return true;
}

} // namespace

std::unique_ptr<SystemWatch> SystemWatch::create()
{
    return std::make_unique<WindowWatch>();
}
