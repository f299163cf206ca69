#pragma once

#include "log/timecolumn.h"

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// The command table and the log.
constexpr int splitterAreas = 2;

/// What a window remembers: where it stands and how its room is divided, in pixels that are scaled
/// as the screen asks, and choices that are no settings.
struct WindowPlace
{
    /// The inside of the window, without its frame, while it is not maximised; null where it is not
    /// known.
    QRect inside;
    bool maximized = false;
    /// The heights of the splitter's areas; empty where they are not known.
    QList<int> splitter;
    /// The folder of recordings; empty where none was chosen yet.
    QString recordings;
    /// How many passes the loop makes; 0 for an endless one.
    int repeat = 0;
    ShownTime shownTime = ShownTime::SinceRowBefore;
    /// A lost port is opened again.
    bool reopens = false;
    /// The command files that were used last, the last one first.
    QStringList recentFiles;
};

/// Reads what formatWindowPlace() wrote. What is missing or makes no sense stays unknown.
WindowPlace parseWindowPlace(const QByteArray &text);

/// The place as an INI file with one group, "window".
QByteArray formatWindowPlace(const WindowPlace &place);

/// The size to begin with: the preferred one, or as much of it as a screen has room for beside the
/// frame that the desktop will draw.
QSize firstWindowSize(QSize preferred, QSize screen);

/// The place itself where the screens show it whole, otherwise moved, and if need be made smaller,
/// into the screen that shows most of it, or into the first one, with room for a frame around it. A
/// place without any screen stays.
QRect broughtOntoScreens(const QRect &place, const QVector<QRect> &screens);
