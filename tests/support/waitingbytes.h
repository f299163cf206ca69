#pragma once

#include <QSerialPort>

#include <sys/ioctl.h>

/// Bytes that have come in and have not been read yet.
inline int waitingInTheSystem(const QSerialPort &port)
{
    int bytes = 0;
    ioctl(port.handle(), FIONREAD, &bytes);
    return bytes;
}
