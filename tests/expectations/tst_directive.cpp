#include "expectations/directive.h"

#include <QtTest>

class TestDirective : public QObject
{
    Q_OBJECT

private slots:
    void expectations_data();
    void expectations();
    void faults_data();
    void faults();
    void settings();
    void settingsMayBeLeftOut();
    void noStartBytes();
    void settingFaults_data();
    void settingFaults();
};

void TestDirective::expectations_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("withinMs");

    const auto row = [](const char *name, const char *line, Directive::Kind kind,
                        const char *pattern, int withinMs) {
        QTest::newRow(name) << QByteArray(line) << int(kind) << QString(pattern) << withinMs;
    };
    using Kind = Directive::Kind;
    row("reply", "//? 03 0010 ?? ??", Kind::Reply, "03 0010 ?? ??", -1);
    row("further", "//+ 10 **", Kind::Further, "10 **", -1);
    row("forbidden", "//! 8? **", Kind::Forbidden, "8? **", -1);
    row("without a blank", "//?03", Kind::Reply, "03", -1);
    row("many blanks", "//?   03", Kind::Reply, "03", -1);
    row("remark", "//? 03 0010  the reply", Kind::Reply, "03 0010", -1);
    row("remark behind a tab", "//? 03 0010\tthe reply", Kind::Reply, "03 0010", -1);
    row("time", "//? 03  within 200", Kind::Reply, "03", 200);
    row("time and remark", "//? 03   within 200   as payload", Kind::Reply, "03", 200);
    row("time behind a tab", "//!\t03\twithin 1", Kind::Forbidden, "03", 1);
    row("time in a remark", "//? 03  comes  within 200", Kind::Reply, "03", -1);
    row("blanks at the end", "//? 03   ", Kind::Reply, "03", -1);
    row("withindoors", "//? 03  withindoors", Kind::Reply, "03", -1);
}

void TestDirective::expectations()
{
    QFETCH(QByteArray, line);
    const Parsed<Directive> parsed = parseDirective(line);
    QVERIFY2(parsed.value, qPrintable(parsed.fault.words));
    QTEST(int(parsed.value->kind), "kind");
    QTEST(parsed.value->frame.pattern.text(), "pattern");
    QTEST(parsed.value->frame.withinMs.value_or(-1), "withinMs");
}

void TestDirective::faults_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("column");

    QTest::newRow("no bytes") << QByteArray("//?") << 4;
    QTest::newRow("only blanks") << QByteArray("//?   ") << 4;
    QTest::newRow("no digit") << QByteArray("//? 03 xx") << 8;
    QTest::newRow("half a byte") << QByteArray("//?  03 1") << 9;
    QTest::newRow("one blank before a remark") << QByteArray("//? 03 reply") << 8;
    QTest::newRow("no time") << QByteArray("//? 03  within") << 9;
    QTest::newRow("time of nothing") << QByteArray("//? 03  within 0") << 9;
    QTest::newRow("time in s") << QByteArray("//? 03  within 2s") << 9;
    QTest::newRow("remark right behind the time") << QByteArray("//? 03  within 200 ms") << 9;
    QTest::newRow("beyond ASCII") << QByteArray("//? 03  Gr\xC3\xBC\xC3\x9F") << 11;
    QTest::newRow("control character") << QByteArray("//? 03\x01") << 7;
}

void TestDirective::faults()
{
    QFETCH(QByteArray, line);
    const Parsed<Directive> parsed = parseDirective(line);
    QVERIFY(!parsed.value);
    QVERIFY(!parsed.fault.words.isEmpty());
    QTEST(parsed.fault.column, "column");
}

void TestDirective::settings()
{
    const Parsed<FileSettings> parsed = parseRunLine(
        "//@ tarnwick-run 1 crc=on start=0102 length=off reply-timeout=500 interval=10 "
        "cycle-delay=0 gap=7  a remark");
    QVERIFY2(parsed.value, qPrintable(parsed.fault.words));
    const FileSettings &settings = *parsed.value;
    QCOMPARE(settings.withCrc, std::optional(true));
    QCOMPARE(settings.withStartBytes, std::optional(true));
    QCOMPARE(bytesOf(*settings.startBytes), QByteArray("\x01\x02"));
    QCOMPARE(settings.withLength, std::optional(false));
    QCOMPARE(settings.replyTimeoutMs, std::optional(500));
    QCOMPARE(settings.intervalMs, std::optional(10));
    QCOMPARE(settings.cycleDelayMs, std::optional(0));
    QCOMPARE(settings.gapMs, std::optional(7));
}

void TestDirective::settingsMayBeLeftOut()
{
    const Parsed<FileSettings> parsed = parseRunLine("//@ tarnwick-run 1");
    QVERIFY(parsed.value);
    QVERIFY(!parsed.value->withCrc && !parsed.value->startBytes && !parsed.value->withLength &&
            !parsed.value->replyTimeoutMs);
}

void TestDirective::noStartBytes()
{
    const Parsed<FileSettings> parsed = parseRunLine("//@ tarnwick-run 1 start=none");
    QVERIFY(parsed.value);
    QCOMPARE(parsed.value->withStartBytes, std::optional(false));
}

void TestDirective::settingFaults_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("column");

    QTest::newRow("no version") << QByteArray("//@ tarnwick-run") << 18;
    QTest::newRow("other version") << QByteArray("//@ tarnwick-run 2") << 18;
    QTest::newRow("unknown") << QByteArray("//@ tarnwick-run 1 crC=on") << 20;
    QTest::newRow("no value") << QByteArray("//@ tarnwick-run 1 crc") << 20;
    QTest::newRow("no switch") << QByteArray("//@ tarnwick-run 1 crc=yes") << 20;
    QTest::newRow("one start byte") << QByteArray("//@ tarnwick-run 1 crc=on start=5A") << 27;
    QTest::newRow("no time") << QByteArray("//@ tarnwick-run 1 reply-timeout=0") << 20;
    QTest::newRow("beyond ASCII") << QByteArray("//@ tarnwick-run 1  \xE4") << 21;
}

void TestDirective::settingFaults()
{
    QFETCH(QByteArray, line);
    const Parsed<FileSettings> parsed = parseRunLine(line);
    QVERIFY(!parsed.value);
    QVERIFY(!parsed.fault.words.isEmpty());
    QTEST(parsed.fault.column, "column");
}

QTEST_APPLESS_MAIN(TestDirective)

#include "tst_directive.moc"
