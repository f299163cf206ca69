#include "oneline.h"

#include <QLineEdit>

QString onOneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (const QChar lineBreak : {QChar(QChar::LineFeed), QChar(QChar::CarriageReturn),
                                  QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
        text.replace(lineBreak, QLatin1Char(' '));
    }
    return text;
}

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
