#include "runner/pipejob.h"

#include "expectations/rowtrial.h"
#include "frames/systemclock.h"
#include "runner/deviceidfile.h"
#include "runner/jsonreport.h"
#include "runner/piperow.h"

#include <chrono>

namespace {

/// Lines that have been read ahead.
constexpr std::size_t mostWaitingLines = 1000;

} // namespace

PipeJob::PipeJob(const RunOptions &options)
    : m_options(options)
    , m_format(emptyPlan(QStringLiteral("-"), merged(options.settings, options.defaults)))
    , m_session(deviceIdFilePath(), {})
    , m_wire(m_session)
    , m_clock(makeSystemClock())
    , m_opener(m_session, options.link)
    , m_lines(makeLineSource())
    , m_recording(m_session, options.output.recordFile)
{
    m_opener.setDeviceFormat(m_format.layout.startBytes, m_format.layout.withCrc);
    m_totalTime.setSingleShot(true);
    connect(&m_totalTime, &QTimer::timeout, this, [this] { end(RunEnd::TimedOut); });
    connect(&m_opener, &LinkOpener::failed, this, [this](const QString &why) {
        complain(why);
        finish(ExitCode::LinkNotOpened);
    });
    connect(&m_opener, &LinkOpener::opened, this, &PipeJob::begin);
    connect(&m_recording, &RunRecording::failed, this, [this](const QString &why) {
        complain(why);
        finish(ExitCode::NotWritten);
    });
    connect(&m_recording, &RunRecording::began, this, [this] {
        m_isReady = true;
        takeNext();
    });
    // The row on its way is told before.
    connect(
        &m_wire, &Wire::lost, this,
        [this](const QString &why) {
            complain(why);
            finish(ExitCode::LinkLost);
        },
        Qt::QueuedConnection);
    connect(&m_wire, &Wire::frameArrived, this,
            [this](const ReceivedFrame &frame) { takeUncalled(frame.payload); });
    connect(&m_wire, &Wire::strayArrived, this, &PipeJob::takeUncalled);
    connect(m_lines.get(), &LineSource::arrived, this, &PipeJob::takeLine);
    connect(m_lines.get(), &LineSource::ended, this, [this] {
        m_isAtEnd = true;
        takeNext();
    });
}

void PipeJob::start()
{
    if (!openJunit()) {
        return;
    }
    if (m_options.rules.totalTimeoutSeconds > 0) {
        m_totalTime.start(std::chrono::seconds(m_options.rules.totalTimeoutSeconds));
    }
    m_opener.start();
}

/// Nothing is sent where the recording can't begin.
void PipeJob::begin()
{
    m_wire.setFormat(m_format.layout, m_format.gapMs);
    m_session.tap().start();
    m_recording.start();
}

bool PipeJob::openJunit()
{
    const QString &path = m_options.output.junitFile;
    if (path.isEmpty()) {
        return true;
    }
    m_junit.emplace(path);
    if (!m_junit->open()) {
        complainOfJunit();
        m_junit.reset();
        finish(ExitCode::NotWritten);
        return false;
    }
    m_junit->file(m_format.name, 1);
    return true;
}

void PipeJob::complainOfJunit() const
{
    complain(QStringLiteral("%1: %2").arg(m_options.output.junitFile, m_junit->errorText()));
}

void PipeJob::end(RunEnd why)
{
    finish(exitCodeOf(why, RunSummary(), true));
}

void PipeJob::takeLine(const QByteArray &line)
{
    m_waiting.push_back(line);
    if (m_waiting.size() >= mostWaitingLines) {
        m_lines->setReading(false);
    }
    takeNext();
}

void PipeJob::takeNext()
{
    while (m_isReady && !m_run && !m_waiting.empty() && !m_isFinished) {
        const QByteArray line = m_waiting.front();
        m_waiting.pop_front();
        if (m_waiting.empty()) {
            m_lines->setReading(true);
        }
        ++m_count;
        const Parsed<TestRow> row = parsePipeRow(line, m_count);
        if (row.value) {
            runRow(*row.value);
        } else {
            tellFault(row.fault.words);
        }
    }
    if (m_isReady && m_isAtEnd && !m_run && m_waiting.empty()) {
        finish(m_code);
    }
}

void PipeJob::runRow(const TestRow &row)
{
    FilePlan plan = m_format;
    plan.rows = {plannedRow(row, plan.layout)};
    if (plan.rows.first().isPause()) {
        tellFault(QStringLiteral("the row holds no whole bytes"));
        return;
    }
    m_isFree = row.expectation.isEmpty();
    if (m_isFree) {
        plan.rows.first().expectation.replies = {{anyFrame()}};
    }
    RunRules rules = m_options.rules;
    rules.passes = 1;
    rules.retries = m_isFree ? 0 : rules.retries;
    m_run = std::make_unique<Run>(RunPlan{{plan}, rules}, m_wire, *m_clock);
    connect(m_run.get(), &Run::judged, this, &PipeJob::tell);
    // Not from within: the run is in the midst of telling.
    connect(m_run.get(), &Run::ended, this, [this] {
        m_isBetweenRows = true;
        QMetaObject::invokeMethod(this, &PipeJob::takeAfterRun, Qt::QueuedConnection);
    });
    m_isBetweenRows = false;
    m_run->start();
}

void PipeJob::takeAfterRun()
{
    m_run.reset();
    takeNext();
}

void PipeJob::tell(const RowResult &result)
{
    if (result.number == 0) {
        failBetweenRows(result.why);
        return;
    }
    RowResult told = result;
    if (m_isFree && result.replies.isEmpty() && result.verdict == RowResult::Verdict::Failed) {
        told.why.clear();
    }
    if (m_isFree && told.why.isEmpty()) {
        told.verdict = RowResult::Verdict::Sent;
    }
    if (!told.isGood()) {
        noteFailure();
    }
    answer(told, jsonOf(told));
}

void PipeJob::answer(const RowResult &result, const QJsonObject &object)
{
    m_output.write(jsonLine(object));
    if (m_junit) {
        m_junit->row(result);
    }
    if (!m_output.isGood()) {
        finish(m_code);
    }
}

/// What comes while no row waits is checked where nothing but the expected may come.
void PipeJob::takeUncalled(const QByteArray &bytes)
{
    if (m_isBetweenRows && m_options.rules.isStrict) {
        failBetweenRows(QStringLiteral("expected nothing, got %1").arg(bytesText(bytes)));
    }
}

/// Each line has one answer, so this is told beside.
void PipeJob::failBetweenRows(const QString &why)
{
    complain(QStringLiteral("Between the rows: ") + why);
    noteFailure();
}

void PipeJob::noteFailure()
{
    m_code = m_code == ExitCode::Good ? ExitCode::ExpectationFailed : m_code;
}

void PipeJob::tellFault(const QString &why)
{
    m_code = ExitCode::WrongInput;
    RowResult result;
    result.number = m_count;
    result.verdict = RowResult::Verdict::Failed;
    result.why = why;
    answer(result, {{"ev", "verdict"}, {"row", m_count}, {"verdict", "error"}, {"why", why}});
}

void PipeJob::finish(ExitCode code)
{
    if (std::exchange(m_isFinished, true)) {
        return;
    }
    m_session.tap().stop();
    bool isWritten = m_recording.finish() && m_output.isGood();
    if (m_junit && !m_junit->finish(RunSummary(), RunEnd::Done)) {
        complainOfJunit();
        isWritten = false;
    }
    const bool isDone = code == ExitCode::Good || code == ExitCode::ExpectationFailed;
    emit finished(isDone && !isWritten ? ExitCode::NotWritten : code);
}
