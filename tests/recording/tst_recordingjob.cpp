#include "jobbench.h"

#include <QtTest>

class TestRecordingJob : public QObject
{
    Q_OBJECT

private slots:
    void aRecordingIsWhole();
    void whatWaitsIsWrittenAtEachPass();
    void muchIsWrittenAtOnce();
    void theFileIsSyncedEveryFiveSeconds();
    void aFullFileIsFollowedByTheNext();
    void midnightBeginsAFile();
    void anEventOfTheNextDayBeginsAFile();
    void aClockThatIsSetBackBeginsNoFile();
    void theNextFileTellsTheLinkOfItsTime();
    void nothingIsOverwritten();
    void dropsAreNotedInTheFile();
};

void TestRecordingJob::aRecordingIsWhole()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    for (const RecordEvent &event : sampleEvents()) {
        job.take(event);
    }
    job.end(sampleTime(6000));
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString());
    QCOMPARE(job.status().events, qint64(6));
    QCOMPARE(job.status().bytes, qint64(bench.sink.files.first().size()));
    QVERIFY(!bench.sink.isOpen);
    QCOMPARE(bench.sink.syncs, 1);
    const ReadFile read = bench.sink.read(0);
    QVERIFY(areSame(read.events, sampleEvents()));
    QVERIFY(read.hasTail);
    QCOMPARE(read.tail.file.sent.bytes, qint64(11));
    QCOMPARE(read.tail.recording.received.stray, qint64(1));
}

void TestRecordingJob::whatWaitsIsWrittenAtEachPass()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    const int writes = bench.sink.writes;
    job.take(frameAt(0));
    job.take(frameAt(1));
    QCOMPARE(bench.sink.writes, writes);
    job.pass(sampleTime(100000));
    QCOMPARE(bench.sink.writes, writes + 1);
    QCOMPARE(bench.sink.read(0).events.size(), 2);
    job.pass(sampleTime(200000));
    QCOMPARE(bench.sink.writes, writes + 1);
}

void TestRecordingJob::muchIsWrittenAtOnce()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    const int writes = bench.sink.writes;
    while (bench.sink.writes == writes) {
        job.take(frameAt(0));
    }
    const int size = bench.sink.files.first().size();
    QVERIFY(size > 64 * 1024);
    QVERIFY(size < 65 * 1024);
}

void TestRecordingJob::theFileIsSyncedEveryFiveSeconds()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.pass(sampleTime(4999999));
    QCOMPARE(bench.sink.syncs, 0);
    job.pass(sampleTime(5000000));
    QCOMPARE(bench.sink.syncs, 1);
    job.pass(sampleTime(9000000));
    QCOMPARE(bench.sink.syncs, 1);
    job.pass(sampleTime(10000000));
    QCOMPARE(bench.sink.syncs, 2);
}

void TestRecordingJob::aFullFileIsFollowedByTheNext()
{
    JobBench bench;
    bench.plan.limits.fileBytes = 2000;
    RecordingJob &job = bench.begun();
    constexpr int count = 100;
    for (int i = 0; i < count; ++i) {
        job.take(frameAt(i));
    }
    job.end(sampleTime(count));
    QVERIFY(bench.sink.names.size() > 3);
    QCOMPARE(bench.sink.names.at(1), QString("/a/run-002.jsonl"));
    QCOMPARE(bench.sink.names.at(2), QString("/a/run-003.jsonl"));
    int events = 0;
    for (int i = 0; i < bench.sink.names.size(); ++i) {
        const ReadFile read = bench.sink.read(i);
        QVERIFY(read.hasTail);
        QCOMPARE(read.head.part, i + 1);
        QCOMPARE(read.tail.file.received.frames, qint64(read.events.size()));
        events += read.events.size();
        QCOMPARE(read.tail.recording.received.frames, qint64(events));
        const bool isLast = i + 1 == bench.sink.names.size();
        QCOMPARE(read.tail.reason, isLast ? QString("stopped") : QString("the file is full"));
    }
    QCOMPARE(events, count);
    const QByteArray all = QByteArray::fromHex("5AA50142").repeated(count);
    QCOMPARE(bench.sink.read(bench.sink.names.size() - 1).tail.recording.received.sha256,
             QCryptographicHash::hash(all, QCryptographicHash::Sha256).toHex());
}

void TestRecordingJob::midnightBeginsAFile()
{
    JobBench bench("/a/tarnwick-20261121-214401-ttyUSB0-001.jsonl");
    RecordingJob &job = bench.begun();
    job.pass(sampleTime(toMidnight - 1));
    QCOMPARE(bench.sink.names.size(), 1);
    job.pass(sampleTime(toMidnight));
    QCOMPARE(bench.sink.names.size(), 2);
    QCOMPARE(bench.sink.names.at(1), QString("/a/tarnwick-20261122-000000-ttyUSB0-002.jsonl"));
    QCOMPARE(bench.sink.read(0).tail.reason, QString("midnight"));
    job.pass(sampleTime(toMidnight + 1));
    QCOMPARE(bench.sink.names.size(), 2);
    QVERIFY(job.status().isRunning);
    QCOMPARE(job.status().path, bench.sink.names.at(1));
}

void TestRecordingJob::anEventOfTheNextDayBeginsAFile()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.take(frameAt(toMidnight - 1));
    job.take(frameAt(toMidnight));
    // It happened before midnight, and comes behind one that did not.
    job.take(frameAt(toMidnight - 1));
    job.pass(sampleTime(toMidnight + 1));
    QCOMPARE(bench.sink.names.size(), 2);
    QCOMPARE(bench.sink.read(0).events.size(), 1);
    QCOMPARE(bench.sink.read(1).events.size(), 2);
}

void TestRecordingJob::aClockThatIsSetBackBeginsNoFile()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.take(frameAt(-secondsPerDay * usPerSecond));
    job.pass(sampleTime(-secondsPerDay * usPerSecond));
    QCOMPARE(bench.sink.names.size(), 1);
    QCOMPARE(bench.sink.read(0).events.size(), 1);
}

void TestRecordingJob::theNextFileTellsTheLinkOfItsTime()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    RecordEvent open = sampleEvent(RecordEvent::Kind::Open);
    open.link = "hidraw3";
    open.settings = "64 bytes";
    job.take(open);
    job.take(frameAt(toMidnight));
    job.end(sampleTime(toMidnight + 1));
    QCOMPARE(bench.sink.read(0).head.link, QString("/dev/ttyUSB0"));
    QCOMPARE(bench.sink.read(1).head.link, QString("hidraw3"));
    QCOMPARE(bench.sink.read(1).head.settings, QString("64 bytes"));
}

void TestRecordingJob::nothingIsOverwritten()
{
    JobBench bench;
    bench.sink.files = {{"/a/run.jsonl", "mine"}, {"/a/run-002.jsonl", "too"}};
    RecordingJob &job = bench.begun();
    job.end(sampleTime(1));
    QCOMPARE(bench.sink.names, QStringList{"/a/run-003.jsonl"});
    QCOMPARE(job.status().path, QString("/a/run-003.jsonl"));
    QCOMPARE(bench.sink.files.value("/a/run.jsonl"), QByteArray("mine"));
    QCOMPARE(bench.sink.files.value("/a/run-002.jsonl"), QByteArray("too"));
}

void TestRecordingJob::dropsAreNotedInTheFile()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.noteDropped(7, 90, sampleTime(1));
    job.noteDropped(1, 10, sampleTime(2));
    job.end(sampleTime(3));
    const ReadFile read = bench.sink.read(0);
    QCOMPARE(read.events.size(), 2);
    QCOMPARE(read.events.at(0).kind, RecordEvent::Kind::Note);
    QCOMPARE(read.events.at(0).text,
             QString("7 events with 90 bytes dropped: the disk is too slow"));
    QCOMPARE(read.tail.droppedEvents, qint64(8));
    QCOMPARE(read.tail.droppedBytes, qint64(100));
    QCOMPARE(job.status().droppedBytes, qint64(100));
}

QTEST_APPLESS_MAIN(TestRecordingJob)
#include "tst_recordingjob.moc"
