#pragma once

#include "frames/framebuilder.h"

#include <optional>

/// What the user has set about frames, as the sender sees it.
class FrameSettings
{
public:
    FrameSettings() = default;
    FrameSettings(const FrameSettings &) = delete;
    FrameSettings &operator=(const FrameSettings &) = delete;
    virtual ~FrameSettings() = default;

    /// The layout of the next frame, read anew for each one.
    virtual FrameLayout nextFrameLayout() = 0;

    /// The start bytes that frames have now; the fallback where the header can't be read.
    virtual StartBytes startBytes() const = 0;

    /// The header field's text where it can't be read, otherwise nothing.
    virtual std::optional<QString> unreadableHeader() const = 0;

    /// Whether the send operation under way appends a CRC.
    virtual bool withCrc() const = 0;
};
