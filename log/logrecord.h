#pragma once

#include "frames/arrivaltime.h"
#include "frames/messages.h"

#include <QByteArray>
#include <QString>

/// One thing that happened on a link, as it is kept, shown, saved and recorded.
struct LogRecord
{
    /// A frame that was sent, one that was received, received bytes that form none, or something
    /// that happened to a link.
    enum class Kind { Sent, Received, Stray, Event };

    Kind kind = Kind::Sent;
    /// As the log shows it, from 1; 0 for an event.
    int number = 0;
    /// When the bytes were given to the system or read from it, or the event was noticed: in us
    /// since the beginning of 1970 (UTC), and in ns on the clock that never goes back.
    qint64 utcUs = 0;
    qint64 monotonicNs = 0;
    /// What went over the wire, a frame with its start bytes. An event has none.
    QByteArray bytes;
    /// Whether the last two bytes of the frame are its CRC.
    bool withCrc = false;
    /// The name of the link that an event happened to, and what happened.
    QString source;
    Wording text;
    /// The identity of the command row that a sent frame was made of; 0 where it isn't known.
    int rowId = 0;
    /// When the first of the bytes was read; earlier than the rest for a frame that came in pieces.
    ArrivalTime begun = {};
    /// Why a received frame is not what was expected; empty where nothing is wrong.
    QString fault = {};
};
