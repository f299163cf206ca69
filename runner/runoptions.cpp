#include "runner/runoptions.h"

#include "frames/hextext.h"
#include "frames/timeunits.h"
#include "links/hid/hidpacket.h"
#include "runner/optionreader.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <limits>

namespace {

constexpr int anyNumber = std::numeric_limits<int>::max();

void declareRunOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Sends the rows of command files and checks the replies."));
    parser.addPositionalArgument("FILE", "Command files; - is the standard input.", "FILE...");
    parser.addOptions({
        {"list-ports", "Lists the serial ports."},
        {"list-hid", "Lists the HID devices."},
        {"json", "Lists them as JSON."},
        {"check", "Reads the files and sends nothing."},
        {"dry-run", "Prints the frames in hex and opens nothing."},
        {{"p", "port"}, "The serial port.", "NAME"},
        {{"b", "baud"}, "Its rate (115200).", "N"},
        {"frame-format", "Its data bits, parity and stop bits (8N1).", "8N1"},
        {"hid", "The HID device, by its IDs in hex.", "VID:PID[:SERIAL]"},
        {"report-id", "The ID of the reports (0).", "N"},
        {"report-size", "Bytes of data in a report.", "N"},
        {"sim", "Starts a simulated device and talks to it."},
        {"wait-link", "Waits that long for the link.", "SECONDS"},
        {"start", "The start bytes of frames (5AA5).", "5AA5"},
        {"no-start", "Frames have no start bytes; silence ends them."},
        {"length", "Frames have a length field; so they have without an option."},
        {"no-length", "Frames have no length field; silence ends them."},
        {"crc", "Frames carry a CRC."},
        {"no-crc", "Frames carry no CRC."},
        {"settings", "Takes over what the window's settings file says of frames.", "FILE"},
        {"gap", "The silence that ends a frame (5).", "MS"},
        {"selected", "Sends the selected rows; so it does without an option."},
        {"all", "Sends all rows."},
        {"rows", "Sends the rows of these numbers.", "1,3-5"},
        {{"n", "repeat"}, "Sends the rows that often (1).", "N|forever"},
        {"interval", "From one row to the next.", "MS"},
        {"cycle-delay", "From one pass to the next.", "MS"},
        {{"t", "reply-timeout"}, "How long a reply is waited for (500).", "MS"},
        {"strict", "Whatever is not expected fails."},
        {"fail-fast", "Ends at the first failure."},
        {"retries", "Sends a row that fails so often again.", "N"},
        {"total-timeout", "Ends after that time.", "SECONDS"},
        {"format", "What is printed: text, tap or jsonl.", "FORMAT"},
        {"junit", "Writes a JUnit report.", "FILE"},
        {"record", "Records what goes over the wire: FILE.jsonl or FILE.pcapng.", "FILE"},
        {"convert", "Writes a recording anew: to FILE.csv, FILE.jsonl or FILE.pcapng.",
         "RECORDING"},
        {{"q", "quiet"}, "Prints failures and the closing line."},
        {{"v", "verbose"}, "Prints what goes over the wire, too."},
        {"color", "Colours: auto, always or never.", "WHEN"},
        {"pipe", "Reads rows from the standard input, one a line, and answers each with JSON."},
        {{"h", "help"}, "Prints this text."},
        {"version", "Prints the version."},
    });
}

RunOptions::Task taskOf(const OptionReader &reader)
{
    using Task = RunOptions::Task;
    static const QVector<QPair<QString, Task>> tasks{
        {"help", Task::Help},        {"version", Task::Version}, {"list-ports", Task::ListPorts},
        {"list-hid", Task::ListHid}, {"check", Task::Check},     {"dry-run", Task::DryRun},
        {"pipe", Task::Pipe},        {"convert", Task::Convert},
    };
    for (const auto &[option, task] : tasks) {
        if (reader.has(option)) {
            return task;
        }
    }
    return Task::Run;
}

void readSerial(OptionReader &reader, SerialSettings &serial)
{
    static const QRegularExpression form(QStringLiteral("\\A([5-8])([NEOneo])(1|1\\.5|2)\\z"));
    reader.readText("port", serial.portName);
    reader.readNumber("baud", 1, anyNumber, serial.baudRate);
    reader.read("frame-format", "data bits, parity and stop bits such as 8N1",
                [&serial](const QString &text) {
                    const QRegularExpressionMatch match = form.match(text);
                    const QString parity = match.captured(2).toUpper();
                    const QString stop = match.captured(3);
                    serial.dataBits = QSerialPort::DataBits(match.captured(1).toInt());
                    serial.parity = parity == "E"   ? QSerialPort::EvenParity
                                    : parity == "O" ? QSerialPort::OddParity
                                                    : QSerialPort::NoParity;
                    serial.stopBits = stop == "2"     ? QSerialPort::TwoStop
                                      : stop == "1.5" ? QSerialPort::OneAndHalfStop
                                                      : QSerialPort::OneStop;
                    return match.hasMatch();
                });
}

void readHid(OptionReader &reader, HidChoice &hid)
{
    static const QRegularExpression form(
        QStringLiteral("\\A([0-9A-Fa-f]{4}):([0-9A-Fa-f]{4})(?::(.+))?\\z"));
    constexpr int highestReportId = 255;
    reader.read("hid", "vendor and product ID such as EEEF:1616", [&hid](const QString &text) {
        const QRegularExpressionMatch match = form.match(text);
        hid.ids = {static_cast<quint16>(match.captured(1).toUInt(nullptr, hexBase)),
                   static_cast<quint16>(match.captured(2).toUInt(nullptr, hexBase))};
        hid.serialNumber = match.captured(3);
        return match.hasMatch();
    });
    reader.readNumber("report-id", 0, highestReportId, hid.reportId);
    reader.readNumber("report-size", 1, longestReport, hid.reportSize);
}

void readLink(OptionReader &reader, LinkChoice &link)
{
    constexpr int longestWait = 24 * 60 * 60;
    reader.atMostOneOf({"port", "hid", "sim"});
    readSerial(reader, link.serial);
    readHid(reader, link.hid);
    reader.readNumber("wait-link", 0, longestWait, link.waitSeconds);
    link.kind = reader.has("port")  ? LinkChoice::Kind::Serial
                : reader.has("hid") ? LinkChoice::Kind::Hid
                : reader.has("sim") ? LinkChoice::Kind::Simulated
                                    : LinkChoice::Kind::None;
}

void readFrames(OptionReader &reader, FileSettings &settings)
{
    reader.atMostOneOf({"crc", "no-crc"});
    reader.atMostOneOf({"start", "no-start"});
    reader.atMostOneOf({"length", "no-length"});
    reader.readSwitch("crc", true, settings.withCrc);
    reader.readSwitch("no-crc", false, settings.withCrc);
    reader.readSwitch("start", true, settings.withStartBytes);
    reader.readSwitch("no-start", false, settings.withStartBytes);
    reader.readSwitch("length", true, settings.withLength);
    reader.readSwitch("no-length", false, settings.withLength);
    reader.read("start", "two bytes such as 5AA5", [&settings](const QString &text) {
        settings.startBytes = startBytesOf(text);
        return settings.startBytes.has_value();
    });
    reader.readNumber("gap", 1, longestTimeMs, settings.gapMs);
    reader.readNumber("interval", 0, longestTimeMs, settings.intervalMs);
    reader.readNumber("cycle-delay", 0, longestTimeMs, settings.cycleDelayMs);
    reader.readNumber("reply-timeout", 1, longestTimeMs, settings.replyTimeoutMs);
}

void readRules(OptionReader &reader, RunRules &rules)
{
    constexpr int mostRetries = 1000;
    reader.atMostOneOf({"selected", "all", "rows"});
    if (reader.has("all")) {
        rules.rows = RowChoice::all();
    }
    reader.read("rows", "numbers of rows such as 1,3-5", [&rules](const QString &text) {
        const std::optional<RowChoice> listed = RowChoice::listed(text);
        rules.rows = listed.value_or(rules.rows);
        return listed.has_value();
    });
    reader.read("repeat", "a number from 1 on, or forever", [&rules](const QString &text) {
        const bool isEndless = text == QLatin1String("forever");
        const std::optional<int> passes = numberOf(text, 1, anyNumber);
        rules.passes = isEndless ? 0 : passes.value_or(1);
        return isEndless || passes;
    });
    rules.isStrict = reader.has("strict");
    rules.failsFast = reader.has("fail-fast");
    reader.readNumber("retries", 0, mostRetries, rules.retries);
    reader.readNumber("total-timeout", 1, secondsPerDay, rules.totalTimeoutSeconds);
}

void readOutput(OptionReader &reader, OutputOptions &output)
{
    using Format = OutputOptions::Format;
    using Colour = OutputOptions::Colour;
    reader.atMostOneOf({"quiet", "verbose"});
    reader.readChoice("format", {"text", "tap", "jsonl"},
                      {Format::Text, Format::Tap, Format::JsonLines}, output.format);
    reader.readChoice("color", {"auto", "always", "never"},
                      {Colour::Auto, Colour::Always, Colour::Never}, output.colour);
    reader.readText("junit", output.junitFile);
    reader.readText("record", output.recordFile);
    if (reader.has("quiet")) {
        output.detail = OutputOptions::Detail::Quiet;
    } else if (reader.has("verbose")) {
        output.detail = OutputOptions::Detail::Verbose;
    }
}

bool readsFiles(RunOptions::Task task)
{
    return task == RunOptions::Task::Run || task == RunOptions::Task::Check ||
           task == RunOptions::Task::DryRun;
}

bool opensLink(RunOptions::Task task)
{
    return task == RunOptions::Task::Run || task == RunOptions::Task::Pipe;
}

/// Where nothing is said by the command line, a command file may say it.
bool isForSimulatedDevice(const FileSettings &settings, const FileSettings &defaults)
{
    const bool withStartBytes = defaults.withStartBytes.value_or(true);
    const bool withLength = defaults.withLength.value_or(true);
    return settings.withStartBytes.value_or(withStartBytes) &&
           settings.withLength.value_or(withLength);
}

} // namespace

QString contradictionIn(const RunOptions &options)
{
    if (readsFiles(options.task) && options.files.isEmpty()) {
        return QStringLiteral("A command file is missing.");
    }
    if (options.task == RunOptions::Task::Convert) {
        return options.files.size() == 1 ? QString()
                                         : QStringLiteral("--convert needs one file to write to.");
    }
    if (!readsFiles(options.task) && !options.files.isEmpty()) {
        return QStringLiteral("Unexpected argument \"%1\".").arg(options.files.first());
    }
    if (opensLink(options.task) && options.link.kind == LinkChoice::Kind::None) {
        return QStringLiteral("A link is missing: --port, --hid or --sim.");
    }
    if (options.link.kind == LinkChoice::Kind::Simulated &&
        !isForSimulatedDevice(options.settings, options.defaults)) {
        return QStringLiteral("The simulated device needs start bytes and length.");
    }
    return {};
}

ParsedOptions parseRunOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareRunOptions(parser);
    if (!parser.parse(arguments)) {
        return {{}, parser.errorText()};
    }
    OptionReader reader(parser);
    RunOptions options;
    reader.atMostOneOf({"list-ports", "list-hid", "check", "dry-run", "pipe", "convert"});
    options.task = taskOf(reader);
    options.asJson = reader.has("json");
    reader.readText("convert", options.recording);
    options.files = parser.positionalArguments();
    readLink(reader, options.link);
    readFrames(reader, options.settings);
    reader.readText("settings", options.settingsFile);
    readRules(reader, options.rules);
    readOutput(reader, options.output);
    const bool isAside =
        options.task == RunOptions::Task::Help || options.task == RunOptions::Task::Version;
    const QString error = reader.error().isEmpty() ? contradictionIn(options) : reader.error();
    return {options, isAside ? QString() : error};
}

QString runHelpText()
{
    QCommandLineParser parser;
    declareRunOptions(parser);
    return parser.helpText();
}
