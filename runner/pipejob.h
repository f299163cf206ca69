#pragma once

#include "frames/alarmclock.h"
#include "runner/exitcode.h"
#include "runner/junitfile.h"
#include "runner/linesource.h"
#include "runner/linkopener.h"
#include "runner/output.h"
#include "runner/run.h"
#include "runner/runrecording.h"
#include "runner/sessionwire.h"
#include "session/session.h"

#include <QJsonObject>
#include <QTimer>

#include <deque>
#include <memory>
#include <optional>

/// Answers rows that come one a line with a JSON object each, until there are no more.
class PipeJob : public QObject
{
    Q_OBJECT

public:
    explicit PipeJob(const RunOptions &options);

    void start();
    void end(RunEnd why);

signals:
    void finished(ExitCode code);

private:
    void begin();
    bool openJunit();
    void complainOfJunit() const;
    void answer(const RowResult &result, const QJsonObject &object);
    void takeLine(const QByteArray &line);
    void takeNext();
    void takeAfterRun();
    void runRow(const TestRow &row);
    void tell(const RowResult &result);
    void tellFault(const QString &why);
    void takeUncalled(const QByteArray &bytes);
    void failBetweenRows(const QString &why);
    void noteFailure();
    void finish(ExitCode code);

    RunOptions m_options;
    FilePlan m_format;
    Session m_session;
    SessionWire m_wire;
    std::unique_ptr<AlarmClock> m_clock;
    LinkOpener m_opener;
    std::unique_ptr<LineSource> m_lines;
    std::deque<QByteArray> m_waiting;
    bool m_isAtEnd = false;
    bool m_isReady = false;
    std::unique_ptr<Run> m_run;
    bool m_isBetweenRows = true;
    /// The row on its way expects nothing of its own: whatever comes is its reply.
    bool m_isFree = false;
    int m_count = 0;
    ExitCode m_code = ExitCode::Good;
    Output m_output;
    RunRecording m_recording;
    std::optional<JunitFile> m_junit;
    QTimer m_totalTime;
    bool m_isFinished = false;
};
