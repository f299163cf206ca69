#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The base that numbers of hex digits are read and written in.
inline constexpr int hexBase = 16;

/// Value 0 to 15 of a hexadecimal digit of either case; nothing for any other character.
std::optional<quint8> hexDigitValue(char digit);

/// One byte from two characters, the first one being the high nibble.
///
/// The two are not treated alike: a first character that is no hex digit counts as 0, while a
/// second one that is no hex digit makes the whole byte 0.
/// See docs/deliberate.md, Unequal digits.
quint8 hexPairToByte(char high, char low);

/// Each byte as two upper-case hex digits and one blank, so n bytes give 3n characters.
QString formatHexBytes(const QByteArray &bytes);

/// The value as upper-case hex digits, filled with leading zeros to at least `digits` digits.
QString paddedHex(quint64 value, int digits);

/// The text without its blanks; other white space stays.
QString withoutBlanks(const QString &text);

/// Whether a text has nothing but blanks, or nothing at all.
bool isBlank(const QString &text);

/// Puts a blank before every second character counted from the right end: "01020" gives "0 10 20".
QString groupPairsFromRight(const QString &digits);
