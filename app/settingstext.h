#pragma once

#include "app/settings.h"

#include <QByteArray>

/// The settings in the content of a settings file: what stands under the group "set", defaults for
/// whatever is missing or no text. Of a key that stands there twice, the last one counts. Any bytes
/// will do; any link mode but 0 is read as 1.
Settings settingsIn(const QByteArray &content);

/// The content with these settings in place of those that it had; every other line stays.
QByteArray withSettings(const QByteArray &content, const Settings &settings);
