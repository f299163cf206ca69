#pragma once

#include <QByteArray>

// Lines of a command file that are comments to whoever doesn't know them, and tell a test run what
// to expect. They begin in the first column.

/// Whether a line is the one that says that the expectations in the file count:
/// "//@ tarnwick-run 1". It stands in front of the first row.
bool isRunLine(const QByteArray &line);

/// Whether a line is an expectation about the row above it: "//? ", "//+ " or "//! ", each with
/// bytes.
bool isExpectationLine(const QByteArray &line);
