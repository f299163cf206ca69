#pragma once

#include "frames/framebuilder.h"
#include "recording/recordevent.h"

/// Whether the last two bytes of a frame are the CRC-16/MODBUS of its payload. The layout tells
/// where that begins, and whether there is a CRC at all.
RecordEvent::Crc crcOfFrame(const QByteArray &frame, const FrameLayout &layout);

/// The layout of received frames: with start bytes and a length, whatever is sent without them.
FrameLayout receivedLayout(FrameLayout layout);
