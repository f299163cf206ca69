#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The path of a file of the source tree, given from its root.
QString inTree(const QString &path);

/// What a file holds; "unreadable" if it cannot be read.
QByteArray contentOf(const QString &path);

/// The same for a text file: its lines end with LF, whatever the platform has.
QByteArray textIn(const QString &path);

/// Makes a file of these bytes, or replaces it.
void writeFile(const QString &path, const QByteArray &bytes);

/// The names of all the files in a folder, hidden ones too.
QStringList filesIn(const QString &folder);
