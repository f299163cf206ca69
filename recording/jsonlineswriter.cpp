#include "recording/jsonlineswriter.h"

#include "recording/eventnames.h"
#include "recording/jsontext.h"

namespace {

void appendHex(QByteArray &line, const QByteArray &bytes)
{
    constexpr char digits[] = "0123456789ABCDEF";
    for (const char byte : bytes) {
        const auto value = static_cast<quint8>(byte);
        line += digits[value >> 4U];
        line += digits[value & 0xFU];
    }
}

void appendBytes(QByteArray &line, const RecordEvent &event)
{
    line += R"(,"bytes":")";
    appendHex(line, event.bytes);
    line += R"(","crc":")" + crcName(event.crc) + '"';
    if (event.row > 0) {
        line += ",\"row\":" + QByteArray::number(event.row);
    }
    if (!event.text.isEmpty()) {
        line += ",\"desc\":" + jsonString(event.text);
    }
}

void appendWords(QByteArray &line, const RecordEvent &event)
{
    if (!event.link.isEmpty()) {
        line += ",\"link\":" + jsonString(event.link);
    }
    if (!event.settings.isEmpty()) {
        line += ",\"settings\":" + jsonString(event.settings);
    }
    if (!event.text.isEmpty()) {
        line += ",\"text\":" + jsonString(event.text);
    }
}

} // namespace

QByteArray JsonLinesWriter::head(const RecordingHead &head)
{
    return jsonHead(head) + '\n';
}

void JsonLinesWriter::append(QByteArray &bytes, const RecordEvent &event)
{
    bytes += '{' + jsonTime(event.time) + R"(,"ev":")" + eventName(event.kind) + '"';
    if (event.hasBytes()) {
        appendBytes(bytes, event);
    } else {
        appendWords(bytes, event);
    }
    bytes += "}\n";
}

QByteArray JsonLinesWriter::tail(const RecordingTail &tail)
{
    return jsonTail(tail) + '\n';
}
