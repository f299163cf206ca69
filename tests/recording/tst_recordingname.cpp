#include "recording/recordingname.h"

#include <QtTest>

class TestRecordingName : public QObject
{
    Q_OBJECT

private slots:
    void theNameTellsTimeAndLink_data();
    void theNameTellsTimeAndLink();
    void theFormatIsThatOfTheEnding_data();
    void theFormatIsThatOfTheEnding();
    void theNextFileHasTheNextNumber_data();
    void theNextFileHasTheNextNumber();
};

namespace {

const QDateTime startOfRecording(QDate(2026, 11, 22), QTime(7, 5, 9));
const QDateTime laterOn(QDate(2026, 11, 23), QTime(0, 0, 0));

} // namespace

void TestRecordingName::theNameTellsTimeAndLink_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("part");

    QTest::newRow("port") << "ttyUSB0"
                          << "ttyUSB0";
    QTest::newRow("path") << "/dev/serial/by-id/usb-X_Y:1"
                          << "usb-X_Y_1";
    QTest::newRow("COM") << "COM3"
                         << "COM3";
    QTest::newRow("Windows path") << R"(\\?\hid#vid_eeef&pid_1616)"
                                  << "hid_vid_eeef_pid_1616";
    QTest::newRow("none") << ""
                          << "none";
    QTest::newRow("long") << QString(90, 'x') << QString(40, 'x');
}

void TestRecordingName::theNameTellsTimeAndLink()
{
    QFETCH(QString, link);
    QFETCH(QString, part);
    const QString stem = "tarnwick-20261122-070509-" + part + "-001";
    QCOMPARE(proposedRecordingName(startOfRecording, link, RecordingFormat::JsonLines),
             stem + ".jsonl");
    QCOMPARE(proposedRecordingName(startOfRecording, link, RecordingFormat::Pcapng),
             stem + ".pcapng");
}

void TestRecordingName::theFormatIsThatOfTheEnding_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPcapng");

    QTest::newRow("jsonl") << "a.jsonl" << false;
    QTest::newRow("pcapng") << "/x/a.pcapng" << true;
    QTest::newRow("upper case") << "A.PCAPNG" << true;
    QTest::newRow("none") << "a" << false;
    QTest::newRow("in between") << "a.pcapng.txt" << false;
}

void TestRecordingName::theFormatIsThatOfTheEnding()
{
    QFETCH(QString, name);
    QFETCH(bool, isPcapng);
    QCOMPARE(recordingFormatOf(name) == RecordingFormat::Pcapng, isPcapng);
}

void TestRecordingName::theNextFileHasTheNextNumber_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("next");

    QTest::newRow("proposed") << "/a/tarnwick-20261122-070509-ttyUSB0-001.jsonl"
                              << "/a/tarnwick-20261123-000000-ttyUSB0-002.jsonl";
    QTest::newRow("many") << "/a/tarnwick-20261122-070509-ttyUSB0-999.pcapng"
                          << "/a/tarnwick-20261123-000000-ttyUSB0-1000.pcapng";
    QTest::newRow("beyond") << "/a/x-1000.jsonl"
                            << "/a/x-1001.jsonl";
    QTest::newRow("own name") << "/a/fault.jsonl"
                              << "/a/fault-002.jsonl";
    QTest::newRow("own name again") << "/a/fault-002.jsonl"
                                    << "/a/fault-003.jsonl";
    QTest::newRow("a number of its own") << "/a/run-7.jsonl"
                                         << "/a/run-7-002.jsonl";
    QTest::newRow("no ending") << "/a/fault"
                               << "/a/fault-002";
    QTest::newRow("points") << "/a/v1.2.jsonl"
                            << "/a/v1.2-002.jsonl";
    QTest::newRow("here") << "fault.jsonl"
                          << "./fault-002.jsonl";
}

void TestRecordingName::theNextFileHasTheNextNumber()
{
    QFETCH(QString, path);
    QFETCH(QString, next);
    QCOMPARE(nextRecordingPath(path, laterOn), next);
}

QTEST_APPLESS_MAIN(TestRecordingName)
#include "tst_recordingname.moc"
