#include "figures.h"
#include "frames/crc16.h"
#include "frames/framebuilder.h"
#include "frames/hextext.h"
#include "log/fieldcutter.h"
#include "log/framereassembler.h"

// The pure halves: bytes and frames a second.

namespace {

constexpr int payloadBytes = 1000;
constexpr int rounds = 2000;
constexpr int streamFrames = 60000;
constexpr int chunkBytes = 4000;
constexpr double million = 1e6;

double perSecond(double amount, const std::function<void()> &work)
{
    return amount / medianSeconds(work);
}

void printBuilding()
{
    constexpr double bytes = double(payloadBytes) * rounds;
    const QByteArray payload(payloadBytes, '\x5C');
    const QString frameText =
        QStringLiteral("03") + QStringLiteral("5C").repeated(payloadBytes - 1);
    FrameLayout layout;
    layout.withCrc = true;
    quint64 sum = 0;
    printFigure("CRC",
                perSecond(bytes,
                          [&] {
                              for (int i = 0; i < rounds; ++i) {
                                  sum += crc16Modbus(payload);
                              }
                          }) /
                    million,
                "MB/s");
    printFigure("frame text to frame",
                perSecond(bytes,
                          [&] {
                              for (int i = 0; i < rounds; ++i) {
                                  sum += static_cast<quint64>(buildFrame(frameText, layout).size());
                              }
                          }) /
                    million,
                "MB/s");
    printFigure("bytes to hex text",
                perSecond(bytes,
                          [&] {
                              for (int i = 0; i < rounds; ++i) {
                                  sum += static_cast<quint64>(formatHexBytes(payload).size());
                              }
                          }) /
                    million,
                "MB/s");
}

void printReceiving()
{
    const QByteArray frame = QByteArray::fromHex("5AA50803100000000000 77");
    const QByteArray stream = frame.repeated(streamFrames);
    const QString text = formatHexBytes(frame);
    int found = 0;
    printFigure(
        "reassembled",
        perSecond(
            streamFrames,
            [&] {
                FrameReassembler reassembler;
                for (int at = 0; at < stream.size(); at += chunkBytes) {
                    found += reassembler.take(stream.mid(at, chunkBytes), {0x5A, 0xA5}).size();
                }
            }),
        "frames/s");
    printFigure("cut into fields",
                perSecond(streamFrames,
                          [&] {
                              for (int i = 0; i < streamFrames; ++i) {
                                  found += cutReceivedFrame(text, true).data.size();
                              }
                          }),
                "frames/s");
}

} // namespace

int main()
{
    printHeading(QString("frames: payloads of %1 bytes").arg(payloadBytes));
    printBuilding();
    printHeading("frames: 11 bytes each");
    printReceiving();
    return 0;
}
