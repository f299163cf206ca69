#pragma once

#include "recording/recordevent.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class QIODevice;

/// The outcome of an export.
struct CsvExport
{
    qint64 events = 0;
    /// Whether the recording ends in the middle of an event. All events before it were written.
    bool isTorn = false;
    /// What could not be read or written; empty if all went well.
    QString error;
};

/// The first line of a CSV file: a UTF-8 byte-order mark and the names of the columns.
QByteArray csvHead();

/// An event as a line by RFC 4180, ended by CR LF. Bytes have blanks between them, so that no
/// spreadsheet takes them for a number. The second column is the time in seconds since the event
/// before, if there was one.
QByteArray csvLine(const RecordEvent &event, std::optional<ArrivalTime> before);

/// Writes a recording as CSV. Both devices must be open. `mayGoOn` is asked a few times per
/// megabyte; if it returns false, the export stops with an error.
CsvExport exportCsv(QIODevice &recording, QIODevice &csv,
                    const std::function<bool()> &mayGoOn = {});
