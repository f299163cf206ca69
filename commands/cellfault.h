#pragma once

#include "commands/commandrow.h"

/// What is wrong with a cell of a command row, as a sentence for the user; empty where nothing is,
/// and for columns that don't go into a frame. CMD, Addr and Data have to be hex text, a delay
/// row's Data a decimal number.
QString cellFault(const CommandRow &row, int column);
