#include "recording/jsonobject.h"

#include "frames/messages.h"
#include "frames/timeunits.h"
#include "recording/eventnames.h"
#include "recording/utctext.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace {

/// Numbers beyond that aren't exact in JSON.
constexpr double largestExact = 9007199254740992.0;

/// Takes members out of an object; the first one that isn't as it must be is remembered.
class MemberReader
{
public:
    explicit MemberReader(QJsonObject object)
        : m_object(std::move(object))
    {}

    QString fault() const { return m_fault; }

    QString text(const char *name)
    {
        const QJsonValue value = m_object.value(QLatin1String(name));
        if (!value.isUndefined() && !value.isString()) {
            complain(Messages::tr("\"%1\" is no text").arg(QLatin1String(name)));
        }
        return value.toString();
    }

    QByteArray hex(const char *name)
    {
        const QByteArray digits = text(name).toLatin1();
        QByteArray bytes = QByteArray::fromHex(digits);
        if (bytes.toHex() != digits.toLower()) {
            complain(Messages::tr("\"%1\" is no hexadecimal text").arg(QLatin1String(name)));
        }
        return bytes;
    }

    qint64 number(const char *name)
    {
        const QJsonValue value = m_object.value(QLatin1String(name));
        const double number = value.toDouble();
        if (!value.isUndefined() && (!value.isDouble() || std::abs(number) > largestExact ||
                                     std::floor(number) != number)) {
            complain(Messages::tr("\"%1\" is no whole number").arg(QLatin1String(name)));
            return 0;
        }
        return static_cast<qint64>(number);
    }

    /// A number from 0 to what an int holds.
    int count(const char *name)
    {
        const qint64 value = number(name);
        if (value < 0 || value > std::numeric_limits<int>::max()) {
            complain(Messages::tr("\"%1\" is out of range").arg(QLatin1String(name)));
            return 0;
        }
        return static_cast<int>(value);
    }

    ArrivalTime time()
    {
        const std::optional<qint64> utc = parseUtcText(text("t").toLatin1());
        if (!utc) {
            complain(Messages::tr("no time"));
        }
        return {utc.value_or(0), number("mono_us") * nsPerUs};
    }

    MemberReader object(const char *name) const
    {
        return MemberReader(m_object.value(QLatin1String(name)).toObject());
    }

    void complain(const QString &fault)
    {
        if (m_fault.isEmpty()) {
            m_fault = fault;
        }
    }

private:
    QJsonObject m_object;
    QString m_fault;
};

JsonLine headIn(MemberReader &members, const QJsonObject &object)
{
    RecordingHead head;
    head.time = members.time();
    head.version = members.text("version");
    head.link = members.text("link");
    head.settings = members.text("settings");
    head.startBytes = members.hex("start");
    head.withCrc = object.value(QLatin1String("crc")).toBool();
    head.zone = members.text("zone");
    head.part = members.count("part");
    if (!members.text("format").startsWith(QLatin1String("tarnwick-recording-1"))) {
        members.complain(Messages::tr("an unknown format"));
    }
    return head;
}

DirectionSum sumIn(MemberReader members)
{
    return {members.number("frames"), members.number("stray"), members.number("bytes"),
            members.text("sha256").toLatin1()};
}

WireSums sumsIn(const MemberReader &members)
{
    return {sumIn(members.object("tx")), sumIn(members.object("rx"))};
}

JsonLine tailIn(MemberReader &members)
{
    RecordingTail tail;
    tail.time = members.time();
    tail.reason = members.text("reason");
    tail.file = sumsIn(members.object("file"));
    tail.recording = sumsIn(members.object("recording"));
    tail.droppedEvents = members.number("dropped_events");
    tail.droppedBytes = members.number("dropped_bytes");
    return tail;
}

void readBytes(MemberReader &members, RecordEvent &event)
{
    event.bytes = members.hex("bytes");
    event.row = members.count("row");
    event.text = members.text("desc");
    const QByteArray crc = members.text("crc").toLatin1();
    const auto known = crcNamed(crc.isEmpty() ? QByteArray("none") : crc);
    if (!known) {
        members.complain(Messages::tr("\"crc\" is not ok, bad or none"));
    }
    event.crc = known.value_or(RecordEvent::Crc::None);
}

JsonLine eventIn(MemberReader &members, RecordEvent::Kind kind)
{
    RecordEvent event;
    event.kind = kind;
    event.time = members.time();
    if (event.hasBytes()) {
        readBytes(members, event);
    } else {
        event.link = members.text("link");
        event.settings = members.text("settings");
        event.text = members.text("text");
    }
    return event;
}

JsonLine lineIn(MemberReader &members, const QJsonObject &object)
{
    const QByteArray name = members.text("ev").toLatin1();
    if (name == "begin") {
        return headIn(members, object);
    }
    if (name == "end") {
        return tailIn(members);
    }
    if (const auto kind = eventKind(name)) {
        return eventIn(members, *kind);
    }
    return JsonFault{Messages::tr("an unknown \"ev\"")};
}

} // namespace

JsonLine parseJsonLine(const QByteArray &line)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (!document.isObject()) {
        return JsonFault{document.isNull() ? error.errorString() : Messages::tr("no object")};
    }
    const QJsonObject object = document.object();
    MemberReader members(object);
    JsonLine read = lineIn(members, object);
    return members.fault().isEmpty() ? read : JsonFault{members.fault()};
}
