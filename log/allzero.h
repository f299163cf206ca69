#pragma once

#include <QByteArray>

#include <algorithm>

/// Whether no byte is other than 0, as in the reports of a HID device that has nothing to say.
inline bool isAllZero(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == '\0'; });
}
