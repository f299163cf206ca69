#include "app/recordingtexts.h"
#include "recording/csvexport.h"
#include "recording/recordingjob.h"

#include <QtTest>

/// What the user reads of a recording and of its export.
class TestRecordingTexts : public QObject
{
    Q_OBJECT

private slots:
    void howFarARecordingIs_data();
    void howFarARecordingIs();
    void sizes_data();
    void sizes();
    void whyItStopped();
    void whatCameOfAnExport_data();
    void whatCameOfAnExport();
};

void TestRecordingTexts::howFarARecordingIs_data()
{
    QTest::addColumn<bool>("isRecording");
    QTest::addColumn<QString>("error");
    QTest::addColumn<qint64>("dropped");
    QTest::addColumn<qint64>("events");
    QTest::addColumn<QString>("text");

    QTest::newRow("one event") << true << "" << qint64(0) << qint64(1) << "1.5 kB, 1 event";
    QTest::newRow("running") << true << "" << qint64(0) << qint64(20) << "1.5 kB, 20 events";
    QTest::newRow("over") << false << "" << qint64(0) << qint64(2) << "Recorded, 1.5 kB, 2 events";
    QTest::newRow("one dropped") << true << "" << qint64(1) << qint64(0)
                                 << "1 event dropped, 1.5 kB, 0 events";
    QTest::newRow("stopped with losses") << false << "the disk is full" << qint64(7) << qint64(20)
                                         << "Stopped: the disk is full, 7 events dropped, 1.5 kB, "
                                            "20 events";
}

void TestRecordingTexts::howFarARecordingIs()
{
    QFETCH(bool, isRecording);
    QFETCH(QString, error);
    QFETCH(qint64, dropped);
    QFETCH(qint64, events);
    RecordingStatus status;
    status.error = error;
    status.droppedEvents = dropped;
    status.events = events;
    status.bytes = 1536;
    QTEST(describeRecording(status, isRecording), "text");
}

void TestRecordingTexts::sizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << qint64(0) << "0 bytes, 0 events";
    QTest::newRow("few") << qint64(1023) << "1023 bytes, 0 events";
    QTest::newRow("a kilobyte") << qint64(1024) << "1.0 kB, 0 events";
    QTest::newRow("more") << qint64(3 << 20) << "3.0 MB, 0 events";
}

void TestRecordingTexts::sizes()
{
    QFETCH(qint64, bytes);
    RecordingStatus status;
    status.bytes = bytes;
    QTEST(describeRecording(status, true), "text");
}

void TestRecordingTexts::whyItStopped()
{
    RecordingStatus status;
    status.path = "/folder/a.jsonl";
    status.error = "the disk is full";
    QCOMPARE(whyRecordingStopped(status),
             QString("The recording a.jsonl has stopped: the disk is full."));
}

void TestRecordingTexts::whatCameOfAnExport_data()
{
    QTest::addColumn<int>("events");
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("isTorn");
    QTest::addColumn<QString>("text");

    QTest::newRow("one") << 1 << "" << false << "1 event exported to a.csv.";
    QTest::newRow("more") << 3 << "" << false << "3 events exported to a.csv.";
    QTest::newRow("cut off") << 3 << "" << true
                             << "3 events exported to a.csv. The recording was cut off within its "
                                "last event.";
    QTest::newRow("failed") << 0 << "no permission" << false
                            << "a.csv was not exported: no permission.";
}

void TestRecordingTexts::whatCameOfAnExport()
{
    QFETCH(int, events);
    QFETCH(QString, error);
    QFETCH(bool, isTorn);
    CsvExport outcome;
    outcome.events = events;
    outcome.error = error;
    outcome.isTorn = isTorn;
    QTEST(describeExport(outcome, "/folder/a.csv"), "text");
}

QTEST_APPLESS_MAIN(TestRecordingTexts)
#include "tst_recordingtexts.moc"
