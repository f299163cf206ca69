#include "fuzzing.h"
#include "recording/csvexport.h"
#include "recording/recordingreader.h"
#include "recording/recordingwriter.h"

#include <QBuffer>

/// Whatever is read must come back the same when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QBuffer device;
    device.setData(fuzzInput(data, size));
    device.open(QIODevice::ReadOnly);
    const auto reader = makeRecordingReader(device);
    const auto writer = makeRecordingWriter(RecordingFormat::JsonLines);
    QByteArray events;
    int count = 0;
    while (const auto event = reader->next()) {
        writer->append(events, *event);
        csvLine(*event, reader->head().time);
        ++count;
    }
    require(reader->error().isEmpty() || !reader->isTorn());
    QBuffer again;
    again.setData(writer->head(reader->head()) + events);
    again.open(QIODevice::ReadOnly);
    const auto second = makeRecordingReader(again);
    while (second->next()) {
        --count;
    }
    require(second->error().isEmpty() && count == 0);
    return 0;
}
