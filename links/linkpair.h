#pragma once

#include "links/hid/hidlink.h"
#include "links/linkmode.h"
#include "links/serial/seriallink.h"

#include <QObject>

/// The serial and the HID link. One of them is chosen: it alone is opened, and all that is sent
/// goes to it.
class LinkPair : public QObject
{
    Q_OBJECT

public:
    /// What the serial link takes at a time, in bytes, and the device-ID file of the HID link. The
    /// serial link is the chosen one.
    LinkPair(int longestRead, const QString &deviceIdFile, QObject *parent = nullptr);

    SerialLink &serial() { return m_serial; }
    HidLink &hid() { return m_hid; }
    const SerialLink &serial() const { return m_serial; }
    const HidLink &hid() const { return m_hid; }

    LinkMode mode() const { return m_mode; }
    Link &chosen();

    /// Chooses a link, and closes the other one.
    void choose(LinkMode mode);

    /// Closes both.
    void close();

private:
    SerialLink m_serial;
    HidLink m_hid;
    LinkMode m_mode = LinkMode::Uart;
};
