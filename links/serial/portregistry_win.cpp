#include "frames/messages.h"
#include "links/serial/portentry.h"
#include "links/serial/portregistry.h"

#include <QSettings>

#include <array>
#include <memory>
#include <windows.h>

namespace {

constexpr int nameSize = 512;
constexpr int dataSize = 256;

struct CloseKey
{
    using pointer = HKEY;
    void operator()(HKEY key) const { RegCloseKey(key); }
};

using Key = std::unique_ptr<HKEY, CloseKey>;

Key openKey(const QString &name)
{
    HKEY key = nullptr;
    const auto *const path = reinterpret_cast<const wchar_t *>(name.utf16());
    const LSTATUS status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_READ, &key);
    return Key(status == ERROR_SUCCESS ? key : nullptr);
}

int entryCount(const QString &key)
{
    const QSettings entries(QLatin1String("HKEY_LOCAL_MACHINE\\") + key, QSettings::NativeFormat);
    return entries.allKeys().size();
}

} // namespace

RegistryEntry readRegistryEntry(const QString &key, int index)
{
    const Key open = openKey(key);
    if (!open) {
        return {Messages::tr("Cannot open regedit!")};
    }
    std::array<wchar_t, nameSize> name{};
    std::array<char, dataSize> data{};
    DWORD nameLength = nameSize;
    DWORD dataLength = dataSize;
    const LSTATUS status =
        RegEnumValueW(open.get(), DWORD(index), name.data(), &nameLength, nullptr, nullptr,
                      reinterpret_cast<BYTE *>(data.data()), &dataLength);
    if (status != ERROR_SUCCESS) {
        return {QStringLiteral(" ")};
    }
    const QString valueName = QString::fromWCharArray(name.data(), int(nameLength));
    return {portNameInData(QByteArray(data.data(), int(dataLength))), isFirstUsbSerial(valueName)};
}

PortList listRegistryPorts(const QString &key)
{
    PortList ports;
    const int count = entryCount(key);
    for (int i = 0; i < count; ++i) {
        const RegistryEntry entry = readRegistryEntry(key, i);
        ports.names.append(entry.portName);
        ports.usbSerialIndex = entry.isFirstUsbSerial ? i : ports.usbSerialIndex;
    }
    return ports;
}
