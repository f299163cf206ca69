#pragma once

#include "recording/recordevent.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class QIODevice;

/// What came of an export.
struct CsvExport
{
    qint64 events = 0;
    /// Whether the recording ends within an event; what came before was written.
    bool isTorn = false;
    /// What could not be read or written; empty where all went well.
    QString error;
};

/// The first line of a CSV file: a UTF-8 byte-order mark and the names of the columns.
QByteArray csvHead();

/// An event as a line by RFC 4180, ended by CR LF. Bytes have blanks between them, so that no
/// spreadsheet takes them for a number. The second column is the time in seconds since the event
/// before, if there was one.
QByteArray csvLine(const RecordEvent &event, std::optional<ArrivalTime> before);

/// Writes what is in a recording to a device as CSV; both are open. It is given up, which is an
/// error, where `mayGoOn` says no; it is asked a few times a megabyte.
CsvExport exportCsv(QIODevice &recording, QIODevice &csv,
                    const std::function<bool()> &mayGoOn = {});
