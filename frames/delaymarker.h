#pragma once

#include <QString>

#include <algorithm>

/// What the CMD text, and so the frame text, of a delay row begins with.
inline constexpr QLatin1String delayMarker("++", 2);

/// Whether a CMD text or a frame text makes its row a delay row.
inline bool isDelay(const QString &text)
{
    return text.startsWith(delayMarker);
}

/// The pause in ms that a delay row's frame text asks for ("++500"); 0 where no decimal number
/// follows.
inline int delayMilliseconds(const QString &frameText)
{
    return std::max(0, frameText.mid(delayMarker.size()).toInt());
}
