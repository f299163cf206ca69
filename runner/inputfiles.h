#pragma once

#include "runner/runplan.h"

#include <QStringList>

/// What came of reading the command files: the plan, or what is wrong, a line each.
struct ReadPlan
{
    RunPlan plan;
    QStringList faults;
    /// Of all files.
    int rows = 0;
    int expectations = 0;
};

/// Reads the files and plans what is sent of them. A file called "-" is the standard input.
ReadPlan readPlan(const RunOptions &options);
