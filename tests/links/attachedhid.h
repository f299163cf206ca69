#pragma once

#include "fakehid.h"
#include "knowntypes.h"

inline constexpr char smallPath[] = R"(\\?\hid#vid_eeef&pid_1616#6&1&0&0000)";
inline constexpr char largePath[] = R"(\\?\hid#vid_eeef&pid_2929#6&2&0&0000)";

/// From now on the HID library's stand-in has a device of each known type, and a keyboard.
inline void attachDevices(FakeHid &fake)
{
    fake.reset();
    fake.addDevice(smallPath, small.vendor, small.product);
    fake.addDevice("/dev/keyboard", 0x1234, 0x0001);
    fake.addDevice(largePath, large.vendor, large.product);
}
