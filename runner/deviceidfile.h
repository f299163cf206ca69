#pragma once

#include <QString>

/// The device-ID file of the installed window, which tells the packet sizes of HID devices; the
/// file need not be there.
QString deviceIdFilePath();
