#pragma once

#include "log/fieldcutter.h"

/// The CRC that a frame in the log ought to have, as it would stand there ("84 0A", low byte
/// first), where it has another one. Empty where the CRC fits, and where there is none or no whole
/// frame.
QString expectedInsteadOfCrc(const FrameFields &fields);
