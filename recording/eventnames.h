#pragma once

#include "recording/recordevent.h"

#include <QByteArray>

#include <optional>

/// The name of a kind of event in a recording: "tx", "rx", "stray", "open", "close", "note".
QByteArray eventName(RecordEvent::Kind kind);

/// The kind of that name; nothing for any other name.
std::optional<RecordEvent::Kind> eventKind(const QByteArray &name);

/// "none", "ok" or "bad".
QByteArray crcName(RecordEvent::Crc crc);

/// What that name stands for; nothing for any other name.
std::optional<RecordEvent::Crc> crcNamed(const QByteArray &name);
