#include "jobbench.h"

#include <QtTest>

/// What ends a recording, and in which order its files are then.
class TestRecordingEnds : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatCannotBeMadeEndsIt();
    void aFailedWriteEndsIt();
    void aFailedSyncEndsIt();
    void aDiskThatFillsUpEndsItInGoodOrder();
    void aFullDiskLetsNothingBegin();
    void aDiskThatDoesNotTellIsEnough();
    void aFileThatIsGoneEndsIt();
    void nothingIsTakenAfterTheEnd();
};

void TestRecordingEnds::aFileThatCannotBeMadeEndsIt()
{
    JobBench bench;
    bench.sink.refusesFiles = true;
    RecordingJob job(bench.plan, bench.sink);
    QVERIFY(!job.begin(sampleTime()));
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString("no luck"));
    QCOMPARE(bench.sink.writes, 0);
}

void TestRecordingEnds::aFailedWriteEndsIt()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.take(frameAt(0));
    job.pass(sampleTime(1));
    const QByteArray written = bench.sink.files.first();
    bench.sink.takesNothing = true;
    job.take(frameAt(2));
    job.pass(sampleTime(3));
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString("no luck"));
    QCOMPARE(job.status().bytes, qint64(written.size()));
    QVERIFY(!bench.sink.isOpen);
    job.take(frameAt(4));
    job.pass(sampleTime(5));
    job.end(sampleTime(6));
    QCOMPARE(bench.sink.files.first(), written);
}

void TestRecordingEnds::aFailedSyncEndsIt()
{
    JobBench bench;
    bench.sink.failsToSync = true;
    RecordingJob &job = bench.begun();
    job.pass(sampleTime(5 * usPerSecond));
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString("no luck"));
}

void TestRecordingEnds::aDiskThatFillsUpEndsItInGoodOrder()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.take(frameAt(0));
    bench.sink.free = 200LL * 1024 * 1024;
    job.pass(sampleTime(usPerSecond));
    QVERIFY(job.status().isRunning);
    bench.sink.free = 200LL * 1024 * 1024 - 1;
    job.pass(sampleTime(2 * usPerSecond - 1));
    QVERIFY(job.status().isRunning);
    job.pass(sampleTime(2 * usPerSecond));
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString("the disk is nearly full"));
    const ReadFile read = bench.sink.read(0);
    QCOMPARE(read.events.size(), 1);
    QVERIFY(read.hasTail);
    QCOMPARE(read.tail.reason, QString("the disk is nearly full"));
}

void TestRecordingEnds::aFullDiskLetsNothingBegin()
{
    JobBench bench;
    bench.sink.free = 1000;
    const RecordingJob &job = bench.begun();
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString("the disk is nearly full"));
    QVERIFY(!bench.sink.isOpen);
}

void TestRecordingEnds::aDiskThatDoesNotTellIsEnough()
{
    JobBench bench;
    bench.sink.free.reset();
    RecordingJob &job = bench.begun();
    job.pass(sampleTime(usPerSecond));
    QVERIFY(job.status().isRunning);
}

void TestRecordingEnds::aFileThatIsGoneEndsIt()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    bench.sink.isGone = true;
    job.pass(sampleTime(usPerSecond));
    QVERIFY(!job.status().isRunning);
    QCOMPARE(job.status().error, QString("the file is gone"));
}

void TestRecordingEnds::nothingIsTakenAfterTheEnd()
{
    JobBench bench;
    RecordingJob &job = bench.begun();
    job.end(sampleTime(1));
    const QByteArray file = bench.sink.files.first();
    job.take(frameAt(2));
    job.pass(sampleTime(toMidnight));
    job.end(sampleTime(toMidnight));
    QCOMPARE(bench.sink.files.size(), 1);
    QCOMPARE(bench.sink.files.first(), file);
}

QTEST_APPLESS_MAIN(TestRecordingEnds)
#include "tst_recordingends.moc"
