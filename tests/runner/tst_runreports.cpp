#include "runner/jsonreport.h"
#include "runner/junitreport.h"
#include "runner/tapreport.h"
#include "runner/textreport.h"

#include <QJsonDocument>
#include <QXmlStreamReader>
#include <QtTest>

/// The forms in which a run is told of.
class TestRunReports : public QObject
{
    Q_OBJECT

private slots:
    void textTellsEachRow();
    void quietTextTellsFailures();
    void verboseTextTellsTraffic();
    void coloursOnlyWhereWanted();
    void closingLine();
    void strayBytesAreTold();
    void tap();
    void tapOfARunThatWasCutShort();
    void jsonLines();
    void junit();
    void junitEscapes();
    void junitCountsEachSuite();
};

namespace {

using Verdict = RowResult::Verdict;

RowResult resultOf(int number, const QString &description, Verdict verdict, const QString &why = {},
                   std::optional<qint64> replyTimeNs = std::nullopt)
{
    RowResult result;
    result.number = number;
    result.description = description;
    result.verdict = verdict;
    result.why = why;
    result.replyTimeNs = replyTimeNs;
    result.sent = QByteArray::fromHex("5AA50103");
    return result;
}

const RowResult good = resultOf(3, "Read status", Verdict::Passed, {}, 3240000);
const RowResult bad = resultOf(4, "Set #1 \\ 2", Verdict::Failed, "expected 03, got 'x'", 1000000);
const RowResult plain = resultOf(5, "Go", Verdict::Sent);
const RowResult gone = resultOf(6, "Stop", Verdict::Lost, "the device is gone");

/// The report as a file, with the corrections in place.
QByteArray wholeJunit(const QVector<QPair<QString, QVector<RowResult>>> &files)
{
    JunitReport report;
    QByteArray text = report.opening();
    for (const auto &[name, results] : files) {
        text += report.file(name, 1);
        for (const RowResult &result : results) {
            text += report.row(result);
        }
    }
    text += report.closing(RunSummary(), RunEnd::Done);
    for (const JunitReport::Correction &correction : report.takeCorrections()) {
        text.replace(int(correction.position), correction.bytes.size(), correction.bytes);
    }
    return text;
}

/// Names and attributes of the elements, in order: "testcase name=.. ".
QStringList elementsOf(const QByteArray &xml)
{
    QStringList elements;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            QString text = reader.name().toString();
            for (const QXmlStreamAttribute &attribute : reader.attributes()) {
                text += QString(" %1=%2").arg(attribute.name(), attribute.value());
            }
            elements.append(text);
        }
    }
    return reader.hasError() ? QStringList{reader.errorString()} : elements;
}

} // namespace

void TestRunReports::textTellsEachRow()
{
    TextReport report(TextReport::Detail::Rows, false);
    QCOMPARE(report.file("list.txt", 1), QByteArray("list.txt\n"));
    QCOMPARE(report.row(good), QByteArray("pass  003 Read status  3.2 ms\n"));
    QCOMPARE(report.row(bad), QByteArray("FAIL  004 Set #1 \\ 2  expected 03, got 'x'\n"));
    QCOMPARE(report.row(plain), QByteArray("sent  005 Go\n"));
    QCOMPARE(report.row(gone), QByteArray("LOST  006 Stop  the device is gone\n"));
    QCOMPARE(report.file("list.txt", 2), QByteArray("list.txt, pass 2\n"));
    RowResult again = good;
    again.attempts = 2;
    QCOMPARE(report.row(again), QByteArray("pass  003 Read status  3.2 ms  sent 2 times\n"));
    QCOMPARE(report.row(resultOf(1, "a\x1B[2Jb", Verdict::Sent)),
             QByteArray("sent  001 a\xEF\xBF\xBD[2Jb\n"));
}

void TestRunReports::quietTextTellsFailures()
{
    TextReport report(TextReport::Detail::Failures, false);
    QCOMPARE(report.file("list.txt", 1), QByteArray());
    QCOMPARE(report.row(good), QByteArray());
    QCOMPARE(report.row(bad),
             QByteArray("list.txt\nFAIL  004 Set #1 \\ 2  expected 03, got 'x'\n"));
    QVERIFY(!report.row(bad).contains("list.txt"));
}

void TestRunReports::verboseTextTellsTraffic()
{
    LogRecord record;
    record.kind = LogRecord::Kind::Received;
    record.bytes = QByteArray::fromHex("5AA50103");
    QCOMPARE(TextReport(TextReport::Detail::Rows, false).traffic(record), QByteArray());
    QCOMPARE(TextReport(TextReport::Detail::Traffic, false).traffic(record),
             QByteArray("      rx     5A A5 01 03\n"));
}

void TestRunReports::coloursOnlyWhereWanted()
{
    QVERIFY(!TextReport(TextReport::Detail::Rows, false).row(bad).contains('\x1B'));
    QVERIFY(TextReport(TextReport::Detail::Rows, true).row(bad).startsWith("\x1B[31mFAIL\x1B[0m"));
}

void TestRunReports::closingLine()
{
    RunSummary summary;
    summary.rows = 5;
    summary.sent = 6;
    summary.replies = 1;
    summary.failures = 2;
    summary.replyTimes.add(3240000);
    QCOMPARE(summaryText(summary),
             QString("5 rows, 6 sent, 1 reply, 2 failures; reply time min 3.240, median 3.240, "
                     "p99 3.240, max 3.240 ms"));
    summary.replyTimes = {};
    summary.lateness.add(52000);
    summary.isRealTime = true;
    QCOMPARE(summaryText(summary),
             QString("5 rows, 6 sent, 1 reply, 2 failures; sent late by p99 0.052, worst 0.052 ms, "
                     "real-time"));
    summary.isRealTime = false;
    TextReport report(TextReport::Detail::Failures, false);
    QVERIFY(
        report.closing(summary, RunEnd::TimedOut).endsWith("ms, not real-time; the time was up\n"));
}

void TestRunReports::strayBytesAreTold()
{
    RowResult noisy = good;
    noisy.strayBytes = 2;
    QCOMPARE(TextReport(TextReport::Detail::Rows, false).row(noisy),
             QByteArray("pass  003 Read status  3.2 ms  2 stray bytes\n"));
    QCOMPARE(jsonOf(noisy).value("stray_bytes").toInt(), 2);
    QVERIFY(!jsonOf(good).contains("stray_bytes"));
    RunSummary summary;
    summary.strayBytes = 1;
    QCOMPARE(summaryText(summary), QString("0 rows, 0 sent, 0 replies, 0 failures, 1 stray byte"));
}

void TestRunReports::tap()
{
    TapReport report;
    QByteArray text = report.opening() + report.file("list.txt", 1);
    for (const RowResult &result : {good, bad, plain}) {
        text += report.row(result);
    }
    text += report.closing(RunSummary(), RunEnd::Done);
    QCOMPARE(text,
             QByteArray("TAP version 13\n"
                        "# list.txt\n"
                        "ok 1 - 003 Read status\n"
                        "  ---\n  duration_ms: 3.24\n  ...\n"
                        "not ok 2 - 004 Set \\#1 \\\\ 2\n"
                        "  ---\n  message: 'expected 03, got ''x'''\n  duration_ms: 1\n  ...\n"
                        "ok 3 - 005 Go\n"
                        "# 0 rows, 0 sent, 0 replies, 0 failures\n"
                        "1..3\n"));
}

void TestRunReports::tapOfARunThatWasCutShort()
{
    TapReport report;
    QVERIFY(report.closing(RunSummary(), RunEnd::LinkLost)
                .endsWith("1..0\nBail out! the link was lost\n"));
    QVERIFY(!report.closing(RunSummary(), RunEnd::FailedFast).contains("Bail"));
}

void TestRunReports::jsonLines()
{
    RecordingHead head;
    head.startBytes = QByteArray::fromHex("5AA5");
    JsonReport report([head] { return head; },
                      [] {
                          return ArrivalTime{1'700'000'001'000'000, 7'000};
                      });
    const auto object = [](const QByteArray &line) {
        return line.count('\n') == 1 ? QJsonDocument::fromJson(line).object() : QJsonObject();
    };
    QCOMPARE(object(report.opening()).value("start").toString(), QString("5AA5"));
    RecordEvent event;
    event.kind = RecordEvent::Kind::Sent;
    event.time = {1'700'000'000'123'456, 5'000};
    event.bytes = QByteArray::fromHex("5AA50103");
    event.crc = RecordEvent::Crc::Ok;
    event.row = 3;
    QCOMPARE(report.event(event),
             QByteArray(R"({"t":"2023-11-14T22:13:20.123456Z","mono_us":5,"ev":"tx",)"
                        R"("bytes":"5AA50103","crc":"ok","row":3})"
                        "\n"));

    QCOMPARE(object(report.file("list.txt", 2)).value("pass").toInt(), 2);
    const QJsonObject verdict = object(report.row(bad));
    QCOMPARE(verdict.value("verdict").toString(), QString("fail"));
    QCOMPARE(verdict.value("file").toString(), QString("list.txt"));
    QCOMPARE(verdict.value("row").toInt(), 4);
    QCOMPARE(verdict.value("desc").toString(), QString("Set #1 \\ 2"));
    QCOMPARE(verdict.value("why").toString(), QString("expected 03, got 'x'"));
    QCOMPARE(verdict.value("reply_us").toDouble(), 1000.0);
    QCOMPARE(verdict.value("t").toString(), QString("2023-11-14T22:13:21.000000Z"));
    QCOMPARE(verdict.value("mono_us").toInt(), 7);
    QVERIFY(!object(report.row(plain)).contains("reply_us"));
    QCOMPARE(object(report.row(plain)).value("verdict").toString(), QString("sent"));
    QCOMPARE(object(report.row(gone)).value("verdict").toString(), QString("lost"));
    const QList<QByteArray> closing = report.closing(RunSummary(), RunEnd::LinkLost).split('\n');
    QCOMPARE(closing.size(), 3);
    QCOMPARE(object(closing.at(0) + '\n').value("end").toString(), QString("the link was lost"));
    const QJsonObject end = object(closing.at(1) + '\n');
    QCOMPARE(end.value("ev").toString(), QString("end"));
    QCOMPARE(end.value("file").toObject().value("tx").toObject().value("bytes").toInt(), 4);
}

void TestRunReports::junit()
{
    const QStringList elements = elementsOf(wholeJunit({{"list.txt", {good, bad, gone}}}));
    QCOMPARE(elements,
             QStringList({"testsuites",
                          "testsuite name=list.txt tests=3 failures=1 errors=1 time=0.004240",
                          "testcase name=003 Read status classname=list.txt time=0.003240",
                          "testcase name=004 Set #1 \\ 2 classname=list.txt time=0.001000",
                          "failure type=failure message=expected 03, got 'x'",
                          "testcase name=006 Stop classname=list.txt time=0.000000",
                          "error type=error message=the device is gone"}));
}

void TestRunReports::junitEscapes()
{
    const RowResult odd =
        resultOf(1, QString("<a & \"b\"> \x01\x1B") + QChar(0xFFFF) + QChar(0xD800),
                 Verdict::Failed, "]]> \x7F");
    const QStringList elements = elementsOf(wholeJunit({{"a&b", {odd}}}));
    QCOMPARE(elements.size(), 4);
    QVERIFY2(elements.at(2).startsWith("testcase name=001 <a & \"b\"> \\x01\\x1b"),
             qPrintable(elements.at(2)));
    QCOMPARE(elements.at(3), QString("failure type=failure message=]]> \\x7f"));
}

void TestRunReports::junitCountsEachSuite()
{
    const QStringList suites =
        elementsOf(wholeJunit({{"a", {good, bad}}, {"b", {plain}}})).filter("testsuite name");
    QCOMPARE(suites, QStringList({"testsuite name=a tests=2 failures=1 errors=0 time=0.004240",
                                  "testsuite name=b tests=1 failures=0 errors=0 time=0.000000"}));
}

QTEST_APPLESS_MAIN(TestRunReports)

#include "tst_runreports.moc"
