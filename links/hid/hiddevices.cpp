#include "links/hid/hiddevices.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <hidapi.h>
#include <iterator>
#include <memory>
#include <optional>

namespace {

/// From this many different types on, one look at all that is attached is cheaper than one for
/// each.
constexpr int manyTypes = 64;

using HidChain = std::unique_ptr<hid_device_info, decltype(&hid_free_enumeration)>;

HidChain chainOf(DeviceIds type)
{
    return {hid_enumerate(type.vendor, type.product), &hid_free_enumeration};
}

HidDevice deviceOf(const hid_device_info &info)
{
    return {QString::fromLocal8Bit(info.path), {info.vendor_id, info.product_id}};
}

QVector<HidDevice> enumerate(DeviceIds type)
{
    const HidChain chain = chainOf(type);
    QVector<HidDevice> devices;
    for (const hid_device_info *info = chain.get(); info != nullptr; info = info->next) {
        devices.append(deviceOf(*info));
    }
    return devices;
}

QString textOf(const wchar_t *text)
{
    return text != nullptr ? QString::fromWCharArray(text) : QString();
}

bool isOfType(const HidDevice &device, DeviceIds type)
{
    return (type.vendor == 0 || type.vendor == device.ids.vendor) &&
           (type.product == 0 || type.product == device.ids.product);
}

QVector<HidDevice> ofType(const QVector<HidDevice> &devices, DeviceIds type)
{
    QVector<HidDevice> matching;
    std::copy_if(devices.begin(), devices.end(), std::back_inserter(matching),
                 [type](const HidDevice &device) { return isOfType(device, type); });
    return matching;
}

std::optional<QVector<HidDevice>> everythingIfCheaper(const QVector<DeviceIds> &wanted)
{
    const QSet<DeviceIds> types(wanted.begin(), wanted.end());
    return types.size() < manyTypes ? std::nullopt : std::optional(enumerate({}));
}

} // namespace

QVector<DescribedHidDevice> describedHidDevices()
{
    const HidChain chain = chainOf({});
    QVector<DescribedHidDevice> devices;
    for (const hid_device_info *info = chain.get(); info != nullptr; info = info->next) {
        devices.append(
            {deviceOf(*info), textOf(info->serial_number), textOf(info->product_string)});
    }
    return devices;
}

QVector<HidDevice> attachedHidDevices(const QVector<DeviceIds> &wanted)
{
    const auto everything = everythingIfCheaper(wanted);
    QHash<DeviceIds, QVector<HidDevice>> found;
    QVector<HidDevice> devices;
    for (const DeviceIds type : wanted) {
        auto ofThisType = found.constFind(type);
        if (ofThisType == found.constEnd()) {
            ofThisType =
                found.insert(type, everything ? ofType(*everything, type) : enumerate(type));
        }
        devices += *ofThisType;
    }
    return devices;
}
