#include "ranprogram.h"
#include "runningdevice.h"
#include "testport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// Rows that come one a line, each answered before the next one is given.
class TestPipe : public QObject
{
    Q_OBJECT

private slots:
    void eachLineIsAnswered();
    void whatIsExpectedIsChecked();
    void aLineThatIsNoRow();
    void aRowWithoutAnAnswer();
    void theLastLineNeedsNoEnd();
    void manyLinesAreAnswered();
    void linesAreNotPiledUp();
    void rowsAreRecordedAndReported();
    void aReportThatCannotBeWritten_data();
    void aReportThatCannotBeWritten();
    void theLinkIsNeeded();
    void theLinkIsLost();
    void whatComesBetweenRowsFailsWhereItIsStrict_data();
    void whatComesBetweenRowsFailsWhereItIsStrict();
};

namespace {

QJsonObject answerTo(QProcess &process, const QByteArray &line)
{
    process.write(line);
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(10000)) {
            return {};
        }
    }
    return QJsonDocument::fromJson(process.readLine()).object();
}

} // namespace

void TestPipe::eachLineIsAnswered()
{
    QProcess process;
    process.start(TARNWICK_RUN, {"--sim", "--pipe"});
    const QJsonObject first = answerTo(process, "Read,select,03 0010 00 01\n");
    QCOMPARE(first.value("verdict").toString(), QString("sent"));
    QCOMPARE(first.value("desc").toString(), QString("Read"));
    QCOMPARE(first.value("sent").toString(), QString("5AA5050300100001"));
    QCOMPARE(first.value("replies").toArray(), QJsonArray{"0300010010"});
    QVERIFY(first.value("reply_us").toDouble() > 0);
    QCOMPARE(answerTo(process, "Read,03 0011 00 01\n").value("row").toInt(), 2);
    process.closeWriteChannel();
    QCOMPARE(endOf(process).code, 0);
}

void TestPipe::whatIsExpectedIsChecked()
{
    QProcess process;
    process.start(TARNWICK_RUN, {"--sim", "--pipe", "--crc"});
    QCOMPARE(answerTo(process, "Echo,42 0000 01 //? 42 **\n").value("verdict").toString(),
             QString("pass"));
    const QJsonObject failed = answerTo(process, "Echo,42 0000 01 //? 43 **  no //! 99\n");
    QCOMPARE(failed.value("verdict").toString(), QString("fail"));
    QVERIFY(failed.value("why").toString().startsWith("expected 43 **, got 42 00 00 01"));
    process.closeWriteChannel();
    QCOMPARE(endOf(process).code, 1);
}

void TestPipe::aLineThatIsNoRow()
{
    QProcess process;
    process.start(TARNWICK_RUN, {"--sim", "--pipe"});
    for (const QByteArray line :
         {"nonsense\n", "Odd,03 1\n", "Bad,03 0010 //? 0G\n", "\n", "P,++ 1\n"}) {
        const QJsonObject answer = answerTo(process, line);
        QCOMPARE(answer.value("verdict").toString(), QString("error"));
        QVERIFY(!answer.value("why").toString().isEmpty());
    }
    QCOMPARE(answerTo(process, "Echo,42 0000 01\n").value("verdict").toString(), QString("sent"));
    process.closeWriteChannel();
    QCOMPARE(endOf(process).code, 2);
}

void TestPipe::aRowWithoutAnAnswer()
{
    RunningDevice device;
    QVERIFY(device.startOnly({"--mute"}));
    const Ran result =
        ran({"--port", device.printedPath(), "--pipe", "-t", "30"}, "Echo,42 0000 01\n");
    QCOMPARE(result.code, 0);
    const QJsonObject answer = QJsonDocument::fromJson(result.out).object();
    QCOMPARE(answer.value("verdict").toString(), QString("sent"));
    QVERIFY(answer.value("replies").toArray().isEmpty());
    QVERIFY(!answer.contains("why"));
}

void TestPipe::theLastLineNeedsNoEnd()
{
    const Ran result = ran({"--sim", "--pipe"}, "Echo,42 0000 01");
    QCOMPARE(result.out.count('\n'), 1);
}

void TestPipe::manyLinesAreAnswered()
{
    constexpr int lines = 3000;
    const Ran result = ran({"--sim", "--pipe"}, QByteArray("Echo,42 0000 01\n").repeated(lines));
    QCOMPARE(result.code, 0);
    QCOMPARE(result.out.count('\n'), lines);
    QVERIFY(result.out.contains(R"("row":3000,)"));
}

/// Whoever writes faster than the device answers waits.
void TestPipe::linesAreNotPiledUp()
{
    const ListFolder folder;
    QProcess process;
    process.start(TARNWICK_RUN,
                  {"--pipe", "--port", folder.path("no-port"), "--wait-link", "3600"});
    QVERIFY(process.waitForStarted());
    process.write(QByteArray("Echo,42 0000 01\n").repeated(100000));
    while (process.waitForBytesWritten(500)) {
    }
    QVERIFY(process.bytesToWrite() > 1000000);
    process.kill();
    process.waitForFinished();
}

void TestPipe::rowsAreRecordedAndReported()
{
    const ListFolder folder;
    const Ran result = ran(
        {"--sim", "--pipe", "--record", folder.path("r.jsonl"), "--junit", folder.path("r.xml")},
        "Echo,42 0000 01 //? 42 **\nEcho,42 0000 02 //? 43\nnonsense\n");
    QCOMPARE(result.code, 2);
    const QByteArray recording = folder.content("r.jsonl");
    QVERIFY2(recording.contains(R"("bytes":"5AA50442000002","crc":"none","row":2,"desc":"Echo")"),
             recording);
    QVERIFY2(recording.contains(R"("ev":"end")"), recording);
    const QByteArray report = folder.content("r.xml");
    QVERIFY2(report.contains(R"(tests="3" failures="2" errors="0")"), report);
    QVERIFY2(report.contains(R"(name="001 Echo")"), report);
}

void TestPipe::aReportThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("junit") << "--junit";
    QTest::newRow("record") << "--record";
}

void TestPipe::aReportThatCannotBeWritten()
{
    QFETCH(QString, option);
    const ListFolder folder;
    const Ran result =
        ran({"--sim", "--pipe", option, folder.path("missing/r.jsonl")}, "Echo,42 0000 01\n");
    QCOMPARE(result.code, 6);
    QVERIFY2(result.error.contains("missing/r.jsonl: No such file"), result.error);
    QCOMPARE(result.out, QByteArray());
}

void TestPipe::theLinkIsNeeded()
{
    QCOMPARE(ran({"--pipe", "--port", "/nowhere"}, "Echo,42 0000 01\n").code, 3);
}

void TestPipe::theLinkIsLost()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    QProcess process;
    process.start(TARNWICK_RUN, {"--port", device.printedPath(), "--pipe"});
    QCOMPARE(answerTo(process, "Echo,42 0000 01\n").value("verdict").toString(), QString("sent"));
    device.process().kill();
    const Ran result = endOf(process);
    QCOMPARE(result.code, 4);
    QVERIFY2(result.error.contains("the device is gone"), result.error);
}

void TestPipe::whatComesBetweenRowsFailsWhereItIsStrict_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("a frame") << QByteArray::fromHex("5AA50155") << QByteArray("got 55\n");
    QTest::newRow("bytes") << QByteArray::fromHex("0102") << QByteArray("got 01 02\n");
}

/// Each row has one answer all the same.
void TestPipe::whatComesBetweenRowsFailsWhereItIsStrict()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, told);
    TestPort device;
    QProcess process;
    process.start(TARNWICK_RUN, {"--port", device.path(), "--pipe", "--strict", "-t", "50"});
    QCOMPARE(answerTo(process, "Echo,42 0000 01\n").value("verdict").toString(), QString("sent"));
    device.send(bytes);
    QByteArray error;
    QTRY_VERIFY((error += process.readAllStandardError()).endsWith('\n'));
    QVERIFY2(error.endsWith(told), error);
    QCOMPARE(answerTo(process, "Echo,42 0000 02\n").value("verdict").toString(), QString("sent"));
    process.closeWriteChannel();
    const Ran result = endOf(process);
    QCOMPARE(result.code, 1);
    QCOMPARE(result.out, QByteArray());
}

QTEST_GUILESS_MAIN(TestPipe)

#include "tst_pipe.moc"
