#pragma once

#include "commands/commandrow.h"

#include <QString>
#include <QVector>

/// Command rows as text that spreadsheets take and give: a line for each row, its cells in the
/// order of the table's columns, without the send button's, and behind them what the row is
/// answered with. See tabtext.h.
///
/// A cell that begins with anything but a letter has an apostrophe in front, so that no spreadsheet
/// takes it for a number, a date or a formula.
QString rowsText(const QVector<CommandRow> &rows);

/// The rows of such a text, or what is wrong with it.
struct PastedRows
{
    QVector<CommandRow> rows;
    /// A sentence for the user that names row and column; empty where all rows could be read.
    QString fault = {};
};

/// The most characters that are read.
inline constexpr int mostRowsText = 8 * 1024 * 1024;

/// Reads rows. Cells at the end of a row may be missing. An apostrophe in front of a cell doesn't
/// count, an address is brought into its normal form, and the CRC is computed anew.
///
/// Select is "select", "x", "1" or "true", or "unselect", "0", "false" or nothing. CMD, Addr and
/// Data must have no fault (see cellFault), and what is expected must be expectation lines.
PastedRows readRowsText(const QString &text);
