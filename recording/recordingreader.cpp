#include "recording/recordingreader.h"

#include "recording/jsonlinesreader.h"
#include "recording/pcapngformat.h"
#include "recording/pcapngreader.h"

#include <QIODevice>
#include <QtEndian>

std::unique_ptr<RecordingReader> makeRecordingReader(QIODevice &device)
{
    QByteArray beginning(sizeof Pcapng::sectionHeader, '\0');
    qToLittleEndian(Pcapng::sectionHeader, beginning.data());
    if (device.peek(beginning.size()) == beginning) {
        return std::make_unique<PcapngReader>(device);
    }
    return std::make_unique<JsonLinesReader>(device);
}
