#include "devicetalk.h"
#include "recordingsamples.h"
#include "simulator/playscript.h"
#include "testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

/// The simulated device answers from a recording.
class TestPlayScript : public QObject
{
    Q_OBJECT

private slots:
    void repliesFollowTheirRequest();
    void requestsAreLookedUpInOrder();
    void requestsAreFoundWhereverTheyAreCut();
    void whatWasNeverSentIsPassedOver();
    void anEmptyRecordingAnswersNothing();
    void theDeviceAnswersInRecordedTime();
    void theDeviceTellsWhatItCannotRead();
};

namespace {

using EventKind = RecordEvent::Kind;

/// Twice the same request with different replies, then another one with two replies.
QVector<RecordEvent> playedEvents()
{
    return {sampleEvent(EventKind::Stray, "EE", 0),
            sampleEvent(EventKind::Sent, "5AA50101", 1000),
            sampleEvent(EventKind::Received, "A1", 3000),
            sampleEvent(EventKind::Note, "", 3500),
            sampleEvent(EventKind::Sent, "5AA50101", 4000),
            sampleEvent(EventKind::Received, "A2", 5000),
            sampleEvent(EventKind::Sent, "5AA50202", 6000),
            sampleEvent(EventKind::Received, "B1", 7000),
            sampleEvent(EventKind::Received, "B2", 306000)};
}

QByteArray bytesOfAll(const QVector<QVector<PlayScript::Reply>> &answers)
{
    QByteArray bytes;
    for (const QVector<PlayScript::Reply> &replies : answers) {
        for (const PlayScript::Reply &reply : replies) {
            bytes += reply.bytes;
        }
    }
    return bytes.toHex();
}

} // namespace

void TestPlayScript::repliesFollowTheirRequest()
{
    PlayScript script(playedEvents());
    QCOMPARE(script.requestCount(), 3);
    QCOMPARE(script.opening().size(), 1);
    QCOMPARE(script.opening().at(0).delayNs, qint64(0));
    const auto answers = script.take(hex("5AA50202"));
    QCOMPARE(answers.size(), 1);
    QCOMPARE(answers.at(0).size(), 2);
    QCOMPARE(answers.at(0).at(0).delayNs, qint64(1000000));
    QCOMPARE(answers.at(0).at(1).delayNs, qint64(300000000));
    QCOMPARE(bytesOfAll(answers), QByteArray("b1b2"));
}

void TestPlayScript::requestsAreLookedUpInOrder()
{
    PlayScript script(playedEvents());
    QCOMPARE(bytesOfAll(script.take(hex("5AA50101"))), QByteArray("a1"));
    QCOMPARE(bytesOfAll(script.take(hex("5AA50101"))), QByteArray("a2"));
    QCOMPARE(bytesOfAll(script.take(hex("5AA50101"))), QByteArray("a1"));
    QCOMPARE(bytesOfAll(script.take(hex("5AA50202 5AA50101"))), QByteArray("b1b2a1"));
}

void TestPlayScript::requestsAreFoundWhereverTheyAreCut()
{
    PlayScript script(playedEvents());
    QByteArray answers;
    for (const char byte : hex("5AA50101 5AA50101 5AA50202")) {
        answers += bytesOfAll(script.take(QByteArray(1, byte)));
    }
    QCOMPARE(answers, QByteArray("a1a2b1b2"));
}

void TestPlayScript::whatWasNeverSentIsPassedOver()
{
    PlayScript script(playedEvents());
    QVERIFY(script.take(hex("00 5AA50303 5AA5")).isEmpty());
    QCOMPARE(bytesOfAll(script.take(hex("0101"))), QByteArray("a1"));
}

void TestPlayScript::anEmptyRecordingAnswersNothing()
{
    PlayScript script;
    QVERIFY(script.take(hex("5AA50101")).isEmpty());
    QVERIFY(script.opening().isEmpty());
}

void TestPlayScript::theDeviceAnswersInRecordedTime()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("run.jsonl");
    writeFile(path, sampleFile(RecordingFormat::JsonLines, playedEvents()));
    for (const QString &speed : {QString("1"), QString("100000")}) {
        RunningDevice device;
        QVERIFY(device.start({"--play", path, "--speed", speed}));
        QCOMPARE(device.read(1), hex("EE"));
        device.write(hex("5AA50101"));
        QCOMPARE(device.read(1), hex("A1"));
        device.write(hex("5AA50101"));
        QCOMPARE(device.read(1), hex("A2"));
        QElapsedTimer clock;
        clock.start();
        device.write(hex("5AA50202"));
        QCOMPARE(device.read(2), hex("B1B2"));
        QVERIFY(speed != "1" || clock.elapsed() >= 290);
    }
}

void TestPlayScript::theDeviceTellsWhatItCannotRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("run.jsonl");
    writeFile(path, "hello\n");
    for (const QString &file : {path, folder.filePath("missing")}) {
        RunningDevice device;
        QVERIFY(!device.startOnly({"--play", file}));
        QTRY_COMPARE(device.process().state(), QProcess::NotRunning);
        QCOMPARE(device.process().exitCode(), 1);
    }
}

QTEST_GUILESS_MAIN(TestPlayScript)
#include "tst_playscript.moc"
