#include "hidbench.h"

#include <QtTest>

#include <algorithm>

HidBench::HidBench()
{
    fake.reset();
    fake.addDevice(devicePath, 0xEEEF, 0x1616);
}

HidBench::~HidBench()
{
    QCOMPARE(fake.misuses(), 0);
    QCOMPARE(fake.openHandles(), 0);
}

HidSignals::HidSignals(const HidThread &thread)
{
    connect(&thread, &HidThread::packetReceived, this,
            [this](const HidPacket &packet) { packets.append(packet); });
    connect(&thread, &HidThread::deviceDisconnected, this, [this] { ++disconnections; });
}

HidPacket packetOf(quint8 reportId, const QByteArray &bytes)
{
    HidPacket packet;
    packet.data[0] = reportId;
    std::copy(bytes.begin(), bytes.end(), packet.data + 1);
    packet.length = bytes.size();
    return packet;
}

QByteArray dataOf(const HidPacket &packet)
{
    return {reinterpret_cast<const char *>(packet.data) + 1, packet.length};
}

QByteArray padded(const QByteArray &bytes, int size)
{
    return bytes.leftJustified(size, '\0');
}
