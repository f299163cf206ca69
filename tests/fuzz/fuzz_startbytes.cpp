#include "frames/startbytes.h"
#include "fuzzing.h"

#include <algorithm>

namespace {

int countKept(const QByteArray &field)
{
    const QByteArray kept("0123456789abcdefABCDEFxX");
    return static_cast<int>(std::count_if(field.begin(), field.end(), [&kept](char character) {
        return character != '\0' && kept.contains(character);
    }));
}

void requireRoundTrip(StartBytes startBytes)
{
    const QString digits = QString::fromLatin1(bytesOf(startBytes).toHex());
    require(digits.size() == 4);
    const QString field =
        QLatin1String("0x") + digits.left(2) + QLatin1String(",0x") + digits.mid(2);
    const std::optional<StartBytes> again = parseStartBytes(field);
    require(again.has_value());
    require(again->first == startBytes.first && again->second == startBytes.second);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    useUtf8();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString field = QString::fromUtf8(fuzzInput(data, size));
    const QByteArray bytes = field.toUtf8();
    const std::optional<StartBytes> parsed = parseStartBytes(field);
    require(parsed.has_value() == (bytes.size() <= 9 && countKept(bytes) >= 8));
    if (parsed) {
        requireRoundTrip(*parsed);
    }
    return 0;
}
