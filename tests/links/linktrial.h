#pragma once

#include "frames/link.h"

#include <QByteArray>
#include <QMetaType>

#include <memory>

/// A closed link of some kind, and the device at its far end as a test plays it.
class LinkTrial
{
public:
    enum class Kind { Serial, Hid, Fake };

    static std::unique_ptr<LinkTrial> make(Kind kind);

    virtual ~LinkTrial() = default;

    /// The link, until it is destroyed.
    virtual Link &link() = 0;
    virtual void destroyLink() = 0;

    /// Opens the link to the device, as its kind is opened. Returns whether it is open.
    virtual bool open() = 0;

    /// Bytes that the device takes in a moment, but that can't all leave in one go where the kind
    /// has to wait for its device.
    virtual int longBlock() const = 0;

    /// The device sends bytes.
    virtual void send(const QByteArray &bytes) = 0;

    /// Runs the event loop until the link has read from the system what the device has sent.
    virtual void waitUntilRead() = 0;

    /// What the device has got so far.
    virtual QByteArray received() = 0;

    /// The device fails, and the link is used so that it notices.
    virtual void fail() = 0;

    /// Whether the device is free for somebody else to open.
    virtual bool isDeviceFree() = 0;
};

Q_DECLARE_METATYPE(LinkTrial::Kind)
