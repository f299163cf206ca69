#include "ranprogram.h"
#include "runningdevice.h"
#include "testport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

/// The built program: what it prints, what it sends, and who reads its reports.
class TestRunProgram : public QObject
{
    Q_OBJECT

private slots:
    void itKnowsNoWidgets();
    void theExamplesPass();
    void readsStandardInput();
    void checkAndDryRunOpenNothing();
    void framesWithCrcAndOtherStartBytes();
    void withoutStartBytesSilenceEndsAFrame();
    void portsAreListed();
    void junitIsReadByOthers();
    void junitFitsTheSchema();
    void tapIsReadByProve();
    void recordsAndConverts();
    void aRecordingKnowsRowsAndFormat();
    void aRecordingTellsItsName();
    void jsonLinesAreARecordingWithVerdicts();
    void whoReadsNoMoreEndsTheRun();
    void colours();
    void nothingGrowsInALongRun();
};

namespace {

/// A sanitizer keeps what was freed.
constexpr bool isSanitized = TARNWICK_SANITIZED;

const QByteArray mixed("//@ tarnwick-run 1\n"
                       "Echo <&> \"it\",select,42 0000 01\n//? 42 **\n"
                       "Fail,select,42 0000 02\n//? 43 **\n"
                       "Send # it,select,42 0000 03\n");

/// The most memory that a process has had, in KiB.
qint64 peakOf(qint64 processId)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(processId));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').first().toLongLong();
        }
    }
    return -1;
}

} // namespace

void TestRunProgram::itKnowsNoWidgets()
{
    const Ran result = ranOther("ldd", {TARNWICK_RUN});
    QVERIFY(result.out.contains("libQt5SerialPort"));
    QVERIFY(!result.out.contains("libQt5Widgets"));
    QVERIFY(!result.out.contains("libQt5Gui"));
}

void TestRunProgram::theExamplesPass()
{
    for (const char *name : {"registers", "loop", "texts"}) {
        const QString file = QStringLiteral(TARNWICK_TREE "/examples/%1.txt").arg(name);
        const Ran result = ran({"--sim", "--strict", "--all", file});
        QVERIFY2(result.code == 0, result.out + result.error);
        QVERIFY2(!result.out.contains("\nsent "), result.out);
    }
}

void TestRunProgram::readsStandardInput()
{
    const Ran result = ran({"--sim", "-"}, "Echo,select,42 0000 01\n");
    QCOMPARE(result.code, 0);
    QVERIFY(result.out.startsWith("-\nsent  001 Echo\n"));
}

void TestRunProgram::checkAndDryRunOpenNothing()
{
    const ListFolder folder;
    const QString list = folder.file(mixed);
    const Ran checked = ran({"--check", "--port", "/nowhere", list});
    QCOMPARE(checked.code, 0);
    QCOMPARE(checked.out, QByteArray("3 rows, 2 with expectations\n"));
    const Ran dry = ran({"--dry-run", "--rows", "1,3", list});
    QCOMPARE(dry.code, 0);
    QCOMPARE(dry.out, QByteArray("5A A5 04 42 00 00 01\n5A A5 04 42 00 00 03\n"));
}

void TestRunProgram::framesWithCrcAndOtherStartBytes()
{
    RunningDevice device;
    QVERIFY(device.startOnly({"--crc", "--header", "01,02", "--split"}));
    const Ran result = ran({"--port", device.printedPath(), "-v", "-"},
                           "//@ tarnwick-run 1 crc=on start=0102\nEcho,select,42 0000 01\n"
                           "//? 42 0000 01\n");
    QVERIFY2(result.code == 0, result.out);
    QVERIFY2(result.out.contains("tx     01 02 06 42 00 00 01 "), result.out);
    QVERIFY2(result.out.indexOf("rx     01 02") < result.out.indexOf("pass"), result.out);
}

/// The device answers with start bytes and length, all of which is then one frame.
void TestRunProgram::withoutStartBytesSilenceEndsAFrame()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    const Ran result = ran({"--port", device.printedPath(), "--no-start", "--no-length", "-"},
                           "//@ tarnwick-run 1\nEcho,select,5A A504 42 0000 01\n"
                           "//? 5A A5 04 42 0000 01\n");
    QVERIFY2(result.code == 0, result.out);
}

void TestRunProgram::portsAreListed()
{
    const Ran result = ran({"--list-ports", "--json"});
    QCOMPARE(result.code, 0);
    QVERIFY(QJsonDocument::fromJson(result.out).isArray());
    QVERIFY(QJsonDocument::fromJson(ran({"--list-hid", "--json"}).out).isArray());
    const Ran lines = ran({"--list-ports"});
    QCOMPARE(lines.out.count('\n'), QJsonDocument::fromJson(result.out).array().size());
}

void TestRunProgram::junitIsReadByOthers()
{
    const ListFolder folder;
    const QString report = folder.path("r.xml");
    QCOMPARE(ran({"--sim", "--junit", report, folder.file(mixed)}).code, 1);
    const Ran read = ranOther(
        "/usr/bin/python3",
        {"-c",
         "import sys, junitparser\n"
         "for suite in junitparser.JUnitXml.fromfile(sys.argv[1]):\n"
         "    print(suite.tests, suite.failures, suite.errors)\n"
         "    for case in suite:\n"
         "        print(case.name, [type(r).__name__ + ': ' + r.message for r in case.result])\n",
         report});
    QVERIFY2(read.code == 0, read.error);
    const QList<QByteArray> lines = read.out.split('\n');
    QCOMPARE(lines.at(0), QByteArray("3 1 0"));
    QCOMPARE(lines.at(1), QByteArray("001 Echo <&> \"it\" []"));
    QVERIFY2(lines.at(2).startsWith("002 Fail ['Failure: expected 43 **, got 42 00 00 02 after "),
             lines.at(2));
}

void TestRunProgram::junitFitsTheSchema()
{
    const ListFolder folder;
    const QString report = folder.path("r.xml");
    const QString list = folder.file(mixed);
    QCOMPARE(ran({"--sim", "-n", "2", "--junit", report, list, list}).code, 1);
    const Ran checked = ranOther(
        "xmllint", {"--noout", "--schema", TARNWICK_TREE "/tests/runner/junit.xsd", report});
    QVERIFY2(checked.code == 0, checked.error);
}

void TestRunProgram::tapIsReadByProve()
{
    const ListFolder folder;
    const QString good = folder.file(
        ran({"--sim", "--format", "tap", "--rows", "1,3", folder.file(mixed)}).out, "good.tap");
    const Ran passed = ranOther("prove", {"--exec", "cat", good});
    QVERIFY2(passed.code == 0, passed.out);
    QVERIFY2(passed.out.contains("Tests=2,"), passed.out);
    const QString bad =
        folder.file(ran({"--sim", "--format", "tap", folder.file(mixed)}).out, "bad.tap");
    const Ran failed = ranOther("prove", {"--exec", "cat", bad});
    QCOMPARE(failed.code, 1);
    QVERIFY2(failed.out.contains("Failed 1/3 subtests"), failed.out);
}

void TestRunProgram::recordsAndConverts()
{
    const ListFolder folder;
    const QString recording = folder.path("r.jsonl");
    QCOMPARE(ran({"--sim", "--record", recording, folder.file(mixed)}).code, 1);
    const QByteArray text = folder.content("r.jsonl");
    QCOMPARE(text.count("5AA50442000001"), 2);
    QCOMPARE(ran({"--convert", recording, folder.path("r.csv")}).code, 0);
    QCOMPARE(folder.content("r.csv").count("5A A5 04 42 00 00 01"), 2);
    QCOMPARE(ran({"--convert", recording, folder.path("r.pcapng")}).code, 0);
    QCOMPARE(ran({"--convert", folder.path("r.pcapng"), folder.path("again.csv")}).code, 0);
    QCOMPARE(folder.content("again.csv").count("5A A5 04 42 00 00 01"), 2);
    QCOMPARE(ran({"--convert", folder.path("missing"), folder.path("x.csv")}).code, 2);
    QCOMPARE(ran({"--convert", recording, folder.path("missing/x.csv")}).code, 6);
    QCOMPARE(ran({"--sim", "--record", folder.path("missing/r.jsonl"), folder.file(mixed)}).code,
             6);
}

void TestRunProgram::aRecordingKnowsRowsAndFormat()
{
    const TestPort device;
    const ListFolder folder;
    QProcess process;
    process.start(TARNWICK_RUN, {"--port", device.path(), "--no-start", "--no-length", "--crc",
                                 "--record", folder.path("r.jsonl"), "-t", "10000", "-"});
    process.write("//@ tarnwick-run 1\nRead,select,01 0300 00 00 01\n//? 01 03 02 12 34\n");
    process.closeWriteChannel();
    QTRY_VERIFY(QFile::exists(folder.path("r.jsonl")) && process.state() == QProcess::Running);
    device.send(QByteArray::fromHex("0103021234B533"));
    endOf(process);
    const QByteArray text = folder.content("r.jsonl");
    QVERIFY2(text.contains(R"("start":"","crc":true)"), text);
    QVERIFY2(text.contains(R"("bytes":"010300000001840A","crc":"ok","row":1,"desc":"Read")"), text);
    QVERIFY2(text.contains(R"("ev":"rx","bytes":"0103021234B533","crc":"ok")"), text);
}

void TestRunProgram::aRecordingTellsItsName()
{
    const ListFolder folder;
    const QString list = folder.file(mixed);
    const QString recording = folder.file("mine", "r.jsonl");
    const Ran another = ran({"--sim", "--record", recording, list});
    QCOMPARE(another.error,
             "tarnwick-run: Recording to " + folder.path("r-002.jsonl").toUtf8() + ".\n");
    QCOMPARE(folder.content("r.jsonl"), QByteArray("mine"));
    const QString missing = folder.path("missing/r.jsonl");
    const Ran failed = ran({"--sim", "--record", missing, list});
    QCOMPARE(failed.code, 6);
    QVERIFY2(failed.error.contains(missing.toUtf8() + ": No such file"), failed.error);
}

void TestRunProgram::jsonLinesAreARecordingWithVerdicts()
{
    const ListFolder folder;
    QList<QByteArray> lines =
        ran({"--sim", "--format", "jsonl", folder.file(mixed)}).out.trimmed().split('\n');
    QVERIFY2(lines.first().contains(R"("ev":"begin","format":"tarnwick-recording-1")"),
             lines.first());
    QVERIFY2(lines.last().contains(R"("ev":"end","reason":"done")"), lines.last());
    QVERIFY2(lines.at(2).endsWith(R"("bytes":"5AA50442000001","crc":"none","row":1,)"
                                  R"("desc":"Echo <&> \"it\""})"),
             lines.at(2));
    QVERIFY2(lines.at(4).contains(R"("verdict":"pass")"), lines.at(4));
}

void TestRunProgram::whoReadsNoMoreEndsTheRun()
{
    const ListFolder folder;
    const Ran result =
        ranOther("bash", {"-c", "\"$@\" | head -n 2; exit ${PIPESTATUS[0]}", "bash", TARNWICK_RUN,
                          "--sim", "-n", "forever", "--interval", "1", folder.file(mixed)});
    QCOMPARE(result.code, 6);
    QCOMPARE(result.out.count('\n'), 2);
}

void TestRunProgram::colours()
{
    const ListFolder folder;
    const QString list = folder.file(mixed);
    QVERIFY(!ran({"--sim", list}).out.contains('\x1B'));
    QVERIFY(ran({"--sim", "--color", "always", list}).out.contains("\x1B[32mpass"));
}

void TestRunProgram::nothingGrowsInALongRun()
{
    const ListFolder folder;
    const QString list = folder.file("//@ tarnwick-run 1\nEcho,select,42 0000 01\n//? 42 **\n");
    QProcess process;
    process.start(TARNWICK_RUN,
                  {"--sim", "-q", "-n", "20000", "--junit", folder.path("r.xml"), list});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(folder.path("r.xml")).exists() ||
                                 process.state() == QProcess::NotRunning ||
                                 peakOf(process.processId()) > 0,
                             10000);
    qint64 early = 0;
    qint64 late = 0;
    while (!process.waitForFinished(200)) {
        late = peakOf(process.processId());
        early = early == 0 ? late : early;
    }
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(
        process.readAllStandardOutput().contains("20000 rows, 20000 sent, 20000 replies, 0 fail"));
    QVERIFY2(isSanitized || late - early < 2048,
             qPrintable(QString("%1 to %2 KiB").arg(early).arg(late)));
}

QTEST_GUILESS_MAIN(TestRunProgram)

#include "tst_runprogram.moc"
