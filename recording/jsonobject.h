#pragma once

#include "recording/recordevent.h"
#include "recording/recordingfacts.h"

#include <QByteArray>
#include <QString>

#include <variant>

/// Why a line can't be read, in words.
struct JsonFault
{
    QString words;
};

/// The content of one line of a recording.
using JsonLine = std::variant<JsonFault, RecordingHead, RecordEvent, RecordingTail>;

/// Reads a line as jsonHead(), JsonLinesWriter and jsonTail() write it. Unknown members are
/// skipped.
JsonLine parseJsonLine(const QByteArray &line);
