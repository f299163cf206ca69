#include "runner/rowresult.h"

QString rowName(const RowResult &result)
{
    constexpr int digits = 3;
    constexpr int decimal = 10;
    if (result.number == 0) {
        return result.description;
    }
    const QString number =
        QStringLiteral("%1").arg(result.number, digits, decimal, QLatin1Char('0'));
    return QStringLiteral("%1 %2").arg(number, result.description).trimmed();
}
