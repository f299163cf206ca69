#pragma once

#include "expectations/rowtrial.h"
#include "frames/passcount.h"
#include "runner/pace.h"
#include "runner/rowresult.h"
#include "runner/runplan.h"
#include "runner/runsummary.h"

#include <QObject>

#include <optional>

class AlarmClock;
class Wire;

/// A test run: sends the rows of a plan one after the other, each at its time, and judges what
/// comes in. Everything happens in the event loop: nothing blocks, and an end is just another
/// event.
class Run : public QObject
{
    Q_OBJECT

public:
    /// Wire and clock must outlive the run, which has the clock's alarm to itself.
    Run(RunPlan plan, Wire &wire, AlarmClock &clock, QObject *parent = nullptr);

    void start();

    /// Ends the run where it is. A row on its way stays without a verdict.
    void end(RunEnd why);

    const RunSummary &summary() const { return m_summary; }

signals:
    /// The rows of that file of the plan follow, in that pass, which counts from 1.
    void fileBegan(int file, int pass);

    void judged(const RowResult &result);

    void ended(RunEnd why);

private:
    enum class Stage { Idle, BeforeRow, Waiting, Draining, Ended };

    void onAlarm();
    void takeFrame(const ReceivedFrame &frame);
    void takeStray(const QByteArray &bytes, qint64 timeNs);
    void lose(const QString &reason);

    bool reachRow();
    bool enterFile();
    void schedule();
    void send();
    void settle();
    void finishRow();
    void tell(const RowResult &result);
    RowResult currentResult() const;
    void noteUnexpected(const QByteArray &bytes);
    void judgeUnexpected();
    void drain();

    int pass() const { return int(m_passes.current()); }
    const FilePlan &file() const { return m_plan.files.at(m_file); }
    const PlannedRow &row() const { return file().rows.at(m_row); }

    RunPlan m_plan;
    Wire &m_wire;
    AlarmClock &m_clock;
    Stage m_stage = Stage::Idle;
    PassCount m_passes;
    int m_file = 0;
    int m_row = 0;
    Pace m_pace;
    /// When the row before was done.
    qint64 m_overNs = 0;
    /// Whether the row is sent at a time of its own, not as soon as the one before was done.
    bool m_isAwaited = false;
    int m_attempts = 0;
    std::optional<RowTrial> m_trial;
    /// Whether what comes in may be a reply to a row that expects nothing.
    bool m_repliesAreFree = false;
    qint64 m_lingerUntilNs = 0;
    qint64 m_strayBytes = 0;
    QByteArray m_unexpected;
    qint64 m_unexpectedCount = 0;
    RunSummary m_summary;
};
