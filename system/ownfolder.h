#pragma once

#include <QString>

/// Whether a program in this folder may keep its own files there.
bool takesOwnFiles(const QString &folder);
