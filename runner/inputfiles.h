#pragma once

#include "runner/runplan.h"

#include <QStringList>

/// The outcome of reading the command files: the plan, or the faults, one a line.
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
