#include "runner/runoptions.h"

#include <QtTest>

class TestRunOptions : public QObject
{
    Q_OBJECT

private slots:
    void usualValues();
    void everythingIsRead();
    void tasks_data();
    void tasks();
    void wrongOnesAreTold_data();
    void wrongOnesAreTold();
    void helpIsGivenWhateverElseIsWrong();
};

namespace {

ParsedOptions parsed(const QString &line)
{
    return parseRunOptions(QStringList{"tarnwick-run"} + line.split(' ', Qt::SkipEmptyParts));
}

} // namespace

void TestRunOptions::usualValues()
{
    const ParsedOptions result = parsed("--port ttyS0 list.txt");
    QCOMPARE(result.error, QString());
    const RunOptions &options = result.options;
    QVERIFY(options.task == RunOptions::Task::Run);
    QCOMPARE(options.files, QStringList{"list.txt"});
    QVERIFY(options.link.kind == LinkChoice::Kind::Serial);
    QCOMPARE(options.link.serial.portName, QString("ttyS0"));
    QCOMPARE(options.link.serial.baudRate, 115200);
    QCOMPARE(options.link.serial.dataBits, QSerialPort::Data8);
    QCOMPARE(options.rules.passes, 1);
    QCOMPARE(options.rules.retries, 0);
    QVERIFY(!options.rules.isStrict && !options.rules.failsFast);
    QVERIFY(options.rules.rows.contains(1, true) && !options.rules.rows.contains(1, false));
    QVERIFY(!options.settings.withCrc && !options.settings.replyTimeoutMs);
    QVERIFY(options.output.format == OutputOptions::Format::Text);
}

void TestRunOptions::everythingIsRead()
{
    const ParsedOptions serial = parsed(
        "-p com -b 9600 --frame-format 7E2 --wait-link 3 --start 0102 --no-length --crc --gap "
        "7 --rows 1,3-5 -n forever --interval 10 --cycle-delay 20 -t 250 --strict --fail-fast "
        "--retries 2 --total-timeout 60 --format tap --junit r.xml -v --color never a b");
    QCOMPARE(serial.error, QString());
    const RunOptions &options = serial.options;
    QCOMPARE(options.files, QStringList({"a", "b"}));
    QCOMPARE(options.link.serial.baudRate, 9600);
    QCOMPARE(options.link.serial.dataBits, QSerialPort::Data7);
    QCOMPARE(options.link.serial.parity, QSerialPort::EvenParity);
    QCOMPARE(options.link.serial.stopBits, QSerialPort::TwoStop);
    QCOMPARE(options.link.waitSeconds, 3);
    QCOMPARE(bytesOf(*options.settings.startBytes), QByteArray("\x01\x02"));
    QCOMPARE(options.settings.withLength, std::optional(false));
    QCOMPARE(options.settings.withCrc, std::optional(true));
    QCOMPARE(options.settings.gapMs, std::optional(7));
    QCOMPARE(options.settings.intervalMs, std::optional(10));
    QCOMPARE(options.settings.cycleDelayMs, std::optional(20));
    QCOMPARE(options.settings.replyTimeoutMs, std::optional(250));
    QCOMPARE(options.rules.rows.highest(), 5);
    QCOMPARE(options.rules.passes, 0);
    QCOMPARE(options.rules.retries, 2);
    QCOMPARE(options.rules.totalTimeoutSeconds, 60);
    QVERIFY(options.rules.isStrict && options.rules.failsFast);
    QVERIFY(options.output.format == OutputOptions::Format::Tap);
    QVERIFY(options.output.detail == OutputOptions::Detail::Verbose);
    QVERIFY(options.output.colour == OutputOptions::Colour::Never);
    QCOMPARE(options.output.junitFile, QString("r.xml"));

    const ParsedOptions hid =
        parsed("--hid eeef:1616:A:1 --report-id 5 --report-size 32 --no-start --no-crc --all f");
    QCOMPARE(hid.error, QString());
    QVERIFY(hid.options.link.kind == LinkChoice::Kind::Hid);
    QVERIFY((hid.options.link.hid.ids == DeviceIds{0xEEEF, 0x1616}));
    QCOMPARE(hid.options.link.hid.serialNumber, QString("A:1"));
    QCOMPARE(int(hid.options.link.hid.reportId), 5);
    QCOMPARE(hid.options.link.hid.reportSize, std::optional(32));
    QCOMPARE(hid.options.settings.withStartBytes, std::optional(false));
    QCOMPARE(hid.options.settings.withCrc, std::optional(false));
    QVERIFY(hid.options.rules.rows.contains(9, false));
}

void TestRunOptions::tasks_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("task");

    using Task = RunOptions::Task;
    QTest::newRow("run") << "--sim f" << int(Task::Run);
    QTest::newRow("check") << "--check f" << int(Task::Check);
    QTest::newRow("dry run") << "--dry-run f" << int(Task::DryRun);
    QTest::newRow("ports") << "--list-ports --json" << int(Task::ListPorts);
    QTest::newRow("HID") << "--list-hid" << int(Task::ListHid);
    QTest::newRow("pipe") << "--pipe --sim" << int(Task::Pipe);
    QTest::newRow("convert") << "--convert a.jsonl b.csv" << int(Task::Convert);
    QTest::newRow("help") << "--help" << int(Task::Help);
    QTest::newRow("version") << "--version" << int(Task::Version);
    QTest::newRow("standard input") << "--sim -" << int(Task::Run);
}

void TestRunOptions::tasks()
{
    QFETCH(QString, line);
    const ParsedOptions result = parsed(line);
    QCOMPARE(result.error, QString());
    QTEST(int(result.options.task), "task");
}

void TestRunOptions::wrongOnesAreTold_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("told");

    const auto row = [](const char *line, const char *told) {
        QTest::newRow(line) << QString(line) << QString(told);
    };
    row("--sim", "A command file is missing.");
    row("f", "A link is missing: --port, --hid or --sim.");
    row("--pipe", "A link is missing");
    row("--unknown f", "Unknown option 'unknown'.");
    row("--pipe --sim f", "Unexpected argument \"f\".");
    row("--list-ports f", "Unexpected argument \"f\".");
    row("--check --dry-run f", "--check and --dry-run don't go together.");
    row("--port a --sim f", "--port and --sim don't go together.");
    row("--crc --no-crc --sim f", "--crc and --no-crc don't go together.");
    row("--start 5AA5 --no-start -p a f", "--start and --no-start don't go together.");
    row("--all --rows 1 --sim f", "--all and --rows don't go together.");
    row("-q -v --sim f", "--quiet and --verbose don't go together.");
    row("--sim --no-start f", "The simulated device needs start bytes and length.");
    row("--sim --no-length f", "The simulated device needs start bytes and length.");
    row("-p a -b fast f", "--baud needs a number from 1 to 2147483647, not \"fast\".");
    row("-p a -b 0 f", "--baud needs");
    row("-p a --frame-format 9N1 f", "--frame-format needs");
    row("-p a --frame-format 8N12 f", "--frame-format needs");
    row("--hid EEEF f", "--hid needs vendor and product ID");
    row("--hid EEEF:161G f", "--hid needs");
    row("--hid EEEF:1616 --report-id 256 f", "--report-id needs a number from 0 to 255");
    row("--hid EEEF:1616 --report-size 0 f", "--report-size needs");
    row("--sim --wait-link -1 f", "--wait-link needs");
    row("--sim --start 5A f", "--start needs two bytes such as 5AA5, not \"5A\".");
    row("--sim --gap 0 f", "--gap needs");
    row("--sim --rows 3-1 f", "--rows needs");
    row("--sim -n 0 f", "--repeat needs a number from 1 on, or forever, not \"0\".");
    row("--sim --interval x f", "--interval needs");
    row("--sim --cycle-delay 99999999999 f", "--cycle-delay needs");
    row("--sim -t 0 f", "--reply-timeout needs");
    row("--sim --retries 1001 f", "--retries needs");
    row("--sim --total-timeout 0 f", "--total-timeout needs");
    row("--sim --format xml f", "--format needs one of text, tap, jsonl, not \"xml\".");
    row("--sim --color red f", "--color needs");
    row("--sim --junit= f", "--junit needs a name");
    row("--convert a.jsonl", "--convert needs one file to write to.");
    row("--sim --record= f", "--record needs a name");
    row("--port= f", "--port needs a name");
}

void TestRunOptions::wrongOnesAreTold()
{
    QFETCH(QString, line);
    QFETCH(QString, told);
    const ParsedOptions result = parsed(line);
    QVERIFY2(result.error.startsWith(told), qPrintable(result.error));
}

void TestRunOptions::helpIsGivenWhateverElseIsWrong()
{
    QCOMPARE(parsed("--help --baud x").error, QString());
}

QTEST_GUILESS_MAIN(TestRunOptions)

#include "tst_runoptions.moc"
