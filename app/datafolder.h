#pragma once

#include <QString>

/// The folder of the program's own files, without a separator at its end: the application's folder,
/// or the user's configuration folder where that one takes none (an installed program).
QString dataFolder();

/// Path of a file in the data folder, with the platform's separator before its name.
QString dataFile(const QString &name);

/// The folder whose links are offered as serial ports; it is made where it is missing. Empty on a
/// system that has no such links.
QString portsFolder();
