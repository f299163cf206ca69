#pragma once

#include "links/hid/deviceids.h"

#include <QString>
#include <QVector>

/// An attached HID device as the system lists it.
struct HidDevice
{
    QString path;
    DeviceIds ids;
};

/// An attached HID device with what it says about itself; empty where it says nothing.
struct DescribedHidDevice
{
    HidDevice device;
    QString serialNumber;
    QString product;
};

/// All attached devices, in the system's order.
QVector<DescribedHidDevice> describedHidDevices();

/// The attached devices of the wanted types: in the order of the types, and in the system's order
/// within one. A type that is wanted twice yields its devices twice; an ID of 0 stands for any.
///
/// A device with several top-level usages is listed once for each.
QVector<HidDevice> attachedHidDevices(const QVector<DeviceIds> &wanted);
