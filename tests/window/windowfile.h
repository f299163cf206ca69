#pragma once

#include <QCoreApplication>

/// Where the window of a test remembers its place.
inline QString windowFile()
{
    return QCoreApplication::applicationDirPath() + "/window.ini";
}
