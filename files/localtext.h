#pragma once

#include <QByteArray>
#include <QString>

/// The text as the bytes of a text file of this system: in its own encoding, without a byte-order
/// mark, with its line ends.
QByteArray toLocalText(const QString &text);
