#pragma once

#include "commands/commandrow.h"
#include "frames/sendplan.h"

/// The rows whose Select box is checked, each with its number, from 1, and its frame text.
QVector<CheckedRow> checkedRows(const QVector<CommandRow> &rows);
