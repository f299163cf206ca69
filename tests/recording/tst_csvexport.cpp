#include "recording/csvexport.h"
#include "recordingsamples.h"

#include <QBuffer>
#include <QtTest>

Q_DECLARE_METATYPE(RecordingFormat)

class TestCsvExport : public QObject
{
    Q_OBJECT

private slots:
    void linesAreThoseOfTheEvents_data();
    void linesAreThoseOfTheEvents();
    void fieldsAreQuotedWhereTheyMustBe_data();
    void fieldsAreQuotedWhereTheyMustBe();
    void aTornRecordingGivesWhatIsWhole();
    void whatCannotBeReadIsTold();
    void whatCannotBeWrittenIsTold();
};

void TestCsvExport::linesAreThoseOfTheEvents_data()
{
    QTest::addColumn<RecordingFormat>("format");
    QTest::newRow("JSON Lines") << RecordingFormat::JsonLines;
    QTest::newRow("pcapng") << RecordingFormat::Pcapng;
}

void TestCsvExport::linesAreThoseOfTheEvents()
{
    QFETCH(RecordingFormat, format);
    QBuffer recording;
    recording.setData(sampleFile(format, sampleEvents()));
    recording.open(QIODevice::ReadOnly);
    QBuffer csv;
    csv.open(QIODevice::WriteOnly);
    const CsvExport outcome = exportCsv(recording, csv);
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.events, qint64(6));
    QVERIFY(!outcome.isTorn);
    QCOMPARE(csv.data(),
             QByteArray("\xEF\xBB\xBFtime,delta_s,event,bytes,crc,row,text\r\n"
                        "2026-11-21T21:44:01.123456Z,,open,,,,\"/dev/ttyUSB0, 115200 8N1\"\r\n"
                        "2026-11-21T21:44:01.123466Z,0.000010,tx,"
                        "5A A5 08 01 03 00 00 00 01 84 0A,ok,3,"
                        "\"Read \"\"status\"\"\t\\ \u6E29\u5EA6\"\r\n"
                        "2026-11-21T21:44:01.125956Z,0.002490,rx,5A A5 03 01 12 34,bad,,\r\n"
                        "2026-11-21T21:44:01.126456Z,0.000500,stray,00 FF 0A 0D,none,,\r\n"
                        "2026-11-21T21:44:01.127456Z,0.001000,note,,,,12 bytes dropped\r\n"
                        "2026-11-21T21:44:01.128456Z,0.001000,close,,,,"
                        "\"/dev/ttyUSB0, the device is gone\"\r\n"));
}

void TestCsvExport::fieldsAreQuotedWhereTheyMustBe_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("field");

    QTest::newRow("plain") << "Read status" << QByteArray("Read status");
    QTest::newRow("comma") << "a,b" << QByteArray("\"a,b\"");
    QTest::newRow("quote") << "\"" << QByteArray(R"("""")");
    QTest::newRow("LF") << "a\nb" << QByteArray("\"a\nb\"");
    QTest::newRow("CR") << "a\rb" << QByteArray("\"a\rb\"");
}

void TestCsvExport::fieldsAreQuotedWhereTheyMustBe()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, field);
    RecordEvent note = sampleEvent(RecordEvent::Kind::Note);
    note.text = text;
    QCOMPARE(csvLine(note, std::nullopt), "2026-11-21T21:44:01.123456Z,,note,,,," + field + "\r\n");
}

void TestCsvExport::aTornRecordingGivesWhatIsWhole()
{
    QBuffer recording;
    recording.setData(sampleFileWithoutTail(RecordingFormat::JsonLines, sampleEvents()).chopped(5));
    recording.open(QIODevice::ReadOnly);
    QBuffer csv;
    csv.open(QIODevice::WriteOnly);
    const CsvExport outcome = exportCsv(recording, csv);
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.events, qint64(5));
    QVERIFY(outcome.isTorn);
    QCOMPARE(csv.data().count("\r\n"), 6);
}

void TestCsvExport::whatCannotBeReadIsTold()
{
    QBuffer recording;
    recording.setData("hello\n");
    recording.open(QIODevice::ReadOnly);
    QBuffer csv;
    csv.open(QIODevice::WriteOnly);
    QCOMPARE(exportCsv(recording, csv).error, QString("line 1: illegal value"));
}

void TestCsvExport::whatCannotBeWrittenIsTold()
{
    QBuffer recording;
    recording.setData(sampleFile(RecordingFormat::JsonLines, sampleEvents()));
    recording.open(QIODevice::ReadOnly);
    QFile full("/dev/full");
    QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QVERIFY(!exportCsv(recording, full).error.isEmpty());
}

QTEST_APPLESS_MAIN(TestCsvExport)
#include "tst_csvexport.moc"
