#pragma once

#include "files/settings.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// A larger file is not read, in bytes.
constexpr int largestSettingsFile = 1024 * 1024;

/// The settings in the content of a settings file: what stands under the group "set", defaults for
/// whatever is missing or no text. Of a key that stands there twice, the last one counts. Any bytes
/// will do; any link mode but 0 is read as 1.
Settings settingsIn(const QByteArray &content);

/// What is wrong with a line of a settings file; lines count from 1.
struct SettingsFault
{
    int line = 1;
    QString words;
};

/// What the window passes over in silence: numbers that are none, and a content without the group.
QVector<SettingsFault> faultsInSettings(const QByteArray &content);

/// The content with these settings in place of those that it had; every other line stays.
QByteArray withSettings(const QByteArray &content, const Settings &settings);
