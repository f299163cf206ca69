#pragma once

#include "recording/recordingwriter.h"

/// pcapng, link type 250, as network analysers read it. What has no bytes is a packet of the kind
/// "status change" with a comment; row and description are comments, too. docs/guide/recording.md
/// says more.
class PcapngWriter : public RecordingWriter
{
public:
    QByteArray head(const RecordingHead &head) override;
    void append(QByteArray &bytes, const RecordEvent &event) override;
    QByteArray tail(const RecordingTail &tail) override;
};
