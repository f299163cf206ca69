#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a literal, or the part of it that can't be read.
struct ByteLiteral
{
    QByteArray bytes;
    QString badPart = {};
};

/// Whether a text, without white space around it, is to be read as a literal: it has an escape in
/// it, or is a string of bytes, b'...' or b"...".
bool isByteLiteral(const QString &text);

/// Reads escapes like \x10, each with two digits. In quotes, there may be the other escapes of
/// strings, too, and ASCII characters stand for themselves; without quotes, there may be white
/// space and commas between the escapes.
ByteLiteral readByteLiteral(const QString &text);
