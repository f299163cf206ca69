#pragma once

#include "links/hid/deviceids.h"
#include "links/openfailure.h"

#include <QString>

struct SerialSettings;

/// An open HID device, as the status line names it.
struct HidDescription
{
    QString path;
    DeviceIds ids;
    /// Bytes of data in a report.
    int packetSize = defaultPacketSize;
    quint8 reportId = 0;
};

/// An open port with its settings, like "ttyUSB0 115200 8N1".
QString describeLink(const SerialSettings &settings);

/// An open device with what its reports are like; a long path is shortened in the middle.
QString describeLink(const HidDescription &device);

/// Why a port didn't open, and what helps; no name stands for none chosen.
QString whyPortFailed(const QString &portName, const OpenFailure &failure);

/// That an open link was lost, and why.
QString whyLost(const QString &name, const QString &reason);

/// Why a HID device didn't open, and what helps.
QString whyHidFailed(const QString &path, DeviceIds ids, const OpenFailure &failure);
