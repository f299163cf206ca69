#pragma once

#include <QString>
#include <QVector>

/// Cuts hex text into groups of `digits` digits (1 to 16), counted from the right end, and reads
/// each as an unsigned number, most significant digit first.
///
/// Blanks are ignored. The leftmost group is shorter when the digits do not come out even.
/// See docs/deliberate.md, From the right. A group
/// with anything but hex digits (either case) in it reads as 0. An empty text has no groups.
QVector<quint64> hexGroups(const QString &hex, int digits);
