#include "simulator/deviceoptions.h"

#include "frames/hextext.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <limits>
#include <optional>

namespace {

constexpr int longestDelayMs = 60000;
constexpr int highestChatterHz = 1000;

void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("A simulated register device on a pseudo-terminal.\n\n"
                       "Prints the path of the port to open, then answers frames until it is told "
                       "to end:\n"
                       "  03 address count   reads registers\n"
                       "  10 address values  writes registers\n"
                       "  42 anything        is sent back\n"
                       "Anything else is answered by an error frame."));
    parser.addOptions({
        {{"h", "help"}, "Prints this text."},
        {"header", "The two start bytes of frames (default 5A,A5).", "5A,A5"},
        {"crc", "Frames carry a CRC; those with a wrong one are ignored."},
        {"delay", "Each reply is sent MS milliseconds after its request.", "MS"},
        {"split", "Replies are sent in random pieces."},
        {"garbage", "Random bytes are sent before each Nth frame.", "N"},
        {"chatter", "HZ status frames are sent each second: 53 0000 and a 32-bit counter.", "HZ"},
        {"mute", "Requests are not answered."},
        {"seed", "Pieces and random bytes are those of seed N (default 1).", "N"},
        {"play",
         "Answers come from the recording FILE, in place of those of registers, after the time "
         "that "
         "they took then.",
         "FILE"},
        {"speed", "With --play, everything comes X times as fast (default 1).", "X"},
        {"ports",
         "The folder that the port is published in (default: ports, in the folder of the "
         "program, or of its settings where that can't be written).",
         "DIR"},
        {"name", "The name that the port is published by (default simulated).", "NAME"},
    });
}

std::optional<StartBytes> parseHeader(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(?:0[xX])?([0-9A-Fa-f]{2}),(?:0[xX])?([0-9A-Fa-f]{2})\\z"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    return StartBytes{static_cast<quint8>(match.captured(1).toUInt(nullptr, hexBase)),
                      static_cast<quint8>(match.captured(2).toUInt(nullptr, hexBase))};
}

/// Takes the values over from the command line; the first one that is wrong is remembered.
class DeviceOptionReader
{
public:
    explicit DeviceOptionReader(const QCommandLineParser &parser)
        : m_parser(parser)
    {}

    QString error() const { return m_error; }

    template<typename Number>
    void readNumber(const QString &option, Number lowest, Number highest, Number &number)
    {
        if (!m_parser.isSet(option)) {
            return;
        }
        bool isNumber = false;
        const qlonglong value = m_parser.value(option).toLongLong(&isNumber);
        if (!isNumber || value < lowest || value > highest) {
            fail(option, QStringLiteral("a number from %1 to %2").arg(lowest).arg(highest));
            return;
        }
        number = static_cast<Number>(value);
    }

    void readHeader(StartBytes &startBytes)
    {
        const QString option = QStringLiteral("header");
        if (!m_parser.isSet(option)) {
            return;
        }
        const std::optional<StartBytes> header = parseHeader(m_parser.value(option));
        if (!header) {
            fail(option, QStringLiteral("two bytes such as 5A,A5"));
            return;
        }
        startBytes = *header;
    }

    void readFile(QString &file)
    {
        const QString option = QStringLiteral("play");
        file = m_parser.value(option);
        if (m_parser.isSet(option) && file.isEmpty()) {
            fail(option, QStringLiteral("a recording"));
        }
    }

    void readSpeed(double &speed)
    {
        constexpr double slowest = 0.001;
        constexpr double fastest = 1000000;
        const QString option = QStringLiteral("speed");
        if (!m_parser.isSet(option)) {
            return;
        }
        bool isNumber = false;
        speed = m_parser.value(option).toDouble(&isNumber);
        if (!isNumber || !(speed >= slowest && speed <= fastest)) {
            fail(option, QStringLiteral("a number from 0.001 to 1000000"));
        }
    }

    void readFolder(QString &folder)
    {
        const QString option = QStringLiteral("ports");
        if (!m_parser.isSet(option)) {
            return;
        }
        folder = m_parser.value(option);
        if (folder.isEmpty()) {
            fail(option, QStringLiteral("a folder"));
        }
    }

    void readLinkName(QString &name)
    {
        const QString option = QStringLiteral("name");
        if (!m_parser.isSet(option)) {
            return;
        }
        name = m_parser.value(option);
        // A name with a leading dot would be hidden from the list of ports.
        if (name.isEmpty() || name.startsWith('.') || name.contains('/')) {
            fail(option, QStringLiteral("a file name without slashes and without a leading dot"));
        }
    }

private:
    void fail(const QString &option, const QString &expected)
    {
        if (m_error.isEmpty()) {
            m_error = QStringLiteral("--%1 needs %2, not \"%3\".")
                          .arg(option, expected, m_parser.value(option));
        }
    }

    const QCommandLineParser &m_parser;
    QString m_error;
};

} // namespace

DeviceArguments parseDeviceArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(parser);
    DeviceArguments line;
    if (!parser.parse(arguments)) {
        line.error = parser.errorText();
        return line;
    }
    if (!parser.positionalArguments().isEmpty()) {
        line.error =
            QStringLiteral("Unexpected argument \"%1\".").arg(parser.positionalArguments().first());
        return line;
    }
    line.helpWanted = parser.isSet("help");
    DeviceOptions &options = line.options;
    options.withCrc = parser.isSet("crc");
    options.split = parser.isSet("split");
    options.mute = parser.isSet("mute");
    DeviceOptionReader values(parser);
    values.readHeader(options.startBytes);
    values.readNumber("delay", 0, longestDelayMs, options.delayMs);
    values.readNumber("garbage", 1, std::numeric_limits<int>::max(), options.garbageEvery);
    values.readNumber("chatter", 1, highestChatterHz, options.chatterHz);
    values.readNumber("seed", quint32(0), std::numeric_limits<quint32>::max(), options.seed);
    values.readFile(options.playFile);
    values.readSpeed(options.playSpeed);
    values.readFolder(options.portsFolder);
    values.readLinkName(options.linkName);
    line.error = values.error();
    return line;
}

QString deviceHelpText()
{
    QCommandLineParser parser;
    declareOptions(parser);
    return parser.helpText();
}
