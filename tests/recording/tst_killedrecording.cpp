#include "frames/timeunits.h"
#include "recordingsamples.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

/// A program that is killed while it records.
class TestKilledRecording : public QObject
{
    Q_OBJECT

private slots:
    void theFileMissesAtMostItsLastSecond_data();
    void theFileMissesAtMostItsLastSecond();
};

void TestKilledRecording::theFileMissesAtMostItsLastSecond_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("ms");

    QRandomGenerator random(20261122);
    for (int i = 0; i < 24; ++i) {
        const QString name = i % 2 == 0 ? "run.jsonl" : "run.pcapng";
        QTest::addRow("%d", i) << name << random.bounded(400);
    }
}

void TestKilledRecording::theFileMissesAtMostItsLastSecond()
{
    QFETCH(QString, name);
    QFETCH(int, ms);
    const QTemporaryDir folder;
    QProcess program;
    program.start(RECORDFLOOD, {folder.filePath(name)});
    QVERIFY(program.waitForReadyRead());
    constexpr qint64 mostOfItsHead = 1000;
    QTRY_VERIFY(QFileInfo(folder.filePath(name)).size() > mostOfItsHead);
    // The moment is what is tried here.
    QTest::qWait(ms);
    const ArrivalTime killed = ArrivalTime::now();
    program.kill();
    QVERIFY(program.waitForFinished());
    const ReadFile read = readPath(folder.filePath(name));
    QCOMPARE(read.error, QString());
    QVERIFY(!read.hasTail);
    QVERIFY(!read.events.isEmpty());
    for (int i = 0; i < read.events.size(); ++i) {
        QCOMPARE(read.events.at(i).row, i + 1);
    }
    QVERIFY(killed.monotonicNs - read.events.last().time.monotonicNs < nsPerSecond);
}

QTEST_GUILESS_MAIN(TestKilledRecording)
#include "tst_killedrecording.moc"
