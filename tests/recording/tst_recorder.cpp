#include "recording/recorder.h"
#include "recordingsamples.h"
#include "testfiles.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestRecorder : public QObject
{
    Q_OBJECT

private slots:
    void eventsComeIntoTheFile();
    void itIsOnTheDiskWhileItRuns();
    void stoppingDoesNotWait();
    void theEndOfTheRecorderClosesTheFile();
    void anotherRecordingEndsTheOneBefore();
    void withoutARecordingNothingHappens();
    void aMissingFolderIsTold();
    void manyEventsComeInWithoutLoss();
};

namespace {

RecordingPlan planIn(const QTemporaryDir &folder, const QString &name = "run.jsonl")
{
    RecordingPlan plan;
    plan.path = folder.filePath(name);
    plan.head = sampleHead();
    plan.limits.freeBytes = 0;
    // Whatever the day is, it is that of the samples.
    plan.limits.localTime = [](qint64 /*utcUs*/) { return QDateTime(QDate(2026, 11, 21), {}); };
    return plan;
}

} // namespace

void TestRecorder::eventsComeIntoTheFile()
{
    const QTemporaryDir folder;
    Recorder recorder;
    QSignalSpy ended(&recorder, &Recorder::ended);
    recorder.start(planIn(folder));
    QVERIFY(recorder.isRecording());
    for (const RecordEvent &event : sampleEvents()) {
        recorder.record(event);
    }
    recorder.stop();
    QVERIFY(!recorder.isRecording());
    recorder.record(sampleEvents().first());
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(recorder.status().error, QString());
    QCOMPARE(recorder.status().events, qint64(sampleEvents().size()));
    const ReadFile read = readPath(folder.filePath("run.jsonl"));
    QVERIFY(areSame(read.events, sampleEvents()));
    QVERIFY(read.hasTail);
}

void TestRecorder::itIsOnTheDiskWhileItRuns()
{
    const QTemporaryDir folder;
    Recorder recorder;
    QSignalSpy changed(&recorder, &Recorder::changed);
    recorder.start(planIn(folder));
    recorder.record(sampleEvents().at(1));
    QTRY_COMPARE(readPath(folder.filePath("run.jsonl")).events.size(), 1);
    QTRY_VERIFY(recorder.status().events == 1);
    QVERIFY(recorder.status().isRunning);
    QVERIFY(!changed.isEmpty());
}

void TestRecorder::stoppingDoesNotWait()
{
    const QTemporaryDir folder;
    Recorder recorder;
    QSignalSpy ended(&recorder, &Recorder::ended);
    recorder.start(planIn(folder));
    recorder.stop();
    recorder.stop();
    QCOMPARE(ended.count(), 0);
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(readPath(folder.filePath("run.jsonl")).hasTail);
    recorder.stop();
    QVERIFY(recorder.finish());
    QCOMPARE(ended.count(), 1);
}

void TestRecorder::theEndOfTheRecorderClosesTheFile()
{
    const QTemporaryDir folder;
    {
        Recorder recorder;
        recorder.start(planIn(folder, "run.pcapng"));
        recorder.record(sampleEvents().at(1));
    }
    const ReadFile read = readPath(folder.filePath("run.pcapng"));
    QCOMPARE(read.events.size(), 1);
    QVERIFY(read.hasTail);
}

void TestRecorder::anotherRecordingEndsTheOneBefore()
{
    const QTemporaryDir folder;
    Recorder recorder;
    recorder.start(planIn(folder));
    recorder.record(sampleEvents().at(1));
    recorder.start(planIn(folder));
    recorder.record(sampleEvents().at(2));
    QVERIFY(recorder.finish());
    QCOMPARE(recorder.status().path, folder.filePath("run-002.jsonl"));
    QVERIFY(areSame(readPath(folder.filePath("run.jsonl")).events, {sampleEvents().at(1)}));
    QVERIFY(areSame(readPath(folder.filePath("run-002.jsonl")).events, {sampleEvents().at(2)}));
}

void TestRecorder::withoutARecordingNothingHappens()
{
    Recorder recorder;
    QSignalSpy changed(&recorder, &Recorder::changed);
    recorder.record(sampleEvents().first());
    recorder.stop();
    QVERIFY(recorder.finish());
    QVERIFY(changed.isEmpty());
    QVERIFY(!recorder.isRecording());
}

void TestRecorder::aMissingFolderIsTold()
{
    const QTemporaryDir folder;
    Recorder recorder;
    QSignalSpy ended(&recorder, &Recorder::ended);
    recorder.start(planIn(folder, "missing/run.jsonl"));
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(!recorder.isRecording());
    QVERIFY(!recorder.status().error.isEmpty());
}

void TestRecorder::manyEventsComeInWithoutLoss()
{
    const QTemporaryDir folder;
    Recorder recorder;
    recorder.start(planIn(folder));
    constexpr int count = 30000;
    for (int i = 0; i < count; ++i) {
        RecordEvent event = sampleEvent(RecordEvent::Kind::Received, "5AA50142", i);
        event.row = i;
        recorder.record(event);
    }
    QVERIFY(recorder.finish(60000));
    const ReadFile read = readPath(folder.filePath("run.jsonl"));
    QCOMPARE(read.events.size(), count);
    QVERIFY(
        std::is_sorted(read.events.begin(), read.events.end(),
                       [](const RecordEvent &a, const RecordEvent &b) { return a.row < b.row; }));
    QCOMPARE(read.tail.file.received.frames, qint64(count));
    QCOMPARE(recorder.status().droppedEvents, qint64(0));
}

QTEST_GUILESS_MAIN(TestRecorder)
#include "tst_recorder.moc"
