#pragma once

#include "runner/runoptions.h"

#include <QString>

#include <optional>

/// The device-ID file of the installed window, which tells the packet sizes of HID devices; the
/// file need not be there.
QString deviceIdFilePath();

/// Bytes of data in a report, where an option tells them or the device-ID file is not there; then
/// those of the file that the window would make. Nothing where the file tells them.
std::optional<int> reportSizeOf(const HidChoice &wanted);
