#pragma once

#include "runner/testfile.h"

/// Reads a row with its expectations from one line: "Read,select,03 0010 00 02 //? 03 0010 **".
/// Whether it is selected doesn't matter.
Parsed<TestRow> parsePipeRow(const QByteArray &line, int number);

/// What any frame meets.
ExpectedFrame anyFrame();
