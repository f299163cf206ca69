#pragma once

#include <QMap>
#include <QStringList>

/// The links in a folder that serve as serial ports, by absolute path, and what each one points to.
/// A link whose target is gone is no port. An empty name is no folder.
QMap<QString, QString> linkedPorts(const QString &folder);

/// Their absolute paths in natural order.
QStringList linkedPortNames(const QString &folder);
