#include "session/frameformat.h"

FrameLayout FrameFormat::nextFrameLayout()
{
    FrameLayout layout;
    layout.startBytes = startBytes();
    layout.withStartBytes = m_withStartBytes;
    layout.withLength = m_withLength;
    layout.withCrc = m_withCrc;
    return layout;
}

StartBytes FrameFormat::startBytes() const
{
    return parseStartBytes(m_headerText).value_or(fallbackStartBytes);
}

std::optional<QString> FrameFormat::unreadableHeader() const
{
    return parseStartBytes(m_headerText) ? std::nullopt : std::optional<QString>(m_headerText);
}
