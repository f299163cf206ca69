#pragma once

#include "fakehid.h"
#include "links/hid/hidthread.h"

#include <QObject>
#include <QVector>

constexpr char devicePath[] = "/dev/hidraw-one";

/// The HID library's stand-in with one device, EEEF:1616 at devicePath. At its end, nothing may be
/// open any more and nothing have been misused.
struct HidBench
{
    HidBench();
    ~HidBench();
    Q_DISABLE_COPY(HidBench)

    FakeHid &fake = FakeHid::instance();
};

/// What a worker signals, as it arrives in this thread.
class HidSignals : public QObject
{
public:
    explicit HidSignals(const HidThread &thread);

    QVector<HidPacket> packets;
    int disconnections = 0;
};

HidPacket packetOf(quint8 reportId, const QByteArray &bytes);

/// The data bytes of a packet, without its report ID.
QByteArray dataOf(const HidPacket &packet);

/// Bytes, with zeros behind them up to a size.
QByteArray padded(const QByteArray &bytes, int size);
