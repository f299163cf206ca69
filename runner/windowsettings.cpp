#include "runner/windowsettings.h"

#include "files/settingstext.h"
#include "system/filereader.h"

WindowSettings readWindowSettings(const QString &fileName)
{
    const FileContent content = readFile(fileName, largestSettingsFile);
    if (content.outcome == FileContent::Outcome::TooLarge) {
        return {{}, {QStringLiteral("%1: it is larger than 1 MiB").arg(fileName)}};
    }
    if (content.outcome != FileContent::Outcome::Read) {
        return {{}, {QStringLiteral("%1: it can't be read").arg(fileName)}};
    }
    WindowSettings read;
    for (const SettingsFault &fault : faultsInSettings(content.bytes)) {
        read.faults.append(
            QStringLiteral("%1:%2: %3").arg(fileName).arg(fault.line).arg(fault.words));
    }
    const Settings settings = settingsIn(content.bytes);
    read.settings.withStartBytes = settings.noAppendHeader == 0;
    read.settings.withLength = settings.noAppendLength == 0;
    return read;
}
