#pragma once

#include "frames/messages.h"

#include <optional>

/// What the user is told about a header field that can't be read.
inline QString badHeaderMessage()
{
    return Messages::tr("Startbytes Length error");
}

/// Remembers which bad header the user knows of, so that many frames tell of it once.
class HeaderNotice
{
public:
    /// Whether a header field that can't be read is news; nothing stands for one that can be read.
    bool isNews(const std::optional<QString> &badText)
    {
        const bool news = badText.has_value() && badText != m_known;
        m_known = badText;
        return news;
    }

private:
    std::optional<QString> m_known;
};
