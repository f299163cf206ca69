#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <limits>
#include <optional>
#include <string_view>

/// A kind of number: what it is called, how its numbers stand in hex text, and which numbers it
/// has.
struct NumberKind
{
    /// As a kind text names it.
    std::string_view name;
    /// As the editor's type list shows it.
    std::string_view caption;
    /// Hex digits of one value in the text. "CHAR" and "UCHAR" have four although they hold one
    /// byte. See docs/deliberate.md, Wide characters.
    int digits = 0;
    /// Bits of these digits that carry the value.
    int bits = 0;
    bool isSigned = false;
    qint64 lowest = 0;
    quint64 highest = 0;
};

/// The kind that has the width, the sign and the range of an integer type.
template<typename Integer>
constexpr NumberKind numberKindOf(std::string_view name, std::string_view caption, int digits)
{
    using Limits = std::numeric_limits<Integer>;
    return {name,
            caption,
            digits,
            static_cast<int>(sizeof(Integer)) * 8,
            Limits::is_signed,
            static_cast<qint64>(Limits::min()),
            static_cast<quint64>(Limits::max())};
}

/// Every kind of number, in the order of the editor's type list.
inline constexpr std::array numberKinds = {
    numberKindOf<qint32>("INT", "int", 8),
    numberKindOf<quint32>("UINT", "uint", 8),
    numberKindOf<qint8>("CHAR", "char", 4),
    numberKindOf<quint8>("UCHAR", "uchar", 4),
    numberKindOf<qint16>("SHORT", "short", 4),
    numberKindOf<quint16>("USHORT", "ushort", 4),
    numberKindOf<qint64>("LONGLONG", "longlong", 16),
};

/// The place of the kind of that name among them. There has to be one.
constexpr std::size_t numberKindIndex(std::string_view name)
{
    std::size_t index = 0;
    while (numberKinds.at(index).name != name) {
        ++index;
    }
    return index;
}

inline constexpr NumberKind intKind = numberKinds[numberKindIndex("INT")];
inline constexpr NumberKind shortKind = numberKinds[numberKindIndex("SHORT")];

/// The encodings of text, in the order of the editor's encoding list.
enum class StringEncoding { Gb2312, Gbk, Unicode };

/// What a value can be: numbers of one kind, a text, a time, or several values one after the other.
enum class ValueKind { Number, String, Time, Mix };

/// The kind that a kind text names, compared case-sensitively: the first whose name contains the
/// text ("T" is a number, "INT"), the number kinds before "STRING", "TIME" and "MIX"; but "STRING"
/// when the text contains that word. A number when nothing matches.
ValueKind valueKindNamed(const QString &kindText);

/// The kind of number that a kind text names, compared in the same way; INT when nothing matches.
NumberKind numberKindNamed(const QString &kindText);

/// The encoding of that name in any case: "GBK2312" or "GB2312", "GBK", "UNICODE".
/// See docs/deliberate.md, Two names.
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

/// The items of the editor's type list: the number kinds, and "string".
QStringList editorTypes();

/// Index of "short" in the editor's type list, for rows of no known type.
inline constexpr int shortTypeIndex = static_cast<int>(numberKindIndex("SHORT"));
/// Index of "string" in the editor's type list; the indexes before it are those of numberKinds.
inline constexpr int stringTypeIndex = static_cast<int>(numberKinds.size());

/// The selection for a row's type text, in any case: the first of the number kinds' names and the
/// encodings "GB2312", "GBK", "UNICODE" that contains the text. "short" and "GB2312" for an empty
/// text and one found nowhere.
EditorSelection editorSelection(const QString &rowType);
