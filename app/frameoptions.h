#pragma once

#include "framesettings.h"
#include "looppanel.h"
#include "settings.h"

/// What the window's fields and the settings say about frames.
class FrameOptions : public FrameSettings
{
public:
    /// Form and settings must outlive this.
    FrameOptions(const Ui::Dialog &form, const Settings &settings, int maximumInstructionLength);

    /// Takes over the CRC box of a link's tab, for what is sent and logged from now on.
    void takeCrcFlag(LinkMode mode);

    FrameLayout nextFrameLayout() override;
    StartBytes startBytes() const override;
    std::optional<QString> unreadableHeader() const override;
    bool withCrc() const override { return m_crcFlag != 0; }

private:
    const Ui::Dialog &m_form;
    const Settings &m_settings;
    int m_maximumInstructionLength;
    int m_crcFlag = 0;
};
