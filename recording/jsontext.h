#pragma once

#include "recording/recordingfacts.h"

#include <QByteArray>
#include <QString>

/// A text as a JSON string, in quotation marks and in UTF-8.
QByteArray jsonString(const QString &text);

/// The first line of a file, without its end: an object with `"ev":"begin"`.
QByteArray jsonHead(const RecordingHead &head);

/// The last line of a file, without its end: an object with `"ev":"end"`.
QByteArray jsonTail(const RecordingTail &tail);

/// `"t":"…","mono_us":…`, which every line begins with.
QByteArray jsonTime(ArrivalTime time);
