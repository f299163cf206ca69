#include "codec/hexgroups.h"

#include "frames/hextext.h"

namespace {

quint64 groupValue(const QStringRef &group)
{
    quint64 value = 0;
    for (const QChar character : group) {
        const std::optional<quint8> digit = hexDigitValue(character.toLatin1());
        if (!digit) {
            return 0;
        }
        value = value << 4U | *digit;
    }
    return value;
}

} // namespace

QVector<quint64> hexGroups(const QString &hex, int digits)
{
    const QString compact = withoutBlanks(hex);
    QVector<quint64> groups;
    groups.reserve(compact.size() / digits + 1);
    int begin = 0;
    int end = compact.size() % digits;
    if (end == 0) {
        end = digits;
    }
    while (end <= compact.size()) {
        groups.append(groupValue(compact.midRef(begin, end - begin)));
        begin = end;
        end += digits;
    }
    return groups;
}
