#pragma once

#include "links/serial/seriallink.h"
#include "testport.h"
#include "waitingbytes.h"

#include <QObject>

#include <functional>

constexpr int longestRead = 4096;

inline SerialSettings settingsAt(const TestPort &port)
{
    SerialSettings settings;
    settings.portName = port.path();
    return settings;
}

inline QByteArray numberedBytes(int bytes)
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
