#pragma once

#include "expectations/filesettings.h"

#include <QString>
#include <QStringList>

/// What the window's settings file says about frames, or what is wrong with the file, a line each.
struct WindowSettings
{
    FileSettings settings;
    QStringList faults;
};

/// Reads the window's settings file. In the window a value that is no number counts as 0; here it
/// is a fault, and so is a file that holds no settings at all.
WindowSettings readWindowSettings(const QString &fileName);
