// What recording costs at the fullest wire, 12567 frames of 11 bytes a second, and whether any is
// lost: bench_recording [SECONDS], 10 for each half by default. Counts and hash are compared with
// the sender's.

#include "frames/timeunits.h"
#include "recording/recorder.h"
#include "recording/recordingreader.h"
#include "session/session.h"
#include "testport.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>
#include <cstdio>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int framesPerSecond = 12567;

QByteArray benchFrame(quint32 number)
{
    QByteArray frame = QByteArray::fromHex("5AA508A0000000000000FF");
    for (int i = 0; i < 4; ++i) {
        frame[6 + i] = static_cast<char>(number >> (8U * unsigned(i)));
    }
    return frame;
}

/// Seconds of processor time of a thread or, with RUSAGE_SELF, of the program.
double processorSeconds(int whose)
{
    rusage usage{};
    getrusage(static_cast<__rusage_who>(whose), &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / usPerSecond;
}

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1048576;
}

/// What a thread has sent over the wire.
struct WireSender
{
    void run(const TestPort &port, int seconds)
    {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        QElapsedTimer clock;
        clock.start();
        const qint64 all = qint64(seconds) * framesPerSecond;
        while (frames < all) {
            const qint64 due = std::min(all, clock.elapsed() * framesPerSecond / msPerSecond);
            QByteArray block;
            while (frames < due) {
                block += benchFrame(quint32(frames++));
            }
            hash.addData(block);
            port.send(block);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        sha256 = hash.result().toHex();
        processor = processorSeconds(RUSAGE_THREAD);
        isDone = true;
    }

    qint64 frames = 0;
    QByteArray sha256;
    double processor = 0;
    std::atomic<bool> isDone = false;
};

struct HalfResult
{
    qint64 received = 0;
    qint64 sent = 0;
    QByteArray sha256;
    /// Without that of the sender.
    double processor = 0;
};

HalfResult runHalf(Session &session, const TestPort &port, int seconds)
{
    HalfResult result;
    WireSender sender;
    QObject context;
    QObject::connect(&session.log(), &RecordLog::appended, &context,
                     [&result](const LogRecord &) { ++result.received; });
    const double before = processorSeconds(RUSAGE_SELF);
    std::thread thread([&] { sender.run(port, seconds); });
    QElapsedTimer quiet;
    qint64 last = -1;
    constexpr int quietMs = 500;
    while (!sender.isDone || last != result.received || !quiet.hasExpired(quietMs)) {
        if (last != result.received) {
            last = result.received;
            quiet.start();
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
    }
    thread.join();
    result.processor = processorSeconds(RUSAGE_SELF) - before - sender.processor;
    result.sent = sender.frames;
    result.sha256 = sender.sha256;
    return result;
}

/// The sums of the whole recording, as its last file tells them.
RecordingTail lastTail(const QString &folder)
{
    QFile file(QDir(folder).filePath(QDir(folder).entryList(QDir::Files, QDir::Name).last()));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const auto reader = makeRecordingReader(file);
    while (reader->next()) {
    }
    return reader->tail().value_or(RecordingTail());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    constexpr int usualSeconds = 10;
    const int asked = QCoreApplication::arguments().value(1).toInt();
    const int seconds = asked > 0 ? asked : usualSeconds;
    const TestPort port;
    Session session({}, {});
    session.setHeaderText(QStringLiteral("0x5A,0xA5"));
    SerialSettings settings;
    settings.portName = port.path();
    if (!session.links().serial().open(settings)) {
        return 1;
    }
    // So that waiting for events comes back now and then.
    QTimer beat;
    constexpr int beatMs = 50;
    beat.start(beatMs);
    const HalfResult without = runHalf(session, port, seconds);
    const QTemporaryDir folder;
    Recorder recorder;
    QObject::connect(&session.tap(), &WireTap::happened, &recorder, &Recorder::record);
    RecordingPlan plan;
    plan.path = folder.filePath(QStringLiteral("bench-001.jsonl"));
    plan.head = session.tap().head();
    session.tap().start();
    recorder.start(plan);
    const double megabytesBefore = residentMegabytes();
    const HalfResult with = runHalf(session, port, seconds);
    const double growth = residentMegabytes() - megabytesBefore;
    session.tap().stop();
    constexpr int patienceMs = 60000;
    recorder.finish(patienceMs);
    const RecordingTail tail = lastTail(folder.path());
    const bool isWhole = tail.recording.received.frames == with.sent &&
                         tail.recording.received.sha256 == with.sha256 &&
                         recorder.status().droppedEvents == 0 && with.received == with.sent;
    std::printf("recording: %d s at %d frames/s, processor %.2f s without, %.2f s with "
                "(%.1f %% of a core on top), %lld of %lld frames, hash %s, %.1f MB more memory\n",
                seconds, framesPerSecond, without.processor, with.processor,
                (with.processor - without.processor) * 100 / seconds,
                static_cast<long long>(tail.recording.received.frames),
                static_cast<long long>(with.sent), isWhole ? "the sender's" : "ANOTHER", growth);
    return isWhole ? 0 : 1;
}
