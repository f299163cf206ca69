#pragma once

#include "frames/framesettings.h"

/// What frames are like: the values that a user has chosen, as the sender asks for them.
class FrameFormat : public FrameSettings
{
public:
    /// The header field's text as typed, such as "0x5A,0xA5". It is parsed at each use.
    void setHeaderText(const QString &text) { m_headerText = text; }

    /// Whether frames have start bytes.
    void setStartBytes(bool on) { m_withStartBytes = on; }

    /// Whether frames have a length field.
    void setLength(bool on) { m_withLength = on; }

    /// Whether a CRC is appended to what is sent, and expected in what is logged, from now on.
    void setCrc(bool on) { m_withCrc = on; }

    FrameLayout nextFrameLayout() override;
    StartBytes startBytes() const override;
    std::optional<QString> unreadableHeader() const override;
    bool withCrc() const override { return m_withCrc; }

private:
    QString m_headerText;
    bool m_withStartBytes = true;
    bool m_withLength = true;
    bool m_withCrc = false;
};
