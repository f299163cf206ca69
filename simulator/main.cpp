#include "recording/recordingreader.h"
#include "simulator/announcement.h"
#include "simulator/deviceoptions.h"
#include "simulator/devicesession.h"
#include "simulator/player.h"
#include "simulator/pseudoterminal.h"
#include "simulator/publishedlink.h"
#include "system/endsignals.h"
#include "system/regularfile.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <memory>

namespace {

constexpr int failed = 1;
constexpr int wrongUsage = 2;
/// Long enough to remove the link.
constexpr int devicePatienceSeconds = 2;

void printFault(const QString &message)
{
    std::fputs(qPrintable(QStringLiteral("tarnwick-device: %1\n").arg(message)), stderr);
}

void say(const QString &text)
{
    std::fputs(qPrintable(text), stdout);
    std::fflush(stdout);
}

/// What is in a recording; nothing, after the user was told why, where it can't be read.
std::optional<PlayScript> readScript(const QString &path)
{
    QFile file;
    if (!openRegularFile(file, path, QIODevice::ReadOnly)) {
        printFault(QStringLiteral("%1 can't be read.").arg(path));
        return std::nullopt;
    }
    const auto reader = makeRecordingReader(file);
    QVector<RecordEvent> events;
    while (const auto event = reader->next()) {
        events.append(*event);
    }
    if (!reader->error().isEmpty()) {
        printFault(QStringLiteral("%1, %2.").arg(path, reader->error()));
        return std::nullopt;
    }
    return PlayScript(events);
}

int runDevice(const DeviceOptions &options)
{
    // A reader of our output that goes away must not end us before the link is removed.
    std::signal(SIGPIPE, SIG_IGN);
    const EndSignals endSignals(devicePatienceSeconds);
    QObject::connect(&endSignals, &EndSignals::arrived, &QCoreApplication::quit);

    const std::optional<PseudoTerminal> terminal = PseudoTerminal::open();
    if (!terminal) {
        printFault(QStringLiteral("No pseudo-terminal: %1.").arg(qt_error_string()));
        return failed;
    }
    const QString folder = options.portsFolder.isEmpty()
                               ? defaultPortsFolder(QStringLiteral("tarnwick"))
                               : options.portsFolder;
    std::unique_ptr<QObject> device;
    if (options.playFile.isEmpty()) {
        device = std::make_unique<DeviceSession>(options, *terminal);
    } else if (const auto script = readScript(options.playFile)) {
        device = std::make_unique<Player>(*script, options.playSpeed, *terminal);
    } else {
        return failed;
    }
    PublishedLink link(folder, options.linkName);
    const QString error = link.publish(terminal->portPath());
    if (!error.isEmpty()) {
        printFault(error);
        return failed;
    }
    const Announcement announcement(link.path());
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const DeviceArguments line = parseDeviceArguments(QCoreApplication::arguments());
    if (!line.error.isEmpty()) {
        printFault(line.error + QStringLiteral(" See --help."));
        return wrongUsage;
    }
    if (line.helpWanted) {
        say(deviceHelpText());
        return 0;
    }
    return runDevice(line.options);
}
