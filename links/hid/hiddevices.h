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

/// The attached devices of the wanted types: in the order of the types, and in the system's order
/// within one. A type that is wanted twice yields its devices twice; an ID of 0 stands for any.
///
/// A device with several top-level usages is listed once for each.
QVector<HidDevice> attachedHidDevices(const QVector<DeviceIds> &wanted);
