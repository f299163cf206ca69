#include "devicetalk.h"

#include "frames/framebuilder.h"
#include "simulator/deviceparser.h"

#include <QtEndian>

QByteArray frame(const QByteArray &payload)
{
    FrameLayout layout;
    layout.startBytes = defaultHeader;
    return frameOfPayload(payload, layout);
}

QByteArray ask(RunningDevice &device, const QByteArray &request, int replySize)
{
    device.write(request);
    return device.read(replySize);
}

QVector<QByteArray> readPayloads(RunningDevice &device, int count)
{
    DeviceParser parser(defaultHeader, false);
    QVector<QByteArray> payloads;
    while (payloads.size() < count) {
        const QByteArray bytes = device.read(1);
        if (bytes.isEmpty()) {
            break;
        }
        payloads += parser.take(bytes);
    }
    return payloads;
}

bool isStatus(const QByteArray &payload)
{
    return payload.size() == 7 && payload.startsWith(hex("530000"));
}

quint32 counterOf(const QByteArray &status)
{
    return qFromBigEndian<quint32>(status.constData() + 3);
}
