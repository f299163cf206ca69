#pragma once

class QLineEdit;

/// Makes a line edit turn line breaks into blanks as they come in, from the clipboard for example.
void keepOnOneLine(QLineEdit &edit);
