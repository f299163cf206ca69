#pragma once

#include "recording/recordevent.h"
#include "recording/recordingfacts.h"

#include <QByteArray>

#include <memory>

/// How a recording is written.
enum class RecordingFormat { JsonLines, Pcapng };

/// The bytes of a recording's file: a head, events, a tail. It knows no file.
class RecordingWriter
{
public:
    RecordingWriter() = default;
    RecordingWriter(const RecordingWriter &) = delete;
    RecordingWriter &operator=(const RecordingWriter &) = delete;
    virtual ~RecordingWriter() = default;

    /// What a file begins with.
    virtual QByteArray head(const RecordingHead &head) = 0;

    /// Appends an event. What was appended before stays readable if this is cut off.
    virtual void append(QByteArray &bytes, const RecordEvent &event) = 0;

    /// What a file ends with when it is closed in good order.
    virtual QByteArray tail(const RecordingTail &tail) = 0;
};

/// A writer of that format.
std::unique_ptr<RecordingWriter> makeRecordingWriter(RecordingFormat format);

/// The format that a file's name asks for: pcapng where it ends in ".pcapng", in either case;
/// otherwise JSON Lines.
RecordingFormat recordingFormatOf(const QString &fileName);
