#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of hex digits, with blanks where one likes.
inline QByteArray hex(const QString &digits)
{
    return QByteArray::fromHex(digits.toLatin1());
}
