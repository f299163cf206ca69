#pragma once

#include "codec/valuekind.h"

#include <QString>

/// The hex text of decimal numbers that are separated by ",": digits in pairs, most significant
/// byte first, negative numbers as two's complement.
///
/// White space around a number is ignored. An element that is no decimal number of the kind's
/// range counts as 0, so the empty text gives one zero value.
QString encodeNumbers(const QString &decimals, const NumberKind &kind);

/// The numbers that hex text holds, decimal, separated by ","; see hexGroups() for how it is read.
/// The empty text holds none.
QString decodeNumbers(const QString &hex, const NumberKind &kind);
