#include "runner/testjob.h"

#include "frames/systemclock.h"
#include "runner/deviceidfile.h"
#include "runner/jsonreport.h"
#include "runner/tapreport.h"
#include "runner/textreport.h"

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
}

void TestJob::start()
{
    if (!openJunit()) {
        return;
    }
    if (m_options.rules.totalTimeoutSeconds > 0) {
        constexpr int msPerSecond = 1000;
        m_totalTime.start(m_options.rules.totalTimeoutSeconds * msPerSecond);
    }
    m_opener.start();
}

void TestJob::end(RunEnd why)
{
    m_run.end(why);
}

void TestJob::begin()
{
    if (m_options.output.recordFile.isEmpty()) {
        beginRows();
    } else {
        record();
    }
}

void TestJob::record()
{
    const FrameLayout &layout = m_plan.files.first().layout;
    m_wire.setFormat(layout, m_plan.files.first().gapMs);
    RecordingPlan recording;
    recording.path = m_options.output.recordFile;
    recording.head = m_session.tap().head();
    recording.head.version = QStringLiteral(TARNWICK_VERSION);
    connect(&m_session.tap(), &WireTap::happened, &m_recorder, &Recorder::record);
    connect(&m_recorder, &Recorder::changed, this, &TestJob::noteRecording);
    m_session.tap().start();
    m_recorder.start(recording);
}

/// Nothing is sent where the recording can't begin.
void TestJob::noteRecording()
{
    if (m_hasBegun || m_isFinished) {
        return;
    }
    const RecordingStatus &status = m_recorder.status();
    if (!status.error.isEmpty()) {
        fail(ExitCode::NotWritten, status.error);
    } else if (status.isRunning) {
        beginRows();
    }
}

bool TestJob::endRecording()
{
    if (m_options.output.recordFile.isEmpty()) {
        return true;
    }
    m_session.tap().stop();
    const bool isClosed = m_recorder.finish();
    const RecordingStatus &status = m_recorder.status();
    if (!status.error.isEmpty()) {
        complain(status.error);
    }
    return isClosed && status.error.isEmpty() && status.droppedEvents == 0;
}

void TestJob::beginRows()
{
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
}

void TestJob::finish(RunEnd why)
{
    if (std::exchange(m_isFinished, true)) {
        return;
    }
    m_realTime.reset();
    RunSummary summary = m_run.summary();
    summary.isRealTime = m_wasRealTime;
    m_progress.clear();
    m_output.write(m_report->closing(summary, why));
    bool isWritten = endRecording() && m_output.isGood();
    if (m_junit && !m_junit->finish(summary, why)) {
        complain(QStringLiteral("%1: %2").arg(m_options.output.junitFile, m_junit->errorText()));
        isWritten = false;
    }
    emit finished(exitCodeOf(why, summary, isWritten));
}

void TestJob::fail(ExitCode code, const QString &why)
{
    m_isFinished = true;
    complain(why);
    emit finished(code);
}

std::unique_ptr<Report> TestJob::makeReport() const
{
    switch (m_options.output.format) {
    case OutputOptions::Format::Tap:
        return std::make_unique<TapReport>();
    case OutputOptions::Format::JsonLines:
        return std::make_unique<JsonReport>();
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
