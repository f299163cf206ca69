#pragma once

#include <QString>

/// The text with a blank in place of each line break. A cell is a part of one line of a command
/// file: a break in it would tear that line.
QString onOneLine(QString text);
