#pragma once

#include "links/hid/deviceids.h"

/// The types of devices that are known from the start: one with small reports, one with large ones.
constexpr DeviceIds small{0xEEEF, 0x1616};
constexpr DeviceIds large{0xEEEF, 0x2929};
