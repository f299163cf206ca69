#include "runner/testjob.h"

#include "frames/systemclock.h"
#include "runner/deviceidfile.h"
#include "runner/jsonreport.h"
#include "runner/tapreport.h"
#include "runner/textreport.h"

#include <chrono>

namespace {

bool areColoursWanted(OutputOptions::Colour colour)
{
    if (colour == OutputOptions::Colour::Auto) {
        return isOutputTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR");
    }
    return colour == OutputOptions::Colour::Always;
}

TextReport::Detail detailOf(OutputOptions::Detail detail)
{
    switch (detail) {
    case OutputOptions::Detail::Quiet:
        return TextReport::Detail::Failures;
    case OutputOptions::Detail::Verbose:
        return TextReport::Detail::Traffic;
    case OutputOptions::Detail::Usual:
        break;
    }
    return TextReport::Detail::Rows;
}

/// Where rows are told on the same terminal, they are the progress.
bool isProgressWanted(const OutputOptions &output)
{
    return isErrorTerminal() &&
           (!isOutputTerminal() || output.detail == OutputOptions::Detail::Quiet);
}

} // namespace

TestJob::TestJob(const RunOptions &options, const RunPlan &plan)
    : m_options(options)
    , m_plan(plan)
    , m_session(deviceIdFilePath(), {})
    , m_wire(m_session)
    , m_clock(makeSystemClock())
    , m_opener(m_session, options.link)
    , m_run(plan, m_wire, *m_clock)
    , m_report(makeReport())
    , m_recording(m_session, options.output.recordFile)
    , m_progress(isProgressWanted(options.output))
{
    const FrameLayout &layout = plan.files.first().layout;
    m_opener.setDeviceFormat(layout.startBytes, layout.withCrc);
    m_totalTime.setSingleShot(true);
    connect(&m_totalTime, &QTimer::timeout, this, [this] { end(RunEnd::TimedOut); });
    connect(&m_opener, &LinkOpener::opened, this, &TestJob::begin);
    connect(&m_opener, &LinkOpener::failed, this,
            [this](const QString &why) { fail(ExitCode::LinkNotOpened, why); });
    connect(&m_run, &Run::judged, this, &TestJob::tellRow);
    connect(&m_run, &Run::ended, this, &TestJob::finish);
    connect(&m_run, &Run::fileBegan, this, [this](int file, int pass) {
        const QString name = m_plan.files.at(file).name;
        m_output.write(m_report->file(name, pass));
        if (m_junit) {
            m_junit->file(name, pass);
        }
    });
    connect(&m_wire, &SessionWire::recorded, this, [this](const LogRecord &record) {
        if (!m_isFinished) {
            m_output.write(m_report->traffic(record));
        }
    });
    connect(&m_session.tap(), &WireTap::happened, this, [this](const RecordEvent &event) {
        if (m_hasBegun && !m_isFinished) {
            m_output.write(m_report->event(event));
        }
    });
    connect(&m_recording, &RunRecording::began, this, &TestJob::beginRows);
    connect(&m_recording, &RunRecording::failed, this,
            [this](const QString &why) { fail(ExitCode::NotWritten, why); });
}

void TestJob::start()
{
    if (!openJunit()) {
        return;
    }
    if (m_options.rules.totalTimeoutSeconds > 0) {
        m_totalTime.start(std::chrono::seconds(m_options.rules.totalTimeoutSeconds));
    }
    m_opener.start();
}

void TestJob::end(RunEnd why)
{
    m_run.end(why);
}

/// Nothing is sent where the recording can't begin.
void TestJob::begin()
{
    m_wire.setFormat(m_plan.files.first().layout, m_plan.files.first().gapMs);
    m_session.tap().start();
    m_recording.start();
}

void TestJob::beginRows()
{
    if (m_isFinished) {
        return;
    }
    m_hasBegun = true;
    m_output.write(m_report->opening());
    if (m_plan.keepsIntervals()) {
        m_realTime.emplace();
        m_wasRealTime = m_realTime->isGranted();
    }
    m_run.start();
}

void TestJob::tellRow(const RowResult &result)
{
    m_progress.clear();
    m_output.write(m_report->row(result));
    if (m_junit) {
        m_junit->row(result);
    }
    m_progress.show(m_run.summary().rows, m_clock->now());
    if (!m_output.isGood()) {
        m_run.end(RunEnd::OutputLost);
    }
}

void TestJob::finish(RunEnd why)
{
    if (m_isFinished) {
        return;
    }
    m_session.tap().stop();
    m_isFinished = true;
    m_realTime.reset();
    RunSummary summary = m_run.summary();
    summary.isRealTime = m_wasRealTime;
    m_progress.clear();
    m_output.write(m_report->closing(summary, why));
    bool isWritten = m_recording.finish() && m_output.isGood();
    if (m_junit && !m_junit->finish(summary, why)) {
        complain(QStringLiteral("%1: %2").arg(m_options.output.junitFile, m_junit->errorText()));
        isWritten = false;
    }
    emit finished(exitCodeOf(why, summary, isWritten));
}

void TestJob::fail(ExitCode code, const QString &why)
{
    complain(why);
    if (!std::exchange(m_isFinished, true)) {
        emit finished(code);
    }
}

std::unique_ptr<Report> TestJob::makeReport() const
{
    switch (m_options.output.format) {
    case OutputOptions::Format::Tap:
        return std::make_unique<TapReport>();
    case OutputOptions::Format::JsonLines:
        return std::make_unique<JsonReport>([this] { return m_recording.head(); },
                                            &ArrivalTime::now);
    case OutputOptions::Format::Text:
        break;
    }
    return std::make_unique<TextReport>(detailOf(m_options.output.detail),
                                        areColoursWanted(m_options.output.colour));
}

/// Nothing is sent where the report could not be told of it.
bool TestJob::openJunit()
{
    const QString &path = m_options.output.junitFile;
    if (path.isEmpty()) {
        return true;
    }
    m_junit.emplace(path);
    if (!m_junit->open()) {
        fail(ExitCode::NotWritten, QStringLiteral("%1: %2").arg(path, m_junit->errorText()));
        return false;
    }
    return true;
}
