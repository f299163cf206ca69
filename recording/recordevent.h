#pragma once

#include "frames/arrivaltime.h"

#include <QByteArray>
#include <QString>

/// One thing that happened on the wire, as a recording keeps it.
struct RecordEvent
{
    /// A frame that was sent, one that was received, received bytes that form none, a link that was
    /// opened or closed, or something worth a note.
    enum class Kind { Sent, Received, Stray, Open, Close, Note };
    /// Whether a frame has a CRC, and whether that fits.
    enum class Crc { None, Ok, Bad };

    Kind kind = Kind::Note;
    /// When the bytes were given to the system or read from it, or when anything else was noticed.
    ArrivalTime time;
    /// What went over the wire; empty for opening, closing and notes.
    QByteArray bytes;
    Crc crc = Crc::None;
    /// The row of the command table that was sent, from 1; 0 where it isn't known.
    int row = 0;
    /// That row's description, or in words what happened.
    QString text;
    /// The name of the link that was opened or closed, and how it was opened ("115200 8N1").
    QString link;
    QString settings;

    bool hasBytes() const
    {
        return kind == Kind::Sent || kind == Kind::Received || kind == Kind::Stray;
    }
};
