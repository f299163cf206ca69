#pragma once

#include "expectations/filesettings.h"
#include "links/hid/deviceids.h"
#include "links/serial/seriallink.h"
#include "runner/rowchoice.h"

#include <QString>
#include <QStringList>

#include <optional>

/// Which HID device is meant, and how its reports look.
struct HidChoice
{
    DeviceIds ids;
    /// Empty for any.
    QString serialNumber;
    quint8 reportId = 0;
    /// Bytes of data in a report; nothing where the device-ID file tells it.
    std::optional<int> reportSize;
};

/// The link that is used, and how long it is waited for, in s.
struct LinkChoice
{
    enum class Kind { None, Serial, Hid, Simulated };

    Kind kind = Kind::None;
    SerialSettings serial;
    HidChoice hid;
    int waitSeconds = 0;
};

/// How rows are sent and judged.
struct RunRules
{
    RowChoice rows = RowChoice::selected();
    /// How often the rows are sent; 0 for without end.
    int passes = 1;
    bool isStrict = false;
    bool failsFast = false;
    int retries = 0;
    /// In s; 0 for without end.
    int totalTimeoutSeconds = 0;
};

/// What is printed and written.
struct OutputOptions
{
    enum class Format { Text, Tap, JsonLines };
    enum class Colour { Auto, Always, Never };
    enum class Detail { Quiet, Usual, Verbose };

    Format format = Format::Text;
    Colour colour = Colour::Auto;
    Detail detail = Detail::Usual;
    QString junitFile;
    QString recordFile;
};

/// What the command line asks for.
struct RunOptions
{
    enum class Task { Run, Check, DryRun, ListPorts, ListHid, Pipe, Convert, Help, Version };

    Task task = Task::Run;
    bool asJson = false;
    QStringList files;
    /// The recording to convert.
    QString recording;
    LinkChoice link;
    /// What goes before the settings in the files.
    FileSettings settings;
    /// The window's settings file; empty for none.
    QString settingsFile;
    /// What counts where neither the command line nor a file says anything.
    FileSettings defaults;
    RunRules rules;
    OutputOptions output;
};

/// The options, or what is wrong with the command line.
struct ParsedOptions
{
    RunOptions options;
    QString error;
};

/// Reads a command line, the program's name being the first argument.
ParsedOptions parseRunOptions(const QStringList &arguments);

/// Why the options can't be carried out, with the defaults that are in them; empty where they can.
QString contradictionIn(const RunOptions &options);

/// What --help prints. Needs the application object, whose name it shows.
QString runHelpText();
