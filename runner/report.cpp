#include "runner/report.h"

QString endText(RunEnd end)
{
    switch (end) {
    case RunEnd::FailedFast:
        return QStringLiteral("ended at the first failure");
    case RunEnd::OutputLost:
        return QStringLiteral("nobody reads the output");
    case RunEnd::LinkLost:
        return QStringLiteral("the link was lost");
    case RunEnd::TimedOut:
        return QStringLiteral("the time was up");
    case RunEnd::Interrupted:
        return QStringLiteral("interrupted");
    case RunEnd::Terminated:
        return QStringLiteral("told to end");
    case RunEnd::Done:
        break;
    }
    return {};
}
