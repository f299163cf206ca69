#include "recordingsamples.h"

#include "frames/timeunits.h"
#include "recording/recordingreader.h"
#include "recording/wiretally.h"

#include <QBuffer>
#include <QFile>

#include <algorithm>

ArrivalTime sampleTime(qint64 us)
{
    return {sampleUtcUs + us, sampleMonoNs + us * nsPerUs};
}

RecordEvent sampleEvent(RecordEvent::Kind kind, const char *digits, qint64 us)
{
    RecordEvent event;
    event.kind = kind;
    event.time = sampleTime(us);
    event.bytes = QByteArray::fromHex(digits);
    return event;
}

QVector<RecordEvent> sampleEvents()
{
    using Kind = RecordEvent::Kind;
    RecordEvent open = sampleEvent(Kind::Open);
    open.link = "/dev/ttyUSB0";
    open.settings = "115200 8N1";
    RecordEvent sent = sampleEvent(Kind::Sent, "5AA5080103000000018 40A", 10);
    sent.crc = RecordEvent::Crc::Ok;
    sent.row = 3;
    sent.text = QString::fromUtf8("Read \"status\"\t\\ \u6E29\u5EA6");
    RecordEvent received = sampleEvent(Kind::Received, "5AA503011234", 2500);
    received.crc = RecordEvent::Crc::Bad;
    const RecordEvent stray = sampleEvent(Kind::Stray, "00FF0A0D", 3000);
    RecordEvent note = sampleEvent(Kind::Note, "", 4000);
    note.text = "12 bytes dropped";
    RecordEvent close = sampleEvent(Kind::Close, "", 5000);
    close.link = "/dev/ttyUSB0";
    close.text = "the device is gone";
    return {open, sent, received, stray, note, close};
}

RecordingHead sampleHead()
{
    RecordingHead head;
    head.time = sampleTime();
    head.version = "1.0.0";
    head.link = "/dev/ttyUSB0";
    head.settings = "115200 8N1";
    head.startBytes = QByteArray::fromHex("5AA5");
    head.withCrc = true;
    head.zone = "+01:00 Europe/Berlin";
    return head;
}

bool areSame(const RecordEvent &one, const RecordEvent &other)
{
    return one.kind == other.kind && one.time.utcUs == other.time.utcUs &&
           one.time.monotonicNs == other.time.monotonicNs && one.bytes == other.bytes &&
           one.crc == other.crc && one.row == other.row && one.text == other.text &&
           one.link == other.link && one.settings == other.settings;
}

bool areSame(const QVector<RecordEvent> &one, const QVector<RecordEvent> &other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const RecordEvent &a, const RecordEvent &b) { return areSame(a, b); });
}

QByteArray sampleFileWithoutTail(RecordingFormat format, const QVector<RecordEvent> &events)
{
    const auto writer = makeRecordingWriter(format);
    QByteArray file = writer->head(sampleHead());
    for (const RecordEvent &event : events) {
        writer->append(file, event);
    }
    return file;
}

QByteArray sampleFile(RecordingFormat format, const QVector<RecordEvent> &events)
{
    WireTally tally;
    for (const RecordEvent &event : events) {
        tally.add(event);
    }
    RecordingTail tail;
    tail.time = sampleTime(6000);
    tail.file = tally.sums();
    tail.recording = tally.sums();
    tail.droppedEvents = 2;
    tail.droppedBytes = 17;
    tail.reason = "stopped";
    return sampleFileWithoutTail(format, events) + makeRecordingWriter(format)->tail(tail);
}

static ReadFile readDevice(QIODevice &device)
{
    const auto reader = makeRecordingReader(device);
    ReadFile file;
    while (const auto event = reader->next()) {
        file.events.append(*event);
    }
    file.head = reader->head();
    file.hasTail = reader->tail().has_value();
    file.tail = reader->tail().value_or(RecordingTail());
    file.isTorn = reader->isTorn();
    file.error = reader->error();
    return file;
}

ReadFile readBytes(const QByteArray &file)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    return readDevice(buffer);
}

ReadFile readPath(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return readDevice(file);
}
