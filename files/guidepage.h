#pragma once

#include <QString>

/// Where the guide's first page is for a program in the given folder: installed below "share"
/// beside it, in a folder "guide" within it, or, for a program that was built and not installed, as
/// it was built or as it stands in the tree. Empty where there is none.
QString guidePage(const QString &applicationFolder);

/// Where it would be if it were installed.
QString installedGuidePage(const QString &applicationFolder);
