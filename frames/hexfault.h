#pragma once

#include <QString>

/// What keeps a text from being read as hex pairs.
enum class HexFault {
    None,
    /// A token has an odd number of digits.
    OddDigits,
    /// There is a character that is no hex digit.
    NoHexDigit
};

/// The first fault of a part of a command text, by the rules of parsePayload(): blanks separate
/// tokens, what stands in double quotes may be anything, and so may what follows a slash. An empty
/// text has none.
HexFault hexFaultOf(const QString &text);
