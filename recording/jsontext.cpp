#include "recording/jsontext.h"

#include "frames/timeunits.h"
#include "recording/utctext.h"

namespace {

QByteArray jsonEscape(char character)
{
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return "\\u00" + QByteArray(1, character).toHex();
    }
}

bool needsEscape(char character)
{
    constexpr unsigned char firstPrintable = 0x20;
    return static_cast<unsigned char>(character) < firstPrintable || character == '"' ||
           character == '\\';
}

QByteArray member(const char *name, const QByteArray &json)
{
    return QByteArray(",\"") + name + "\":" + json;
}

QByteArray member(const char *name, const QString &text)
{
    return member(name, jsonString(text));
}

QByteArray member(const char *name, qint64 number)
{
    return member(name, QByteArray::number(number));
}

QByteArray jsonSum(const DirectionSum &sum)
{
    return "{\"frames\":" + QByteArray::number(sum.frames) + member("stray", sum.stray) +
           member("bytes", sum.bytes) + member("sha256", '"' + sum.sha256 + '"') + '}';
}

QByteArray jsonSums(const WireSums &sums)
{
    return "{\"tx\":" + jsonSum(sums.sent) + member("rx", jsonSum(sums.received)) + '}';
}

} // namespace

QByteArray jsonString(const QString &text)
{
    QByteArray json = "\"";
    for (const char character : text.toUtf8()) {
        if (needsEscape(character)) {
            json += jsonEscape(character);
        } else {
            json += character;
        }
    }
    return json + '"';
}

QByteArray jsonHead(const RecordingHead &head)
{
    return '{' + jsonTime(head.time) + member("ev", QByteArray("\"begin\"")) +
           member("format", QByteArray("\"tarnwick-recording-1\"")) +
           member("version", head.version) + member("link", head.link) +
           member("settings", head.settings) +
           member("start", '"' + head.startBytes.toHex().toUpper() + '"') +
           member("crc", QByteArray(head.withCrc ? "true" : "false")) + member("zone", head.zone) +
           member("part", head.part) + '}';
}

QByteArray jsonTail(const RecordingTail &tail)
{
    return '{' + jsonTime(tail.time) + member("ev", QByteArray("\"end\"")) +
           member("reason", tail.reason) + member("file", jsonSums(tail.file)) +
           member("recording", jsonSums(tail.recording)) +
           member("dropped_events", tail.droppedEvents) +
           member("dropped_bytes", tail.droppedBytes) + '}';
}

QByteArray jsonTime(ArrivalTime time)
{
    return R"("t":")" + utcText(time.utcUs) + R"(","mono_us":)" +
           QByteArray::number(time.monotonicNs / nsPerUs);
}
