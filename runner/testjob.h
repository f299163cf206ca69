#pragma once

#include "frames/alarmclock.h"
#include "runner/exitcode.h"
#include "runner/junitfile.h"
#include "runner/linkopener.h"
#include "runner/output.h"
#include "runner/progress.h"
#include "runner/run.h"
#include "runner/runrecording.h"
#include "runner/sessionwire.h"
#include "session/session.h"
#include "system/realtime.h"

#include <QTimer>

#include <memory>
#include <optional>

/// The whole of a test run: opens the link, runs the plan, writes the reports, and tells what the
/// program ends with.
class TestJob : public QObject
{
    Q_OBJECT

public:
    TestJob(const RunOptions &options, const RunPlan &plan);

    /// Everything happens in the event loop from now on.
    void start();

    /// Ends early: the reports are written, the link is closed.
    void end(RunEnd why);

signals:
    void finished(ExitCode code);

private:
    void begin();
    void beginRows();
    void finish(RunEnd why);
    void fail(ExitCode code, const QString &why);
    void tellRow(const RowResult &result);
    std::unique_ptr<Report> makeReport() const;
    bool openJunit();

    RunOptions m_options;
    RunPlan m_plan;
    Session m_session;
    SessionWire m_wire;
    std::unique_ptr<AlarmClock> m_clock;
    LinkOpener m_opener;
    Run m_run;
    Output m_output;
    std::unique_ptr<Report> m_report;
    std::optional<JunitFile> m_junit;
    RunRecording m_recording;
    std::optional<RealTime> m_realTime;
    bool m_wasRealTime = false;
    Progress m_progress;
    QTimer m_totalTime;
    bool m_hasBegun = false;
    bool m_isFinished = false;
};
