#pragma once

#include "links/serial/seriallink.h"
#include "testport.h"

#include <QObject>

#include <functional>
#include <sys/ioctl.h>

constexpr int longestRead = 4096;

inline SerialSettings settingsAt(const TestPort &port)
{
    SerialSettings settings;
    settings.portName = port.path();
    return settings;
}

inline QByteArray numbered(int bytes)
{
    QByteArray data;
    for (int i = 0; data.size() < bytes; ++i) {
        data.append(QByteArray::number(i)).append(' ');
    }
    return data.left(bytes);
}

inline QSerialPort *portOf(const SerialLink &link)
{
    return link.findChild<QSerialPort *>();
}

/// Bytes that have come in and have not been read yet.
inline int waitingInTheSystem(const QSerialPort &port)
{
    int bytes = 0;
    ioctl(port.handle(), FIONREAD, &bytes);
    return bytes;
}

/// All that a link hands up.
class Collector : public QObject
{
public:
    explicit Collector(const SerialLink &link)
    {
        connect(&link, &SerialLink::arrived, this, [this](const QByteArray &part) {
            bytes += part;
            if (++handlers == 1) {
                whileBusy();
            }
        });
    }

    QByteArray bytes;
    int handlers = 0;
    /// Run by the first handler.
    std::function<void()> whileBusy = [] {};
};
