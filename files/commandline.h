#pragma once

#include "commands/commandrow.h"

#include <optional>

/// Whether a line of a command file is to be skipped: it is empty or a comment ("//").
bool isIgnoredLine(const QString &line);

/// The row that a line of a command file describes, "Description,Selection,Frame" or
/// "Description,Frame", without its line end.
///
/// The CRC cell is computed; data type and original data are empty. Nothing is returned for any
/// other number of fields.
std::optional<CommandRow> parseCommandLine(const QString &line);

/// The line that stands for a row in a command file, without its line end. It is empty for a row
/// that is not written: one with nothing in Description, CMD, Addr and Data.
QString commandLine(const CommandRow &row);
