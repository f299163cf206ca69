#pragma once

#include <QByteArray>

/// The serial ports by their names, one a line; or as a JSON array.
QByteArray portListText(bool asJson);

/// The HID devices with IDs, serial number, product and path, one a line; or as a JSON array.
QByteArray hidListText(bool asJson);
