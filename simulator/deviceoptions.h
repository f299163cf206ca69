#pragma once

#include "frames/startbytes.h"

#include <QString>
#include <QStringList>

/// How the simulated device behaves.
struct DeviceOptions
{
    StartBytes startBytes{0x5A, 0xA5};
    bool withCrc = false;
    /// Time from a request to its reply, in ms.
    int delayMs = 0;
    /// Whether replies go out in pieces.
    bool split = false;
    /// Every how many frames random bytes come first; 0 for never.
    int garbageEvery = 0;
    /// Unsolicited status frames a second; 0 for none.
    int chatterHz = 0;
    /// Whether requests are left without a reply.
    bool mute = false;
    quint32 seed = 1;
    /// The recording that replies come from; empty for those of the register device.
    QString playFile;
    /// How many times faster than recorded they come.
    double playSpeed = 1;
    /// Where the link is published; empty for the usual place.
    QString portsFolder;
    QString linkName = QStringLiteral("simulated");
};

/// What the command line asks for: the options, or an error in words, or the help text.
struct DeviceArguments
{
    DeviceOptions options;
    QString error;
    bool helpWanted = false;
};

/// Reads a command line, the program's name being the first argument.
DeviceArguments parseDeviceArguments(const QStringList &arguments);

/// What --help prints. Needs the application object, whose name it shows.
QString deviceHelpText();
