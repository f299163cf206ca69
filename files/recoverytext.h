#pragma once

#include "commands/commandrow.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// A recovery file is a command file that holds all that a row carries: before the line of each row
/// stands a comment with the texts of all its cells, from which the row is read. It is in UTF-8.

/// The most bytes that a recovery file may have: it says everything twice, in the worst case.
inline constexpr int largestRecoveryFile = 32 * 1024 * 1024;

/// Whether a file is a recovery file.
bool isRecoveryText(const QByteArray &bytes);

/// The recovery file of these rows.
QByteArray recoveryText(const QVector<CommandRow> &rows);

/// The row in a line of a recovery file. Nothing for a line without one.
std::optional<CommandRow> recoveredRow(const QByteArray &line);
