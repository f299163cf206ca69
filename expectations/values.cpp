#include "expectations/values.h"

#include "frames/hextext.h"

#include <QRegularExpression>

std::optional<int> numberOf(const QString &text, int least, int most)
{
    static const QRegularExpression digits(QStringLiteral("\\A[0-9]{1,10}\\z"));
    if (!digits.match(text).hasMatch()) {
        return std::nullopt;
    }
    const qlonglong number = text.toLongLong();
    return number >= least && number <= most ? std::optional(static_cast<int>(number))
                                             : std::nullopt;
}

std::optional<bool> switchOf(const QString &text)
{
    if (text == QLatin1String("on") || text == QLatin1String("off")) {
        return text == QLatin1String("on");
    }
    return std::nullopt;
}

std::optional<StartBytes> startBytesOf(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(?:0[xX])?([0-9A-Fa-f]{2}),?(?:0[xX])?([0-9A-Fa-f]{2})\\z"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    return StartBytes{static_cast<quint8>(match.captured(1).toUInt(nullptr, hexBase)),
                      static_cast<quint8>(match.captured(2).toUInt(nullptr, hexBase))};
}
