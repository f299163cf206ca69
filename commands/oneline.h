#pragma once

#include <QString>

class QLineEdit;

/// The text with a blank in place of each line break. A cell is a part of one line of a command
/// file: a break in it would tear that line.
QString onOneLine(QString text);

/// Makes a line edit turn line breaks into blanks as they come in, from the clipboard for example.
void keepOnOneLine(QLineEdit &edit);
