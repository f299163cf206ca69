#include "files/messagefile.h"

QString messageLine(const MessageRow &row)
{
    const QString &number = row.front();
    if (number == QLatin1String("Uart")) {
        return {};
    }
    QString line = number + QLatin1Char(',');
    for (auto text = row.begin() + 1; text != row.end(); ++text) {
        line += QLatin1Char(' ') + *text;
    }
    return line;
}

QString messageFileText(const QVector<MessageRow> &rows)
{
    QString text;
    for (const MessageRow &row : rows) {
        const QString line = messageLine(row);
        if (!line.isEmpty()) {
            text += line + QLatin1Char('\n');
        }
    }
    return text;
}
