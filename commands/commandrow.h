#pragma once

#include <QString>

/// What a row of the command table carries: its cells' texts and its Select box.
struct CommandRow
{
    QString description;
    bool selected = false;
    /// The command byte as hex text, or the delay marker.
    QString cmd;
    /// The address as hex text.
    QString addr;
    /// The data as hex text; in a delay row the pause in ms, decimal.
    QString data;
    /// The CRC cell, see crcCellText().
    QString crc;
    /// The kind of value that the data was entered as.
    QString dataType;
    /// The value as it was typed, before it became data.
    QString originalData;
    /// What a test run expects as its answer: the lines of a command file that say so, each with
    /// its line end, behind the one that makes them count.
    QString expectations = {};
    /// Which row of the table it is, for as long as that exists; 0 for one that is in no table.
    int id = 0;
};

/// Whether two rows carry the same, whichever rows of a table they are.
bool operator==(const CommandRow &left, const CommandRow &right);
bool operator!=(const CommandRow &left, const CommandRow &right);

/// An empty row, as new rows are: its data type is "short".
CommandRow emptyRow();

/// A row that pauses a sequence for 1000 ms; it has no data type.
/// See docs/deliberate.md, Names as they are.
CommandRow delayRow();

/// CMD, Addr and Data joined, without blanks: what is turned into a frame.
QString frameText(const CommandRow &row);

/// The CRC-16/MODBUS of the bytes that a frame text stands for, as the CRC cell shows it: the high
/// byte, a blank, the low byte. Empty for a delay row and where there is nothing to send.
QString crcCellText(const QString &frameText);

/// An address as typed, in at least four upper-case hex digits; "0000" when it is no hex number. An
/// empty or blank address stays as it is.
QString normalisedAddress(const QString &typed);

/// The address after the given one, in the same form ("00FF" gives "0100", "FFFF" gives "10000").
QString nextAddress(const QString &address);
