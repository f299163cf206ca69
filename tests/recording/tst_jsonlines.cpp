#include "recordingsamples.h"

#include <QtTest>

class TestJsonLines : public QObject
{
    Q_OBJECT

private slots:
    void linesAreAsDocumented_data();
    void linesAreAsDocumented();
    void theFirstLineTellsWhatIsRecorded();
    void theLastLineHasCountsAndHashes();
    void whatIsWrittenIsRead();
    void anyPrefixIsReadable();
    void theEndMayBeMissing();
    void whatCannotBeReadIsToldByItsLine_data();
    void whatCannotBeReadIsToldByItsLine();
    void unknownMembersArePassedOver();
};

namespace {

QByteArray lineOf(const RecordEvent &event)
{
    QByteArray line;
    makeRecordingWriter(RecordingFormat::JsonLines)->append(line, event);
    return line;
}

QByteArray jsonFile()
{
    return sampleFile(RecordingFormat::JsonLines, sampleEvents());
}

} // namespace

void TestJsonLines::linesAreAsDocumented_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("open") << 0
                          << QByteArray(R"({"t":"2026-11-21T21:44:01.123456Z","mono_us":5000000,)"
                                        R"("ev":"open","link":"/dev/ttyUSB0",)"
                                        R"("settings":"115200 8N1"})");
    QTest::newRow("tx") << 1
                        << QByteArray(
                               R"({"t":"2026-11-21T21:44:01.123466Z","mono_us":5000010,"ev":"tx",)"
                               R"("bytes":"5AA508010300000001840A","crc":"ok","row":3,)"
                               "\"desc\":\"Read \\\"status\\\"\\t\\\\ \u6E29\u5EA6\"}");
    QTest::newRow("rx") << 2
                        << QByteArray(
                               R"({"t":"2026-11-21T21:44:01.125956Z","mono_us":5002500,"ev":"rx",)"
                               R"("bytes":"5AA503011234","crc":"bad"})");
    QTest::newRow("stray") << 3
                           << QByteArray(R"({"t":"2026-11-21T21:44:01.126456Z","mono_us":5003000,)"
                                         R"("ev":"stray","bytes":"00FF0A0D","crc":"none"})");
    QTest::newRow("note") << 4
                          << QByteArray(R"({"t":"2026-11-21T21:44:01.127456Z","mono_us":5004000,)"
                                        R"("ev":"note","text":"12 bytes dropped"})");
    QTest::newRow("close") << 5
                           << QByteArray(R"({"t":"2026-11-21T21:44:01.128456Z","mono_us":5005000,)"
                                         R"("ev":"close","link":"/dev/ttyUSB0",)"
                                         R"("text":"the device is gone"})");
}

void TestJsonLines::linesAreAsDocumented()
{
    QFETCH(int, event);
    QFETCH(QByteArray, line);
    QCOMPARE(lineOf(sampleEvents().at(event)), line + '\n');
}

void TestJsonLines::theFirstLineTellsWhatIsRecorded()
{
    QCOMPARE(jsonFile().split('\n').first(),
             QByteArray(R"({"t":"2026-11-21T21:44:01.123456Z","mono_us":5000000,"ev":"begin",)"
                        R"("format":"tarnwick-recording-1","version":"1.0.0",)"
                        R"("link":"/dev/ttyUSB0","settings":"115200 8N1","start":"5AA5",)"
                        R"("crc":true,"zone":"+01:00 Europe/Berlin","part":1})"));
}

void TestJsonLines::theLastLineHasCountsAndHashes()
{
    const QByteArray sums =
        R"({"tx":{"frames":1,"stray":0,"bytes":11,"sha256":")" +
        QCryptographicHash::hash(sampleEvents().at(1).bytes, QCryptographicHash::Sha256).toHex() +
        R"("},"rx":{"frames":1,"stray":1,"bytes":10,"sha256":")" +
        QCryptographicHash::hash(QByteArray::fromHex("5AA50301123400FF0A0D"),
                                 QCryptographicHash::Sha256)
            .toHex() +
        R"("}})";
    const QByteArray file = jsonFile();
    QVERIFY(file.endsWith('\n'));
    QCOMPARE(file.trimmed().split('\n').last(),
             R"({"t":"2026-11-21T21:44:01.129456Z","mono_us":5006000,"ev":"end",)"
             R"("reason":"stopped","file":)" +
                 sums + R"(,"recording":)" + sums + R"(,"dropped_events":2,"dropped_bytes":17})");
}

void TestJsonLines::whatIsWrittenIsRead()
{
    const ReadFile read = readBytes(jsonFile());
    QCOMPARE(read.error, QString());
    QVERIFY(areSame(read.events, sampleEvents()));
    QCOMPARE(read.head.link, sampleHead().link);
    QCOMPARE(read.head.startBytes, sampleHead().startBytes);
    QCOMPARE(read.head.withCrc, true);
    QCOMPARE(read.head.zone, sampleHead().zone);
    QVERIFY(read.hasTail);
    QVERIFY(!read.isTorn);
    QCOMPARE(read.tail.file.received.bytes, qint64(10));
    QCOMPARE(read.tail.recording.sent.sha256.size(), 64);
    QCOMPARE(read.tail.droppedBytes, qint64(17));
    QCOMPARE(read.tail.reason, QString("stopped"));
}

void TestJsonLines::anyPrefixIsReadable()
{
    const QByteArray file = jsonFile();
    for (int size = 0; size < file.size(); ++size) {
        const QByteArray prefix = file.left(size);
        const ReadFile read = readBytes(prefix);
        QCOMPARE(read.error, QString());
        QVERIFY(!read.hasTail);
        QCOMPARE(read.isTorn, size > 0 && !prefix.endsWith('\n'));
        const int whole = std::min(std::max(0, prefix.count('\n') - 1), sampleEvents().size());
        QVERIFY(areSame(read.events, sampleEvents().mid(0, whole)));
    }
}

void TestJsonLines::theEndMayBeMissing()
{
    const ReadFile read =
        readBytes(sampleFileWithoutTail(RecordingFormat::JsonLines, sampleEvents()));
    QCOMPARE(read.error, QString());
    QVERIFY(!read.hasTail);
    QVERIFY(!read.isTorn);
    QVERIFY(areSame(read.events, sampleEvents()));
}

void TestJsonLines::whatCannotBeReadIsToldByItsLine_data()
{
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QString>("error");

    const QByteArray time = R"({"t":"2026-11-21T21:44:01.123456Z",)";
    QTest::newRow("no JSON") << QByteArray("hello") << "line 2: illegal value";
    QTest::newRow("empty") << QByteArray() << "line 2: illegal value";
    QTest::newRow("no object") << QByteArray("[1]") << "line 2: no object";
    QTest::newRow("no time") << QByteArray(R"({"ev":"rx","bytes":"00"})") << "line 2: no time";
    QTest::newRow("bad time") << QByteArray(R"({"t":"yesterday","ev":"rx","bytes":"00"})")
                              << "line 2: no time";
    QTest::newRow("event") << time + R"("ev":"mx"})"
                           << "line 2: an unknown \"ev\"";
    QTest::newRow("bytes") << time + R"("ev":"rx","bytes":"0"})"
                           << "line 2: \"bytes\" is no hexadecimal text";
    QTest::newRow("blanks") << time + R"("ev":"rx","bytes":"00 11"})"
                            << "line 2: \"bytes\" is no hexadecimal text";
    QTest::newRow("crc") << time + R"("ev":"rx","bytes":"00","crc":"fine"})"
                         << "line 2: \"crc\" is not ok, bad or none";
    QTest::newRow("row") << time + R"("ev":"tx","bytes":"00","row":"3"})"
                         << "line 2: \"row\" is no whole number";
    QTest::newRow("row -1") << time + R"("ev":"tx","bytes":"00","row":-1})"
                            << "line 2: \"row\" is out of range";
    QTest::newRow("half a row") << time + R"("ev":"tx","bytes":"00","row":1.5})"
                                << "line 2: \"row\" is no whole number";
    QTest::newRow("text") << time + R"("ev":"note","text":4})"
                          << "line 2: \"text\" is no text";
    QTest::newRow("second head") << jsonFile().split('\n').first() << "line 2: it is out of place";
}

void TestJsonLines::whatCannotBeReadIsToldByItsLine()
{
    QFETCH(QByteArray, second);
    QFETCH(QString, error);
    QList<QByteArray> lines = jsonFile().split('\n');
    lines.insert(1, second);
    const ReadFile read = readBytes(lines.join('\n'));
    QCOMPARE(read.error, error);
    QVERIFY(read.events.isEmpty());
    const QByteArray otherHead = second + '\n' + jsonFile();
    if (second != jsonFile().split('\n').first()) {
        QVERIFY(readBytes(otherHead).error.startsWith("line 1: "));
    }
    const QByteArray behindTheEnd = jsonFile() + lines.at(2) + '\n';
    QCOMPARE(readBytes(behindTheEnd).error, QString("line 9: it is out of place"));
}

void TestJsonLines::unknownMembersArePassedOver()
{
    QByteArray file = jsonFile();
    file.replace(R"("ev":"rx")", R"("later":[{}],"ev":"rx")");
    const ReadFile read = readBytes(file);
    QCOMPARE(read.error, QString());
    QVERIFY(areSame(read.events, sampleEvents()));
}

QTEST_APPLESS_MAIN(TestJsonLines)
#include "tst_jsonlines.moc"
