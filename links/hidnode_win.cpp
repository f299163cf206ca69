#include "hidnode.h"

/// What is no HID device is refused by the system itself.
bool mayBeHidNode(const QByteArray & /*path*/)
{
    return true;
}
