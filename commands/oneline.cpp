#include "commands/oneline.h"

QString onOneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (const QChar lineBreak : {QChar(QChar::LineFeed), QChar(QChar::CarriageReturn),
                                  QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
        text.replace(lineBreak, QLatin1Char(' '));
    }
    return text;
}
