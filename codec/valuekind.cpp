#include "codec/valuekind.h"

namespace {

QString text(std::string_view latin1)
{
    return QLatin1String(latin1.data(), static_cast<int>(latin1.size()));
}

QStringList texts(std::string_view NumberKind::*which)
{
    QStringList texts;
    for (const NumberKind &kind : numberKinds) {
        texts.append(text(kind.*which));
    }
    return texts;
}

const QStringList &numberKindNames()
{
    static const QStringList names = texts(&NumberKind::name);
    return names;
}

/// The kinds behind those of numbers, in the order in which their names are looked at.
constexpr std::array otherKinds = {ValueKind::String, ValueKind::Time, ValueKind::Mix};

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

ValueKind valueKindNamed(const QString &kindText)
{
    // No name before "STRING" contains a text that contains it, so looking for it first is safe.
    if (kindText.contains(QLatin1String("STRING"))) {
        return ValueKind::String;
    }
    const int index = firstContaining(valueKindNames(), kindText);
    return index < stringTypeIndex
               ? ValueKind::Number
               : otherKinds.at(static_cast<std::size_t>(index - stringTypeIndex));
}

NumberKind numberKindNamed(const QString &kindText)
{
    const int index = firstContaining(numberKindNames(), kindText);
    return index < 0 ? intKind : numberKinds.at(static_cast<std::size_t>(index));
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

QStringList editorTypes()
{
    return texts(&NumberKind::caption) + QStringList("string");
}

EditorSelection editorSelection(const QString &rowType)
{
    const int index = rowType.isEmpty() ? -1 : firstContaining(rowTypeNames(), rowType.toUpper());
    if (index < 0) {
        return {shortTypeIndex, 0};
    }
    if (index < stringTypeIndex) {
        return {index, 0};
    }
    return {stringTypeIndex, index - stringTypeIndex};
}
