#pragma once

#include "recording/recordevent.h"
#include "recording/recordingfacts.h"

#include <QByteArray>
#include <QString>

#include <variant>

/// What keeps a line from being read, in words.
struct JsonFault
{
    QString words;
};

/// What a line of a recording says.
using JsonLine = std::variant<JsonFault, RecordingHead, RecordEvent, RecordingTail>;

/// Reads a line, as jsonHead(), JsonLinesWriter and jsonTail() write it. Members that it doesn't
/// know are passed over.
JsonLine parseJsonLine(const QByteArray &line);
