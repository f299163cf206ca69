#pragma once

#include "frames/startbytes.h"

#include <optional>

/// What a command file says about its run, in its line "//@ tarnwick-run 1 crc=on". Nothing stands
/// for what it leaves open.
struct FileSettings
{
    std::optional<StartBytes> startBytes;
    std::optional<bool> withStartBytes;
    std::optional<bool> withLength;
    std::optional<bool> withCrc;
    /// In ms.
    std::optional<int> replyTimeoutMs;
    std::optional<int> intervalMs;
    std::optional<int> cycleDelayMs;
    std::optional<int> gapMs;
};
