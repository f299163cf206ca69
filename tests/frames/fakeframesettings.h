#pragma once

#include "frames/framesettings.h"

#include <functional>

/// Settings that a test sets as it likes.
class FakeFrameSettings : public FrameSettings
{
public:
    FrameLayout nextFrameLayout() override
    {
        ++layoutsRead;
        if (onNextLayout) {
            onNextLayout();
        }
        return layout;
    }

    StartBytes startBytes() const override { return layout.startBytes; }
    std::optional<QString> unreadableHeader() const override { return unreadable; }
    bool withCrc() const override { return layout.withCrc; }

    FrameLayout layout{StartBytes{0x5A, 0xA5}};
    /// The header field's text, where it can't be read.
    std::optional<QString> unreadable;
    int layoutsRead = 0;
    /// Called each time a layout is read, before it is handed out.
    std::function<void()> onNextLayout;
};
