#pragma once

#include "framebuilder.h"

/// What the user has set about frames, as the sender sees it.
class FrameSettings
{
public:
    FrameSettings() = default;
    FrameSettings(const FrameSettings &) = delete;
    FrameSettings &operator=(const FrameSettings &) = delete;
    virtual ~FrameSettings() = default;

    /// The layout of the next frame, read anew for each one; tells the user about a bad header.
    virtual FrameLayout nextFrameLayout() = 0;

    /// The start bytes that frames have now; a bad header is passed over in silence.
    virtual StartBytes startBytes() const = 0;

    /// Whether the send operation under way appends a CRC.
    virtual bool withCrc() const = 0;
};
