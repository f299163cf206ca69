#pragma once

#include "recording/recordingwriter.h"

#include <QDateTime>
#include <QString>

/// The name that a recording is given if nobody chooses another one:
/// "tarnwick-20261122-070000-ttyUSB0-001.jsonl". The link's name may be a path; an empty one stands
/// for none.
QString proposedRecordingName(const QDateTime &localTime, const QString &link,
                              RecordingFormat format);

/// The path of the file that follows another one of a recording: the same with the next number at
/// the end of its name, and, where it has a date and a time as above, with those given.
QString nextRecordingPath(const QString &path, const QDateTime &localTime);
