#include "frames/crc16.h"
#include "frames/framebuilder.h"
#include "frames/hextext.h"
#include "fuzzing.h"

namespace {

constexpr int layoutBytes = 3;

/// The layout that the first bytes of an input stand for: four flags and the start bytes.
FrameLayout layoutOf(const QByteArray &input)
{
    const auto flags = static_cast<quint8>(input.at(0));
    FrameLayout layout;
    layout.startBytes = {static_cast<quint8>(input.at(1)), static_cast<quint8>(input.at(2))};
    layout.withStartBytes = (flags & 1U) != 0;
    layout.withLength = (flags & 2U) != 0;
    layout.withCrc = (flags & 4U) != 0;
    layout.maximumInstructionLength = (flags & 8U) != 0 ? 65535 : 255;
    return layout;
}

/// What a length field at the beginning of the frame says, which is then cut off.
int takeLength(QByteArray &frame, bool longForm)
{
    if (!longForm) {
        const auto length = static_cast<quint8>(frame.at(0));
        frame.remove(0, 1);
        return length;
    }
    require(frame.at(0) == '\0');
    const auto high = static_cast<quint8>(frame.at(1));
    const auto low = static_cast<quint8>(frame.at(2));
    frame.remove(0, 3);
    return high * 256 + low;
}

void requireFrame(QByteArray frame, const QByteArray &payload, const FrameLayout &layout)
{
    if (layout.withStartBytes) {
        require(static_cast<quint8>(frame.at(0)) == layout.startBytes.first);
        require(static_cast<quint8>(frame.at(1)) == layout.startBytes.second);
        frame.remove(0, 2);
    }
    const int length = payload.size() + (layout.withCrc ? 2 : 0);
    if (layout.withLength) {
        const bool longForm =
            layout.maximumInstructionLength == 65535 && length > 255 && payload.startsWith('\x10');
        require(takeLength(frame, longForm) == (length & (longForm ? 0xFFFF : 0xFF)));
    }
    require(frame.size() == length);
    require(frame.startsWith(payload));
    // The CRC of bytes and their own CRC is 0.
    require(!layout.withCrc || crc16Modbus(frame) == 0);
}

void requirePayload(const QString &text, const QByteArray &payload)
{
    require(!payload.isEmpty());
    require(payload.size() <= text.toUtf8().size());
    require(parsePayload(formatHexBytes(payload)) == payload);
    require(parsePayload(QLatin1String(" 7e ") + text) == '\x7E' + payload);
    require(parsePayload(QLatin1String("\"\"\t") + text) == payload);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    useUtf8();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < layoutBytes) {
        return 0;
    }
    const QByteArray input = fuzzInput(data, size);
    const FrameLayout layout = layoutOf(input);
    const QString text = QString::fromUtf8(input.mid(layoutBytes));
    const std::optional<QByteArray> payload = parsePayload(text);
    const QByteArray frame = buildFrame(text, layout);
    require(frame.isEmpty() == !payload.has_value());
    if (payload) {
        requirePayload(text, *payload);
        requireFrame(frame, *payload, layout);
    }
    return 0;
}
