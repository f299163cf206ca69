#pragma once

#include <QByteArray>

/// Whether hidapi may be asked to open this path (in the local 8-bit encoding). What is there but
/// is no HID device must be kept from it, since it may crash on that; what is not there may be
/// asked for.
bool mayBeHidNode(const QByteArray &path);
