#include "recording/recordingwriter.h"

#include "recording/jsonlineswriter.h"
#include "recording/pcapngwriter.h"

std::unique_ptr<RecordingWriter> makeRecordingWriter(RecordingFormat format)
{
    if (format == RecordingFormat::Pcapng) {
        return std::make_unique<PcapngWriter>();
    }
    return std::make_unique<JsonLinesWriter>();
}

RecordingFormat recordingFormatOf(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".pcapng"), Qt::CaseInsensitive)
               ? RecordingFormat::Pcapng
               : RecordingFormat::JsonLines;
}
