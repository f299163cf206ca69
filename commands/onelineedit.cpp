#include "commands/onelineedit.h"

#include "commands/oneline.h"

#include <QLineEdit>

void keepOnOneLine(QLineEdit &edit)
{
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, [&edit](const QString &text) {
        const QString line = onOneLine(text);
        if (line != text) {
            const int shrunkBy = text.size() - line.size();
            const int cursor = edit.cursorPosition();
            edit.setText(line);
            edit.setCursorPosition(cursor - shrunkBy);
            edit.setModified(true);
        }
    });
}
