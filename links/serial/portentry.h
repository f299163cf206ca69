#pragma once

#include <QByteArray>
#include <QString>

// How a serial port stands in the Windows registry: as a value that is named after the device and
// whose data are the port's name.

/// The port's name in the data of a registry value: the bytes that are not zero, one character
/// each, which turns UTF-16 such as that of "COM3" into plain text.
QString portNameInData(const QByteArray &data);

/// Whether a registry value of this name stands for the port that a USB serial function registered
/// first.
bool isFirstUsbSerial(const QString &valueName);
