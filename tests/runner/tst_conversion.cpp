#include "recordingsamples.h"
#include "runner/conversion.h"
#include "testfiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// Recordings written anew in another form.
class TestConversion : public QObject
{
    Q_OBJECT

private slots:
    void eachFormBecomesEachOther_data();
    void eachFormBecomesEachOther();
    void csvHasALineForEachEvent();
    void aTornRecordingIsConvertedAsFarAsItGoes();
    void aFileThatIsNoRecordingIsToldAndLeavesNothing();
    void whatCannotBeReadIsTold_data();
    void whatCannotBeReadIsTold();
    void whatCannotBeWrittenIsTold();
    void aRecordingMayTakeItsOwnPlace();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString written(const QString &name, const QByteArray &bytes) const;

    const QTemporaryDir m_folder;
};

/// The path of a file of these bytes.
QString TestConversion::written(const QString &name, const QByteArray &bytes) const
{
    writeFile(path(name), bytes);
    return path(name);
}

void TestConversion::eachFormBecomesEachOther_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("to");

    QTest::newRow("lines to packets") << int(RecordingFormat::JsonLines) << "packets.PCAPNG";
    QTest::newRow("packets to lines") << int(RecordingFormat::Pcapng) << "lines.jsonl";
    QTest::newRow("lines to lines") << int(RecordingFormat::JsonLines) << "other.jsonl";
}

void TestConversion::eachFormBecomesEachOther()
{
    QFETCH(int, format);
    QFETCH(QString, to);
    const QVector<RecordEvent> events = sampleEvents();
    const QString from = written("from", sampleFile(RecordingFormat(format), events));
    const Conversion result = convertRecording(from, path(to));
    QCOMPARE(result.words, QString());
    QCOMPARE(result.code, ExitCode::Good);
    const ReadFile read = readPath(path(to));
    QCOMPARE(read.error, QString());
    QVERIFY(read.hasTail);
    QCOMPARE(read.head.version, sampleHead().version);
    QVERIFY(areSame(read.events, events));
    QCOMPARE(contentOf(path(to)).startsWith('{'), !to.endsWith("PCAPNG"));
}

void TestConversion::csvHasALineForEachEvent()
{
    const QVector<RecordEvent> events = sampleEvents();
    const QString from = written("from", sampleFile(RecordingFormat::JsonLines, events));
    QCOMPARE(convertRecording(from, path("table.CSV")).code, ExitCode::Good);
    const QByteArray table = contentOf(path("table.CSV"));
    QVERIFY(table.startsWith("\xEF\xBB\xBF"));
    QCOMPARE(table.count("\r\n"), events.size() + 1);
}

void TestConversion::aTornRecordingIsConvertedAsFarAsItGoes()
{
    QByteArray file = sampleFileWithoutTail(RecordingFormat::JsonLines, sampleEvents());
    file.chop(5);
    const QString from = written("torn.jsonl", file);
    const Conversion result = convertRecording(from, path("torn.pcapng"));
    QCOMPARE(result.code, ExitCode::Good);
    QCOMPARE(result.words, from + ": it ends within an event");
    const ReadFile read = readPath(path("torn.pcapng"));
    QCOMPARE(read.events.size(), sampleEvents().size() - 1);
    QVERIFY(!read.hasTail);
}

void TestConversion::aFileThatIsNoRecordingIsToldAndLeavesNothing()
{
    const QString from = written("list.txt", "Read,select,03 0010 00 02\n");
    writeFile(path("kept.csv"), "as it was");
    const Conversion result = convertRecording(from, path("kept.csv"));
    QCOMPARE(result.code, ExitCode::WrongInput);
    QVERIFY2(result.words.startsWith(from + ": line 1"), qPrintable(result.words));
    QCOMPARE(contentOf(path("kept.csv")), QByteArray("as it was"));
}

void TestConversion::whatCannotBeReadIsTold_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing") << "missing";
    QTest::newRow("folder") << ".";
}

void TestConversion::whatCannotBeReadIsTold()
{
    QFETCH(QString, name);
    const Conversion result = convertRecording(path(name), path("never.csv"));
    QCOMPARE(result.code, ExitCode::WrongInput);
    QCOMPARE(result.words, path(name) + ": it can't be read");
    QVERIFY(!QFile::exists(path("never.csv")));
}

void TestConversion::whatCannotBeWrittenIsTold()
{
    const QString from = written("from", sampleFile(RecordingFormat::JsonLines, sampleEvents()));
    const QString to = path("gone/table.csv");
    const Conversion result = convertRecording(from, to);
    QCOMPARE(result.code, ExitCode::NotWritten);
    QVERIFY2(result.words.startsWith(to + ": "), qPrintable(result.words));
}

void TestConversion::aRecordingMayTakeItsOwnPlace()
{
    const QByteArray file = sampleFile(RecordingFormat::JsonLines, sampleEvents());
    const QString from = written("own.jsonl", file);
    QCOMPARE(convertRecording(from, from).code, ExitCode::Good);
    QCOMPARE(contentOf(from), file);
}

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
