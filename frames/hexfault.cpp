#include "frames/hexfault.h"

#include "frames/hextext.h"

#include <QStringList>

#include <algorithm>

namespace {

bool isHexDigit(QChar character)
{
    return hexDigitValue(character.toLatin1()).has_value();
}

/// The text without its literals and its comment.
QString digitsOf(const QString &text)
{
    QString digits;
    bool inLiteral = false;
    for (const QChar character : text) {
        if (character == QLatin1Char('"')) {
            inLiteral = !inLiteral;
        } else if (character == QLatin1Char('/') && !inLiteral) {
            break;
        } else if (!inLiteral) {
            digits.append(character);
        }
    }
    return digits;
}

} // namespace

HexFault hexFaultOf(const QString &text)
{
    const QStringList tokens = digitsOf(text).split(QLatin1Char(' '));
    for (const QString &token : tokens) {
        if (!std::all_of(token.cbegin(), token.cend(), isHexDigit)) {
            return HexFault::NoHexDigit;
        }
        if (token.size() % 2 != 0) {
            return HexFault::OddDigits;
        }
    }
    return HexFault::None;
}
