#include "recording/recorder.h"
#include "recordingsamples.h"
#include "testfiles.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

/// A recording on a disk that is full, fills up, is slow, or loses the folder.
class TestFailingDisk : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatMayNotGrowEndsIt();
    void aFullFileSystemEndsIt();
    void aFileSystemThatFillsUpEndsItInGoodOrder();
    void aSlowDiskHoldsUpNobody();
    void aFolderThatGoesIsTold();
};

namespace {

/// Lets no file grow beyond a size.
class GrowthLimit
{
public:
    explicit GrowthLimit(rlim_t bytes)
        : m_formerHandler(signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~GrowthLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        signal(SIGXFSZ, m_formerHandler);
    }
    GrowthLimit(const GrowthLimit &) = delete;
    GrowthLimit &operator=(const GrowthLimit &) = delete;

private:
    sighandler_t m_formerHandler;
    rlimit m_former{};
};

/// A file system of one megabyte.
class SmallFileSystem
{
public:
    SmallFileSystem()
        : m_isMounted(mount("tmpfs", qPrintable(path()), "tmpfs", 0, "size=1m") == 0)
    {}
    ~SmallFileSystem()
    {
        if (m_isMounted) {
            umount2(qPrintable(path()), MNT_DETACH);
        }
    }
    SmallFileSystem(const SmallFileSystem &) = delete;
    SmallFileSystem &operator=(const SmallFileSystem &) = delete;

    bool isMounted() const { return m_isMounted; }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    bool m_isMounted;
};

/// A sink whose writes wait until they are let through.
class HeldSink : public RecordingSink
{
public:
    HeldSink(QSemaphore &gate, QByteArray &file)
        : m_gate(gate)
        , m_file(file)
    {}

    Created create(const QString & /*path*/) override { return Created::Yes; }
    bool write(const QByteArray &bytes) override
    {
        m_gate.acquire();
        m_gate.release();
        m_file += bytes;
        return true;
    }
    bool sync() override { return true; }
    bool isThere() const override { return true; }
    std::optional<qint64> freeBytes() const override { return std::nullopt; }
    void close() override {}
    QString error() const override { return {}; }

private:
    QSemaphore &m_gate;
    QByteArray &m_file;
};

RecordingPlan planOnDisk(const QString &folder, qint64 freeBytes = 0)
{
    RecordingPlan plan;
    plan.path = folder + "/run.jsonl";
    plan.head = sampleHead();
    plan.limits.freeBytes = freeBytes;
    plan.limits.lookMs = 1;
    plan.limits.localTime = [](qint64 /*utcUs*/) { return QDateTime(QDate(2026, 11, 21), {}); };
    return plan;
}

RecordEvent largeEvent(int row)
{
    RecordEvent event = sampleEvent(RecordEvent::Kind::Received);
    event.bytes = QByteArray(1000, 'x');
    event.row = row;
    return event;
}

/// Records until the recording ends by itself; false if it never does. Less waits for the disk than
/// a recording leaves free on it.
bool recordToTheEnd(Recorder &recorder, const RecordingPlan &plan)
{
    constexpr int mostEvents = 4000;
    constexpr int mostThatWait = 100;
    recorder.start(plan);
    for (int i = 0; i < mostEvents && recorder.isRecording(); ++i) {
        recorder.record(largeEvent(i));
        const bool hasCaughtUp = QTest::qWaitFor([&recorder, i] {
            return !recorder.isRecording() || recorder.status().events > i - mostThatWait;
        });
        if (!hasCaughtUp) {
            return false;
        }
    }
    return QTest::qWaitFor([&recorder] { return !recorder.isRecording(); });
}

bool areInOrder(const QVector<RecordEvent> &events)
{
    for (int i = 0; i < events.size(); ++i) {
        if (events.at(i).row != i) {
            return false;
        }
    }
    return true;
}

} // namespace

void TestFailingDisk::aFileThatMayNotGrowEndsIt()
{
    const QTemporaryDir folder;
    Recorder recorder;
    {
        const GrowthLimit limit(100000);
        QVERIFY(recordToTheEnd(recorder, planOnDisk(folder.path())));
    }
    QVERIFY(!recorder.status().error.isEmpty());
    const ReadFile read = readPath(folder.filePath("run.jsonl"));
    QCOMPARE(read.error, QString());
    QVERIFY(!read.hasTail);
    QVERIFY(read.events.size() > 20);
    QVERIFY(areInOrder(read.events));
}

void TestFailingDisk::aFullFileSystemEndsIt()
{
    const SmallFileSystem disk;
    if (!disk.isMounted()) {
        QSKIP("only root can make a file system");
    }
    Recorder recorder;
    QVERIFY(recordToTheEnd(recorder, planOnDisk(disk.path())));
    QVERIFY2(recorder.status().error.contains("space"), qPrintable(recorder.status().error));
    const ReadFile read = readPath(disk.path() + "/run.jsonl");
    QCOMPARE(read.error, QString());
    QVERIFY(read.events.size() > 200);
    QVERIFY(areInOrder(read.events));
}

void TestFailingDisk::aFileSystemThatFillsUpEndsItInGoodOrder()
{
    const SmallFileSystem disk;
    if (!disk.isMounted()) {
        QSKIP("only root can make a file system");
    }
    Recorder recorder;
    constexpr qint64 half = qint64(512) * 1024;
    QVERIFY(recordToTheEnd(recorder, planOnDisk(disk.path(), half)));
    QCOMPARE(recorder.status().error, QString("the disk is nearly full"));
    const ReadFile read = readPath(disk.path() + "/run.jsonl");
    QVERIFY(read.hasTail);
    QCOMPARE(read.tail.reason, QString("the disk is nearly full"));
    QVERIFY(areInOrder(read.events));
}

void TestFailingDisk::aSlowDiskHoldsUpNobody()
{
    QSemaphore gate;
    QByteArray file;
    Recorder recorder([&] { return std::make_unique<HeldSink>(gate, file); });
    recorder.start(planOnDisk("/nowhere"));
    // Nothing gets through, and yet this comes to its end.
    constexpr int count = 20000;
    for (int i = 0; i < count; ++i) {
        recorder.record(largeEvent(i));
    }
    QVERIFY(recorder.isRecording());
    gate.release();
    QVERIFY(recorder.finish(60000));
    const ReadFile read = readBytes(file);
    QVERIFY(read.hasTail);
    const qint64 dropped = recorder.status().droppedEvents;
    QVERIFY(dropped > count / 2);
    QCOMPARE(recorder.status().droppedBytes, dropped * 1000);
    QCOMPARE(read.tail.file.received.frames, count - dropped);
    QCOMPARE(read.tail.droppedEvents, dropped);
    QVERIFY(read.events.last().text.startsWith(QString("%1 events with").arg(dropped)));
}

void TestFailingDisk::aFolderThatGoesIsTold()
{
    QTemporaryDir folder;
    Recorder recorder;
    QSignalSpy ended(&recorder, &Recorder::ended);
    recorder.start(planOnDisk(folder.path()));
    recorder.record(largeEvent(0));
    QTRY_COMPARE(filesIn(folder.path()).size(), 1);
    QVERIFY(folder.remove());
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(recorder.status().error, QString("the file is gone"));
    QVERIFY(!recorder.isRecording());
}

QTEST_GUILESS_MAIN(TestFailingDisk)
#include "tst_failingdisk.moc"
