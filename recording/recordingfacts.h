#pragma once

#include "frames/arrivaltime.h"

#include <QByteArray>
#include <QString>

/// The head of a recording's file.
struct RecordingHead
{
    ArrivalTime time;
    /// The program's version, "1.0.0".
    QString version;
    /// The open link's name and how it was opened ("115200 8N1"); empty where none is open.
    QString link;
    QString settings;
    /// The two start bytes of frames.
    QByteArray startBytes;
    /// Whether frames have a CRC.
    bool withCrc = false;
    /// Local time, such as "+01:00 Europe/Berlin".
    QString zone;
    /// Which file of the recording this is, from 1.
    int part = 1;
};

/// The traffic in one direction.
struct DirectionSum
{
    qint64 frames = 0;
    /// Pieces that form no frame.
    qint64 stray = 0;
    qint64 bytes = 0;
    /// SHA-256 of all these bytes in their order, in hex digits.
    QByteArray sha256;
};

/// Both directions.
struct WireSums
{
    DirectionSum sent;
    DirectionSum received;
};

/// The end of a recording's file. It is there if the file was closed in good order.
struct RecordingTail
{
    ArrivalTime time;
    /// What is in this file.
    WireSums file;
    /// What is in this file and in those of the recording before it.
    WireSums recording;
    /// Events that were dropped for lack of room since the recording began, and their bytes.
    qint64 droppedEvents = 0;
    qint64 droppedBytes = 0;
    /// Why the file ends: "stopped", "file is full", "midnight", or what went wrong.
    QString reason;
};
