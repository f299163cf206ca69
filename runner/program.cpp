#include "runner/program.h"

#include "expectations/rowtrial.h"
#include "runner/conversion.h"
#include "runner/exitcode.h"
#include "runner/inputfiles.h"
#include "runner/lists.h"
#include "runner/output.h"
#include "runner/pipejob.h"
#include "runner/testjob.h"
#include "runner/windowsettings.h"
#include "system/endsignals.h"

#include <QCoreApplication>

#include <algorithm>
#include <csignal>

namespace {

/// Enough to write the reports; then the system ends the program.
constexpr int runPatienceSeconds = 5;

ExitCode print(const QByteArray &text)
{
    Output output;
    output.write(text);
    return output.isGood() ? ExitCode::Good : ExitCode::NotWritten;
}

ExitCode refuse(const QStringList &faults)
{
    for (const QString &fault : faults) {
        complain(fault);
    }
    return ExitCode::WrongInput;
}

/// Runs a job to its end in the event loop.
template<typename Job>
ExitCode workOff(Job &job)
{
    ExitCode code = ExitCode::Good;
    const EndSignals endSignals(runPatienceSeconds);
    QObject::connect(&endSignals, &EndSignals::arrived, &job, [&job](int signal) {
        job.end(signal == SIGINT ? RunEnd::Interrupted : RunEnd::Terminated);
    });
    QObject::connect(&job, &Job::finished, &job, [&code](ExitCode result) {
        code = result;
        QCoreApplication::quit();
    });
    // From the event loop, so that it can be left again.
    QMetaObject::invokeMethod(
        &job, [&job] { job.start(); }, Qt::QueuedConnection);
    QCoreApplication::exec();
    return code;
}

ExitCode check(const ReadPlan &read)
{
    return print(QStringLiteral("%1 rows, %2 with expectations\n")
                     .arg(read.rows)
                     .arg(read.expectations)
                     .toUtf8());
}

ExitCode dryRun(const RunPlan &plan)
{
    QByteArray text;
    for (const FilePlan &file : plan.files) {
        for (const PlannedRow &row : file.rows) {
            if (!row.isPause()) {
                text += bytesText(row.frame).toLatin1() + '\n';
            }
        }
    }
    return print(text);
}

/// The simulated device speaks one language at a time.
bool isForOneDevice(const RunPlan &plan)
{
    const FrameLayout &first = plan.files.first().layout;
    return std::all_of(plan.files.begin(), plan.files.end(), [&first](const FilePlan &file) {
        return file.layout.withStartBytes && file.layout.withLength &&
               file.layout.withCrc == first.withCrc &&
               bytesOf(file.layout.startBytes) == bytesOf(first.startBytes);
    });
}

ExitCode runFiles(const RunOptions &options)
{
    const ReadPlan read = readPlan(options);
    if (!read.faults.isEmpty()) {
        return refuse(read.faults);
    }
    if (options.task == RunOptions::Task::Check) {
        return check(read);
    }
    if (!read.plan.hasSomethingToSend()) {
        complain(QStringLiteral("There is nothing to send."));
        return ExitCode::NothingToDo;
    }
    if (options.task == RunOptions::Task::DryRun) {
        return dryRun(read.plan);
    }
    if (options.link.kind == LinkChoice::Kind::Simulated && !isForOneDevice(read.plan)) {
        return refuse({QStringLiteral("The simulated device needs start bytes and length, and the "
                                      "same start bytes and CRC in all files.")});
    }
    TestJob job(options, read.plan);
    return workOff(job);
}

ExitCode convert(const RunOptions &options)
{
    const Conversion result = convertRecording(options.recording, options.files.first());
    if (!result.words.isEmpty()) {
        complain(result.words);
    }
    return result.code;
}

ExitCode perform(const RunOptions &options)
{
    using Task = RunOptions::Task;
    switch (options.task) {
    case Task::Help:
        return print(runHelpText().toUtf8());
    case Task::Version:
        return print("tarnwick-run " TARNWICK_VERSION "\n");
    case Task::ListPorts:
        return print(portListText(options.asJson));
    case Task::ListHid:
        return print(hidListText(options.asJson));
    case Task::Pipe: {
        PipeJob job(options);
        return workOff(job);
    }
    case Task::Convert:
        return convert(options);
    case Task::Run:
    case Task::Check:
    case Task::DryRun:
        break;
    }
    return runFiles(options);
}

/// With what the window's settings file says, where one is named.
ExitCode performWithSettings(RunOptions options)
{
    if (options.settingsFile.isEmpty()) {
        return perform(options);
    }
    const WindowSettings read = readWindowSettings(options.settingsFile);
    if (!read.faults.isEmpty()) {
        return refuse(read.faults);
    }
    options.defaults = read.settings;
    // A command file may still say otherwise, but nothing does to a pipe.
    const QString error =
        options.task == RunOptions::Task::Pipe ? contradictionIn(options) : QString();
    return error.isEmpty() ? perform(options) : refuse({error});
}

} // namespace

int runProgram(const QStringList &arguments)
{
    outliveReaders();
    const ParsedOptions parsed = parseRunOptions(arguments);
    const ExitCode code = parsed.error.isEmpty()
                              ? performWithSettings(parsed.options)
                              : refuse({parsed.error + QStringLiteral(" See --help.")});
    return static_cast<int>(code);
}
