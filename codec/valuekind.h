#pragma once

#include <QString>

#include <optional>

/// The kinds of number a value can have, in the order of the editor's type list.
enum class NumberKind { Int, UInt, Char, UChar, Short, UShort, LongLong };

/// How the numbers of a kind stand in hex text, and which numbers the kind has.
struct NumberFormat
{
    /// Hex digits of one value in the text. "CHAR" and "UCHAR" have four although they hold one
    /// byte: devices expect each value in a word of its own.
    int digits;
    /// Bits of these digits that carry the value.
    int bits;
    bool isSigned;
    qint64 lowest;
    qint64 highest;
};

NumberFormat numberFormat(NumberKind kind);

/// The encodings of text, in the order of the editor's encoding list.
enum class StringEncoding { Gb2312, Gbk, Unicode };

/// Every kind of value that can be named; the numbers come first, in NumberKind's order.
enum class ValueKind { Int, UInt, Char, UChar, Short, UShort, LongLong, String, Time, Mix };

/// The number kind of a value kind; none for "STRING", "TIME" and "MIX".
std::optional<NumberKind> numberKind(ValueKind kind);

/// The kind that a kind text names, compared case-sensitively: the first kind whose name contains
/// the text ("T" is INT), or STRING when the text contains that word. INT when nothing matches.
ValueKind valueKindNamed(const QString &kindText);

/// The encoding of that name in any case: "GBK2312" or "GB2312", "GBK", "UNICODE".
std::optional<StringEncoding> encodingNamed(const QString &name);

/// The encoding behind the colon of a kind text like "STRING:GBK"; GB2312 when there is none or
/// it is unknown.
StringEncoding encodingOfKind(const QString &kindText);

/// What the editor's two lists show for a row, as list indexes.
struct EditorSelection
{
    int type;
    int encoding;
};

/// Index of "short" in the editor's type list, for rows of no known type.
inline constexpr int shortTypeIndex = static_cast<int>(NumberKind::Short);
/// Index of "string" in the editor's type list; the indexes before it are those of NumberKind.
inline constexpr int stringTypeIndex = static_cast<int>(ValueKind::String);

/// The selection for a row's type text, in any case: the first of the number kinds' names and the
/// encodings "GB2312", "GBK", "UNICODE" that contains the text. "short" and "GB2312" for an empty
/// text and one found nowhere.
EditorSelection editorSelection(const QString &rowType);
