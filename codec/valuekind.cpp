#include "valuekind.h"

#include <QStringList>

#include <array>
#include <limits>

namespace {

constexpr int numberKindCount = 7;

template<typename T>
constexpr NumberFormat formatOf(int digits)
{
    using Limits = std::numeric_limits<T>;
    return {digits, static_cast<int>(sizeof(T)) * 8, Limits::is_signed,
            static_cast<qint64>(Limits::min()), static_cast<qint64>(Limits::max())};
}

constexpr std::array<NumberFormat, numberKindCount> formats = {
    formatOf<qint32>(8), formatOf<quint32>(8), formatOf<qint8>(4),   formatOf<quint8>(4),
    formatOf<qint16>(4), formatOf<quint16>(4), formatOf<qint64>(16),
};

const QStringList &numberKindNames()
{
    static const QStringList names = {"INT",   "UINT",   "CHAR",    "UCHAR",
                                      "SHORT", "USHORT", "LONGLONG"};
    return names;
}

const QStringList &valueKindNames()
{
    static const QStringList names = numberKindNames() + QStringList{"STRING", "TIME", "MIX"};
    return names;
}

const QStringList &rowTypeNames()
{
    static const QStringList names = numberKindNames() + QStringList{"GB2312", "GBK", "UNICODE"};
    return names;
}

/// Index of the first name that contains the text, -1 for none. An empty text is in every name.
int firstContaining(const QStringList &names, const QString &text)
{
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).contains(text)) {
            return i;
        }
    }
    return -1;
}

} // namespace

NumberFormat numberFormat(NumberKind kind)
{
    return formats.at(static_cast<std::size_t>(kind));
}

std::optional<NumberKind> numberKind(ValueKind kind)
{
    const int index = static_cast<int>(kind);
    if (index >= numberKindCount) {
        return std::nullopt;
    }
    return static_cast<NumberKind>(index);
}

ValueKind valueKindNamed(const QString &kindText)
{
    // No name before "STRING" contains a text that contains it, so looking for it first is safe.
    if (kindText.contains(QLatin1String("STRING"))) {
        return ValueKind::String;
    }
    const int index = firstContaining(valueKindNames(), kindText);
    return index < 0 ? ValueKind::Int : static_cast<ValueKind>(index);
}

std::optional<StringEncoding> encodingNamed(const QString &name)
{
    const QString upper = name.toUpper();
    if (upper == QLatin1String("GBK2312") || upper == QLatin1String("GB2312")) {
        return StringEncoding::Gb2312;
    }
    if (upper == QLatin1String("GBK")) {
        return StringEncoding::Gbk;
    }
    if (upper == QLatin1String("UNICODE")) {
        return StringEncoding::Unicode;
    }
    return std::nullopt;
}

StringEncoding encodingOfKind(const QString &kindText)
{
    return encodingNamed(kindText.section(QLatin1Char(':'), 1, 1)).value_or(StringEncoding::Gb2312);
}

EditorSelection editorSelection(const QString &rowType)
{
    const int index = rowType.isEmpty() ? -1 : firstContaining(rowTypeNames(), rowType.toUpper());
    if (index < 0) {
        return {shortTypeIndex, 0};
    }
    if (index < numberKindCount) {
        return {index, 0};
    }
    return {stringTypeIndex, index - numberKindCount};
}
