#include "log/recordlog.h"

#include <QtTest>

class TestRecordLog : public QObject
{
    Q_OBJECT

private slots:
    void recordsHoldWhatHappened();
    void eventsTakeNoNumber();
    void aFullLogStartsOver();
    void anEventStartsAFullLogOver();
    void clearing();
    void recordsCarryTheTimeOfTheirClock();
    void aTimeThatIsKnownIsKept();
    void theSystemsClocksAreTheUsualOnes();
    void listenersHearOfEachRecordInOrder();
    void aListenerMayClearTheLog();
};

namespace {

using Kind = LogRecord::Kind;

const QByteArray recordedFrame = QByteArray::fromHex("5AA503010203");

void fill(RecordLog &log, int records)
{
    for (int i = 0; i < records; ++i) {
        log.appendSent(recordedFrame, true);
    }
}

/// What a log tells, in order: a record's number, "cleared" or "started over".
class HeardRecords : public QObject
{
public:
    explicit HeardRecords(RecordLog &log)
    {
        connect(&log, &RecordLog::appended, this,
                [this](const LogRecord &record) { told << QString::number(record.number); });
        connect(&log, &RecordLog::cleared, this, [this] { told << "cleared"; });
        connect(&log, &RecordLog::startedOver, this, [this] { told << "started over"; });
    }

    QStringList told;
};

} // namespace

void TestRecordLog::recordsHoldWhatHappened()
{
    RecordLog log;
    log.appendSent(recordedFrame, true);
    log.appendReceived(recordedFrame, false);
    log.appendStray("x");
    log.appendEvent("HID", "Insert y");
    QCOMPARE(log.count(), 4);

    const LogRecord sent = log.records().at(0);
    QCOMPARE(sent.kind, Kind::Sent);
    QCOMPARE(sent.bytes, recordedFrame);
    QVERIFY(sent.withCrc);

    const LogRecord received = log.records().at(1);
    QCOMPARE(received.kind, Kind::Received);
    QCOMPARE(received.bytes, recordedFrame);
    QVERIFY(!received.withCrc);

    const LogRecord stray = log.records().at(2);
    QCOMPARE(stray.kind, Kind::Stray);
    QCOMPARE(stray.bytes, QByteArray("x"));

    const LogRecord event = log.records().at(3);
    QCOMPARE(event.kind, Kind::Event);
    QCOMPARE(event.source, QString("HID"));
    QCOMPARE(event.text.english, QString("Insert y"));
    QCOMPARE(event.bytes, QByteArray());
}

void TestRecordLog::eventsTakeNoNumber()
{
    RecordLog log;
    const HeardRecords heard(log);
    log.appendSent(recordedFrame, true);
    log.appendEvent("HID", "Insert y");
    log.appendReceived(recordedFrame, true);
    log.appendStray("x");
    QCOMPARE(heard.told, QStringList({"1", "0", "2", "3"}));
}

void TestRecordLog::aFullLogStartsOver()
{
    RecordLog log;
    fill(log, 1025);
    QCOMPARE(log.count(), 1025);
    QCOMPARE(log.records().last().number, 1025);
    const HeardRecords heard(log);
    log.appendReceived(recordedFrame, true);
    QCOMPARE(heard.told, QStringList({"started over", "1"}));
    QCOMPARE(log.count(), 1);
    QCOMPARE(log.records().first().kind, Kind::Received);
}

void TestRecordLog::anEventStartsAFullLogOver()
{
    RecordLog log;
    fill(log, 1024);
    log.appendEvent("Uart", "Remove x");
    QCOMPARE(log.count(), 1025);
    const HeardRecords heard(log);
    log.appendEvent("Uart", "Insert x");
    log.appendSent(recordedFrame, true);
    QCOMPARE(heard.told, QStringList({"started over", "0", "1"}));
    QCOMPARE(log.count(), 2);
}

void TestRecordLog::clearing()
{
    RecordLog log;
    fill(log, 3);
    const HeardRecords heard(log);
    log.clear();
    QCOMPARE(log.count(), 0);
    log.appendSent(recordedFrame, true);
    QCOMPARE(heard.told, QStringList({"cleared", "1"}));
}

void TestRecordLog::recordsCarryTheTimeOfTheirClock()
{
    ArrivalTime now{1000, 50};
    RecordLog log([&now] { return now; });
    log.appendSent(recordedFrame, true);
    now = {2000, 60};
    log.appendEvent("HID", "Insert y");
    QCOMPARE(log.records().at(0).utcUs, qint64(1000));
    QCOMPARE(log.records().at(0).monotonicNs, qint64(50));
    QCOMPARE(log.records().at(1).utcUs, qint64(2000));
    QCOMPARE(log.records().at(1).monotonicNs, qint64(60));
}

void TestRecordLog::aTimeThatIsKnownIsKept()
{
    const ArrivalTime known{700, 30};
    RecordLog log([] { return ArrivalTime{1000, 50}; });
    log.appendSent(recordedFrame, true, known);
    log.appendReceived(recordedFrame, true, known);
    log.appendReceived(recordedFrame, true, known, ArrivalTime{650, 25});
    log.appendStray("x", known);
    for (const LogRecord &record : log.records()) {
        QCOMPARE(record.utcUs, known.utcUs);
        QCOMPARE(record.monotonicNs, known.monotonicNs);
        const bool isInPieces = &record == &log.records().at(2);
        QCOMPARE(record.begun.utcUs, isInPieces ? 650 : known.utcUs);
        QCOMPARE(record.begun.monotonicNs, isInPieces ? 25 : known.monotonicNs);
    }
}

void TestRecordLog::theSystemsClocksAreTheUsualOnes()
{
    const ArrivalTime before = ArrivalTime::now();
    RecordLog log;
    log.appendSent(recordedFrame, true);
    const ArrivalTime after = ArrivalTime::now();
    const LogRecord record = log.records().first();
    QVERIFY(before.monotonicNs <= record.monotonicNs && record.monotonicNs <= after.monotonicNs);
    QVERIFY(before.utcUs <= record.utcUs && record.utcUs <= after.utcUs);
}

void TestRecordLog::listenersHearOfEachRecordInOrder()
{
    RecordLog log;
    QVector<LogRecord> heard;
    connect(&log, &RecordLog::appended, this, [&](const LogRecord &record) {
        heard.append(record);
        QCOMPARE(heard.size(), log.count());
    });
    log.appendSent(recordedFrame, true);
    log.appendStray("x");
    QCOMPARE(heard.size(), 2);
    QCOMPARE(heard.at(0).bytes, recordedFrame);
    QCOMPARE(heard.at(1).bytes, QByteArray("x"));
}

void TestRecordLog::aListenerMayClearTheLog()
{
    RecordLog log;
    QByteArray heard;
    connect(&log, &RecordLog::appended, &log, &RecordLog::clear);
    connect(&log, &RecordLog::appended, this,
            [&heard](const LogRecord &record) { heard = record.bytes; });
    log.appendStray(QByteArray(100, 'x'));
    QCOMPARE(heard, QByteArray(100, 'x'));
    QCOMPARE(log.count(), 0);
}

QTEST_APPLESS_MAIN(TestRecordLog)
#include "tst_recordlog.moc"
