#pragma once

#include "runner/runsummary.h"

/// What the program ends with.
enum class ExitCode {
    Good = 0,
    ExpectationFailed = 1,
    WrongInput = 2,
    LinkNotOpened = 3,
    LinkLost = 4,
    NothingToDo = 5,
    NotWritten = 6,
    TimedOut = 124,
    Interrupted = 130,
    Terminated = 143
};

/// The exit code of a run. The way it ended comes before a report that can't be written, and that
/// before a failed expectation.
inline ExitCode exitCodeOf(RunEnd end, const RunSummary &summary, bool isWritten)
{
    switch (end) {
    case RunEnd::LinkLost:
        return ExitCode::LinkLost;
    case RunEnd::TimedOut:
        return ExitCode::TimedOut;
    case RunEnd::Interrupted:
        return ExitCode::Interrupted;
    case RunEnd::Terminated:
        return ExitCode::Terminated;
    case RunEnd::Done:
    case RunEnd::FailedFast:
    case RunEnd::OutputLost:
        break;
    }
    if (!isWritten) {
        return ExitCode::NotWritten;
    }
    return summary.failures > 0 ? ExitCode::ExpectationFailed : ExitCode::Good;
}
