#pragma once

#include <QString>

/// Where the examples are that were installed along with a program in the given folder: below
/// "share" beside it, or in a folder "examples" within it. Empty where there are none.
QString examplesFolder(const QString &applicationFolder);
