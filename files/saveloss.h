#pragma once

#include "commands/commandrow.h"

#include <QVector>

class QTextCodec;

/// Why a saved row will not come back as it was.
enum class SaveLoss {
    /// The encoding of the file has no room for some of its characters.
    Encoding,
    /// Its line is not understood on loading, for example for a comma in its description.
    Unreadable,
    /// Its line is understood on loading, but differently: the format has fixed widths.
    Changed
};

/// A row that a command file cannot hold.
struct AffectedRow
{
    /// Counted from 1.
    int number = 0;
    SaveLoss loss = SaveLoss::Changed;
};

/// The rows that will not come back as they are from a command file in the given encoding. Blanks
/// in CMD, Addr and Data do not count.
QVector<AffectedRow> affectedRows(const QVector<CommandRow> &rows, const QTextCodec &codec);

/// What the user is told of these rows after the save: one line for each reason. Empty when there
/// are none.
QString saveLossMessage(const QVector<AffectedRow> &rows);
