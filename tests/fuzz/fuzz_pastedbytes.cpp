#include "codec/pastedbytes.h"
#include "frames/hextext.h"
#include "fuzzing.h"

/// What was read is read again, the same, from each way of writing it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(fuzzInput(data, size));
    const PastedBytes read = readPastedBytes(text);
    require(read.bytes.isEmpty() == (read.fault != PasteFault::None));
    require(read.bytes.size() <= mostPastedBytes && read.part.size() <= 21);
    if (read.bytes.isEmpty()) {
        return 0;
    }
    QString escapes;
    QString numbers;
    for (const char byte : read.bytes) {
        const QString digits = QString::fromLatin1(QByteArray(1, byte).toHex());
        escapes += QLatin1String("\\x") + digits;
        numbers += QLatin1String("0x") + digits + QLatin1Char(',');
    }
    for (const QString &again : {formatHexBytes(read.bytes), escapes, numbers}) {
        require(readPastedBytes(again).bytes == read.bytes);
    }
    return 0;
}
