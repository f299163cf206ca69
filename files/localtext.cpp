#include "files/localtext.h"

#include <QBuffer>
#include <QTextStream>

QByteArray toLocalText(const QString &text)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    QTextStream stream(&buffer);
    stream << text;
    stream.flush();
    return bytes;
}
