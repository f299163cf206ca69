#pragma once

#include "log/logrecord.h"

#include <QVector>

/// How bytes are written as text.
enum class DataForm {
    /// "5A A5"
    Hex,
    /// As UTF-8; what can't be read or printed, and the backslash, is escaped as in C.
    Text,
    /// "{0x5A, 0xA5}"
    CArray,
    /// b"\x5A\xA5"
    Python
};

/// The bytes that a record's row has in its Data column: those of a frame without what comes before
/// and without its CRC, those of stray bytes as they are, none for an event.
QByteArray dataOf(const LogRecord &record);

/// Bytes as text of that form, on one line.
QString dataText(const QByteArray &bytes, DataForm form);

/// Several of them, each on a line of its own; arrays and Python's bytes with the commas that make
/// them parts of a list. Those without bytes are left out.
QString dataText(const QVector<QByteArray> &all, DataForm form);
