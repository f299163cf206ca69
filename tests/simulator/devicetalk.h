#pragma once

#include "frames/startbytes.h"
#include "hexbytes.h"
#include "runningdevice.h"

#include <QByteArray>
#include <QVector>

/// The header that a device speaks with if nothing else is asked for.
constexpr StartBytes defaultHeader{0x5A, 0xA5};

/// The frame of a payload, without CRC.
QByteArray frame(const QByteArray &payload);

/// Sends a request and reads so many bytes; fewer if the device stays silent.
QByteArray ask(RunningDevice &device, const QByteArray &request, int replySize);

/// Reads frames until there are so many; fewer if the device stays silent.
QVector<QByteArray> readPayloads(RunningDevice &device, int count);

/// Whether a payload is that of a status frame, and which number it carries then.
bool isStatus(const QByteArray &payload);
quint32 counterOf(const QByteArray &status);
