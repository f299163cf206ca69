#pragma once

#include "recording/recordingwriter.h"

/// JSON Lines: one object a line, in UTF-8, each line ended by LF. docs/guide/recording.md has the
/// schema.
class JsonLinesWriter : public RecordingWriter
{
public:
    QByteArray head(const RecordingHead &head) override;
    void append(QByteArray &bytes, const RecordEvent &event) override;
    QByteArray tail(const RecordingTail &tail) override;
};
