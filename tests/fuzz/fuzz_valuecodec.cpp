#include "codec/numbercodec.h"
#include "codec/stringcodec.h"
#include "codec/valuecodec.h"
#include "frames/hextext.h"

#include <QStringList>

#include <array>
#include <cstdlib>

namespace {

constexpr std::array encodings = {StringEncoding::Gb2312, StringEncoding::Gbk,
                                  StringEncoding::Unicode};

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// Pairs of upper-case digits with one blank between them.
void requireHexText(const QString &hex)
{
    static const QString digits = QStringLiteral("0123456789ABCDEF");
    require(hex.isEmpty() || hex.size() % 3 == 2);
    for (int i = 0; i < hex.size(); ++i) {
        require(i % 3 == 2 ? hex.at(i) == QLatin1Char(' ') : digits.contains(hex.at(i)));
    }
}

/// What was read from any hex text is written as hex text that reads the same.
void checkNumbers(const QString &text)
{
    for (const NumberKind &kind : numberKinds) {
        requireHexText(encodeNumbers(text, kind));
        const QString decimals = decodeNumbers(text, kind);
        if (!decimals.isEmpty()) {
            require(decodeNumbers(encodeNumbers(decimals, kind), kind) == decimals);
        }
    }
}

void checkStrings(const QString &text)
{
    for (const StringEncoding encoding : encodings) {
        const EncodedText encoded = encodeString(text, encoding);
        requireHexText(withTerminator(encoded.hex));
        require((withTerminator(encoded.hex).size() + 1) % 6 == 0);
        if (encoded.unencodable.isEmpty()) {
            require(decodeString(encoded.hex, encoding) == text);
        }
        withoutTerminator(decodeString(text, encoding));
    }
}

} // namespace

/// The first line is the kind, what follows is the value, or hex text to be read.
extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    const QString input =
        QString::fromUtf8(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    const QString kindText = input.section(QLatin1Char('\n'), 0, 0);
    const QString value = input.section(QLatin1Char('\n'), 1);
    requireHexText(convertValue(kindText, value).hex);
    checkNumbers(value);
    checkStrings(value);
    return 0;
}
