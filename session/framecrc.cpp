#include "session/framecrc.h"

#include "frames/crc16.h"

namespace {

constexpr int startSize = 2;
constexpr int shortLength = 1;
constexpr int longLength = 3;

int lengthSize(const QByteArray &frame, int begin)
{
    constexpr int longestShortFrame = 0xFF;
    const bool isLong = frame.size() > begin + longestShortFrame && frame.at(begin) == 0 &&
                        frame.at(begin + longLength) == longFormCommand;
    return isLong ? longLength : shortLength;
}

int payloadBegin(const QByteArray &frame, const FrameLayout &layout)
{
    const int begin = layout.withStartBytes ? startSize : 0;
    return layout.withLength && frame.size() > begin ? begin + lengthSize(frame, begin) : begin;
}

} // namespace

RecordEvent::Crc crcOfFrame(const QByteArray &frame, const FrameLayout &layout)
{
    const int begin = payloadBegin(frame, layout);
    const int size = frame.size() - begin - crcSize;
    if (!layout.withCrc || size <= 0) {
        return RecordEvent::Crc::None;
    }
    const quint16 crc = crc16Modbus(QByteArray::fromRawData(frame.constData() + begin, size));
    const auto low = static_cast<quint8>(frame.at(frame.size() - 2));
    const auto high = static_cast<quint8>(frame.at(frame.size() - 1));
    return crc == (high << 8U | low) ? RecordEvent::Crc::Ok : RecordEvent::Crc::Bad;
}

FrameLayout receivedLayout(FrameLayout layout)
{
    layout.withStartBytes = true;
    layout.withLength = true;
    return layout;
}
