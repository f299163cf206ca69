#pragma once

#include <QtGlobal>

/// How long a frame on its way through the window is waited for, in ms.
inline constexpr qint64 framePatienceMs = 3000;
