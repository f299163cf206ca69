#include "frames/startbytes.h"

#include "frames/hextext.h"

namespace {

constexpr int longestField = 9;
constexpr int digitsOfField = 8;

bool belongsToField(char character)
{
    return hexDigitValue(character).has_value() || character == 'x' || character == 'X';
}

} // namespace

std::optional<StartBytes> parseStartBytes(const QString &headerField)
{
    const QByteArray bytes = headerField.toLocal8Bit();
    if (bytes.size() > longestField) {
        return std::nullopt;
    }
    QByteArray kept;
    for (const char byte : bytes) {
        if (belongsToField(byte) && kept.size() < digitsOfField) {
            kept.append(byte);
        }
    }
    if (kept.size() < digitsOfField) {
        return std::nullopt;
    }
    return StartBytes{hexPairToByte(kept.at(2), kept.at(3)), hexPairToByte(kept.at(6), kept.at(7))};
}

QByteArray bytesOf(StartBytes startBytes)
{
    const char bytes[] = {static_cast<char>(startBytes.first),
                          static_cast<char>(startBytes.second)};
    return {bytes, sizeof bytes};
}
