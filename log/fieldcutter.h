#pragma once

#include <QString>

/// A frame's hex text, cut into the columns of the message log.
struct FrameFields
{
    QString header;
    QString length;
    QString cmd;
    QString addr;
    QString data;
    QString crc;
};

/// Cuts the hex text of a sent frame ("5A A5 08 01 … ", two digits and a blank a byte).
///
/// Cuts are made at fixed character places, each counted with the cut marks before it; from 22
/// characters on a frame has two address bytes. Pieces keep the blank in front of them, the address
/// has none. Without a CRC the last two bytes belong to the data. Where the text is too short the
/// fields stay empty. A one-byte address "00" means that the length field is the long one.
FrameFields cutSentFrame(const QString &hexText, bool withCrc);

/// Cuts the hex text of a received frame: as a sent one, but the length field is never the long
/// one.
FrameFields cutReceivedFrame(const QString &hexText, bool withCrc);
