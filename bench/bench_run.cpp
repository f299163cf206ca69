#include "childprocess.h"
#include "figures.h"
#include "frames/timeunits.h"
#include "system/realtime.h"
#include "wirelateness.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <vector>

// The test runner: how late it writes its rows, beside a bare program under the same policy that
// only sleeps and writes; how long one row takes from start to end; and what a long run costs.
// Fails where a row fails.

namespace {

constexpr int pairs = 3;
constexpr PacedFrames runTrials[] = {{1, 3000}, {10, 500}, {100, 60}};
constexpr double allowedMs = 0.1;

const QByteArray pacedRow("Read,select,03 1000 00 00\n");
const QByteArray echoRow("//@ tarnwick-run 1\nEcho,select,42 0000 01\n//? 42 **\n");

QString fileWith(const QByteArray &text, const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("list.txt"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return path;
}

void startRunner(QProcess &runner, const QStringList &arguments)
{
    runner.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    runner.start(QStringLiteral(TARNWICK_RUN), arguments);
}

void waitForEnd(QProcess &runner)
{
    runner.waitForFinished(-1);
    if (runner.exitCode() != 0) {
        qFatal("The runner ended with %d: %s", runner.exitCode(),
               runner.readAllStandardOutput().constData());
    }
}

/// One run of the bare program, then one of the runner. Both note when they write.
struct Pair
{
    explicit Pair(PacedFrames its)
        : frames(its)
    {}

    PacedFrames frames;
    TestPort barePort;
    TestPort port;
    ChildProcess bareReader{[this] { return noteArrivals(barePort, frames, FarEnd::Reads); }};
    ChildProcess bareWriter{[this] {
        const RealTime realTime;
        return writeFrames(barePort.path(), frames);
    }};
    ChildProcess reader{[this] { return noteArrivals(port, frames, FarEnd::Answers); }};
};

QVector<double> latenessOfBare(Pair &pair)
{
    pair.bareReader.start();
    pair.bareWriter.start();
    return lateness(timesIn(pair.bareWriter.result()), pair.frames.intervalMs);
}

QVector<double> latenessOfRunner(Pair &pair, const QTemporaryDir &folder)
{
    const QString noted = folder.filePath(QStringLiteral("times"));
    QProcess runner;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", QStringLiteral(TARNWICK_WRITE_WATCH));
    environment.insert("TARNWICK_WRITES", noted);
    runner.setProcessEnvironment(environment);
    pair.reader.start();
    startRunner(runner, {"--port", pair.port.path(), "-q", "--interval",
                         QString::number(pair.frames.intervalMs), "-n",
                         QString::number(pair.frames.gaps + 1), fileWith(pacedRow, folder)});
    waitForEnd(runner);
    QFile times(noted);
    times.open(QIODevice::ReadOnly);
    return lateness(timesIn(times.readAll()), pair.frames.intervalMs);
}

/// The figures of several runs; of each kind the median is told.
struct Lateness
{
    QVector<double> medians;
    QVector<double> percentiles;
    QVector<double> worst;

    void add(const QVector<double> &late)
    {
        medians.append(median(late));
        percentiles.append(percentile(late, 0.99));
        worst.append(percentile(late, 1));
    }

    double percentile99() const { return median(percentiles); }

    void print(const QString &whose, const QString &aim) const
    {
        printFigure(whose + ": lateness, median", median(medians), "ms");
        printFigure(whose + ": lateness, 99th percentile", percentile99(), "ms", aim);
        printFigure(whose + ": lateness, worst", median(worst), "ms");
    }
};

void measureLateness(const std::vector<std::unique_ptr<Pair>> &runs, PacedFrames frames)
{
    const QTemporaryDir folder;
    Lateness bare;
    Lateness runner;
    for (const auto &pair : runs) {
        if (pair->frames.intervalMs == frames.intervalMs) {
            bare.add(latenessOfBare(*pair));
            runner.add(latenessOfRunner(*pair, folder));
        }
    }
    printHeading(QString("run: a row every %1 ms, the medians of %2 pairs of runs%3")
                     .arg(frames.intervalMs)
                     .arg(pairs)
                     .arg(RealTime().isGranted() ? "" : " (not real-time)"));
    bare.print("bare", {});
    runner.print("tarnwick-run", QString("< %1").arg(bare.percentile99() + allowedMs, 0, 'f', 3));
}

void measureOneRow()
{
    const QTemporaryDir folder;
    const QString list = fileWith(echoRow, folder);
    const double seconds = medianSeconds(
        [&list] {
            QProcess runner;
            startRunner(runner, {"--sim", "-q", list});
            waitForEnd(runner);
        },
        21);
    printHeading("run: one row against the simulated device");
    printFigure("start to end, median", seconds * msPerSecond, "ms", "< 50");
}

double residentMiBOf(const QProcess &process)
{
    QFile status(QString("/proc/%1/status").arg(process.processId()));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).simplified().split(' ').first().toDouble() / 1024;
        }
    }
    return 0;
}

/// The rows are counted by their lines, so that the memory is that after so many rows.
void measureLongRun()
{
    constexpr int rows = 100000;
    constexpr int settled = 5000;
    constexpr int nearTheEnd = rows - 1000;
    const QTemporaryDir folder;
    QProcess runner;
    QElapsedTimer clock;
    clock.start();
    startRunner(runner, {"--sim", "-n", QString::number(rows), "--junit", folder.filePath("r.xml"),
                         fileWith(echoRow, folder)});
    double early = 0;
    double late = 0;
    int passed = 0;
    while (runner.waitForReadyRead(-1)) {
        passed += runner.readAllStandardOutput().count("pass  001");
        early = early == 0 && passed >= settled ? residentMiBOf(runner) : early;
        late = passed < nearTheEnd ? residentMiBOf(runner) : late;
    }
    waitForEnd(runner);
    const double seconds = secondsSince(clock);
    printHeading(QString("run: %1 rows against the simulated device, JUnit written").arg(passed));
    printFigure("time", seconds, "s");
    printFigure("rows in a second", passed / seconds, "/s");
    printFigure("resident memory after 5,000 rows", early, "MiB");
    printFigure("growth by the end", late - early, "MiB", "< 1");
}

} // namespace

int main(int argc, char *argv[])
{
    // Processes are made before there are threads.
    std::vector<std::unique_ptr<Pair>> runs;
    for (const PacedFrames frames : runTrials) {
        for (int i = 0; i < pairs; ++i) {
            runs.push_back(std::make_unique<Pair>(frames));
        }
    }
    const QCoreApplication application(argc, argv);
    for (const PacedFrames frames : runTrials) {
        measureLateness(runs, frames);
    }
    measureOneRow();
    measureLongRun();
    return 0;
}
