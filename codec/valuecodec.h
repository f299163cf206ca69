#pragma once

#include <QString>

/// A value as hex text, and what the user has to know about it.
struct ConvertedValue
{
    QString hex;
    /// A message for the user about a string that is over its word number, which is kept whole;
    /// empty for none.
    QString report;
    /// Characters that became "?", see EncodedText; of a mix, those of its first such string.
    QString unencodable;
};

/// The hex text of a value whose kind is given by name, see valueKindNamed().
///
/// - Numbers: see encodeNumbers().
/// - "STRING:encoding": the text with terminator. With an even number of "%%" in it, it is a list
/// of
///   fields "%%words%%text", each filled with zeros to its number of 16-bit words, without
///   terminator; what stands before the first "%%" is ignored. A count that is no number, or more
///   than an instruction can hold together with the fields before, counts as 0.
/// - "TIME": like "SHORT", the first number less 2000.
/// - "MIX": segments "KIND:value" with "%%" between them, joined. A segment without a colon is read
///   as "INT", and what follows "STRING:" is an encoding only where it names one and a colon
///   follows.
ConvertedValue convertValue(const QString &kindText, const QString &value);
