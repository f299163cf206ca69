#pragma once

#include "log/logrecord.h"
#include "recording/recordevent.h"
#include "runner/rowresult.h"
#include "runner/runsummary.h"

#include <QByteArray>

/// Reports a run in one format. Each call returns the bytes to write next.
class Report
{
public:
    Report() = default;
    Report(const Report &) = delete;
    Report &operator=(const Report &) = delete;
    virtual ~Report() = default;

    virtual QByteArray opening() { return {}; }

    /// The rows of that file follow.
    virtual QByteArray file(const QString & /*name*/, int /*pass*/) { return {}; }

    /// What went over the wire, and what happened to the link, as a log takes it.
    virtual QByteArray traffic(const LogRecord & /*record*/) { return {}; }

    /// The same as a recording takes it.
    virtual QByteArray event(const RecordEvent & /*event*/) { return {}; }

    virtual QByteArray row(const RowResult &result) = 0;

    virtual QByteArray closing(const RunSummary &summary, RunEnd end) = 0;
};

/// In words, "the link was lost"; empty for a run that is done.
QString endText(RunEnd end);
